// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/PostCaptureRouter.h"

#include "core/Base/Clock.h"
#include "core/Base/SafeFile.h"
#include "core/Capture/ScreenshotNames.h"
#include "core/Capture/SystemScreenshotWatcher.h"
#include "core/Desktop/Alerts.h"
#include "core/Export/ExportService.h"
#include "core/History/CaptureHistory.h"
#include "core/Preferences/Settings.h"

#include <QCoreApplication>
#include <QDir>

namespace tessaly {

namespace {

/// More captures than that in one second are not taken; it only ends the search in a folder that answers nonsense.
constexpr int mostNumbers = 10'000;
/// Pictures on their way to the history, which may be 33 MB each.
constexpr int mostUnwritten = 4;

} // namespace

void PostCaptureRouter::handleCapturedImage(const RasterImage &image, const QString &title, const QString &historyTitle)
{
    const Settings &settings = m_surroundings.settings;
    // All are read first: what is shown while saving may let the user change them.
    const bool shows = settings.value(SettingKeys::afterCaptureShow);
    const bool saves = settings.value(SettingKeys::afterCaptureSaveToDisk);
    const bool quickAccess = settings.value(SettingKeys::afterCaptureQuickAccess);
    if (settings.value(SettingKeys::afterCaptureCopy))
        m_surroundings.exports.copy(image, true);
    if (saves)
        static_cast<void>(saveToDisk(image)); // a failure has been told, and the picture goes on to where it is shown
    if (quickAccess)
        showThumbnail(image);
    else if (shows)
        openEditor(image, title);
    else
        record(image, historyTitle);
}

void PostCaptureRouter::record(const RasterImage &image, const QString &title)
{
    if (*m_unwritten >= mostUnwritten)
        m_surroundings.history.flush();
    const auto written = [unwritten = m_unwritten](const Outcome &) { --*unwritten; };
    if (m_surroundings.history.record(image, title, written))
        ++*m_unwritten;
}

void PostCaptureRouter::handleSystemScreenshot(const RasterImage &image, const QString &title)
{
    if (m_surroundings.settings.value(SettingKeys::afterCaptureCopy))
        m_surroundings.exports.copy(image, true);
    openEditor(image, title);
}

Result<QString> PostCaptureRouter::saveToDisk(const RasterImage &image)
{
    const ExportFormat format = storedFormat(m_surroundings.settings);
    const auto askWhere = [&] { return m_surroundings.exports.saveAs(image, format).value_or(QString()); };
    const auto folder = resolveDefaultFolder();
    const auto bytes = folder ? m_surroundings.exports.data(image, format) : std::nullopt;
    if (!bytes)
        return askWhere();
    auto path = writeInto(*folder, *bytes, extension(format));
    if (!path) {
        tell(path.failure());
        return askWhere();
    }
    if (m_surroundings.settings.value(SettingKeys::autoCopyAfterSave))
        m_surroundings.exports.copy(image, true);
    return path;
}

Result<QString> PostCaptureRouter::writeInto(
    const QString &folder, const QByteArray &bytes, QLatin1StringView extension)
{
    const QDateTime now = m_surroundings.clock.now();
    for (int number = 1; number < mostNumbers; ++number) {
        const QString name = ScreenshotNames::fileName(now, number, extension);
        const QString path = QDir(folder).filePath(name);
        if (QFileInfo(path).exists() || QFileInfo(path).isSymLink())
            continue;
        const bool ignores = m_surroundings.watcher.ignorePath(path);
        const auto created = SafeFile::create(path, bytes);
        if (created && *created == SafeFile::Created::Yes)
            return path;
        if (ignores)
            m_surroundings.watcher.stopIgnoring(name);
        if (!created)
            return created.failure();
    }
    return Failure { QCoreApplication::translate("PostCaptureRouter", "%1 has no free name left.").arg(folder) };
}

Result<QString> PostCaptureRouter::saveTo(const QString &path, const RasterImage &image)
{
    const auto format = formatOfExtension(QFileInfo(path).suffix()).value_or(ExportFormat::Png);
    const auto bytes = m_surroundings.exports.data(image, format);
    if (!bytes)
        return tell({ QCoreApplication::translate(
            "PostCaptureRouter", "%1 could not be written: the picture does not fit its format.")
                          .arg(path) });
    const bool ignores = !QFileInfo::exists(path) && m_surroundings.watcher.ignorePath(path);
    if (const auto written = SafeFile::write(path, *bytes); !written) {
        if (ignores)
            m_surroundings.watcher.stopIgnoring(QFileInfo(path).fileName());
        return tell(written.failure());
    }
    return path;
}

Failure PostCaptureRouter::tell(Failure failure)
{
    m_surroundings.alerts.warn(
        QCoreApplication::translate("PostCaptureRouter", "Couldn't save the image"), failure.message);
    return failure;
}

QString PostCaptureRouter::timestamp() const { return ScreenshotNames::timestamp(m_surroundings.clock.now()); }

Outcome PostCaptureRouter::setDefaultSaveFolder(const QString &folder)
{
    return m_surroundings.settings.set(SettingKeys::defaultSaveFolder, folder);
}

std::optional<QString> PostCaptureRouter::resolveDefaultFolder() const
{
    const QString folder = m_surroundings.settings.value(SettingKeys::defaultSaveFolder);
    // A relative path would depend on where the program was started.
    if (!QDir::isAbsolutePath(folder) || !QFileInfo(folder).isDir())
        return {};
    return folder;
}

} // namespace tessaly
