// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/SystemScreenshotWatcher.h"

#include "core/Base/Clock.h"
#include "core/Desktop/OpenPanels.h"
#include "core/Imaging/ImageReading.h"
#include "core/Preferences/Settings.h"

#include <QDir>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <array>

namespace tessaly {

namespace {

constexpr std::array<QLatin1StringView, 6> imageExtensions { QLatin1StringView("png"), QLatin1StringView("jpg"),
    QLatin1StringView("jpeg"), QLatin1StringView("heic"), QLatin1StringView("tiff"), QLatin1StringView("gif") };
/// At a file that does not come to rest, until it changes again.
constexpr int mostLooks = 9;
/// A file system may stamp files in steps as long as this (FAT), or with a clock that is a little behind.
constexpr std::chrono::seconds stampStep { 2 };

QDateTime creationOf(const QFileInfo &file)
{
    const QDateTime birth = file.birthTime(); // not every file system knows
    return birth.isValid() ? birth : file.lastModified();
}

} // namespace

SystemScreenshotWatcher::SystemScreenshotWatcher(const Surroundings &surroundings) : m_surroundings(surroundings)
{
    connect(&m_folder, &WatchedFolder::changed, this, &SystemScreenshotWatcher::scan);
    connect(&m_folder, &WatchedFolder::fileChanged, this, &SystemScreenshotWatcher::follow);
}

QString SystemScreenshotWatcher::chosenFolder() const
{
    const QString folder = m_surroundings.settings.value(SettingKeys::systemScreenshotsFolder);
    return QDir::isAbsolutePath(folder) && QFileInfo(folder).isDir() ? folder : QString();
}

void SystemScreenshotWatcher::start()
{
    stop();
    const QString folder = chosenFolder();
    if (folder.isEmpty())
        return;
    m_startedAt = m_surroundings.clock.now();
    const QStringList names = WatchedFolder::names(folder);
    m_knownFiles = QSet<QString>(names.begin(), names.end());
    if (m_folder.open(folder))
        scan(); // what has come before changes are told
}

void SystemScreenshotWatcher::stop()
{
    ++m_session;
    m_folder.close();
    m_knownFiles.clear();
    m_lookedAt.clear();
    m_ignoredNames.clear();
}

void SystemScreenshotWatcher::enableChoosingFolder()
{
    if (chosenFolder().isEmpty() && !chooseFolder())
        return;
    // A setting that cannot be written holds for this run all the same.
    static_cast<void>(m_surroundings.settings.set(SettingKeys::watchSystemScreenshots, true));
    start();
}

bool SystemScreenshotWatcher::chooseFolder()
{
    const auto folder = m_surroundings.openPanels.chooseFolder(
        tr("Choose the folder where macOS saves screenshots (usually the Desktop)."), tr("Use This Folder"),
        suggestedFolder());
    if (!folder)
        return false;
    static_cast<void>(m_surroundings.settings.set(SettingKeys::systemScreenshotsFolder, *folder));
    if (isWatching())
        start();
    return true;
}

QString SystemScreenshotWatcher::suggestedFolder() const
{
    if (const QString chosen = chosenFolder(); !chosen.isEmpty())
        return chosen;
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const QString screenshots = QDir(pictures).filePath(QStringLiteral("Screenshots"));
    return QFileInfo(screenshots).isDir() ? screenshots : pictures;
}

bool SystemScreenshotWatcher::ignorePath(const QString &path)
{
    const QFileInfo file(path);
    if (!isWatching() || QDir(file.path()).canonicalPath() != QDir(m_folder.path()).canonicalPath())
        return false;
    ignore(file.fileName());
    return true;
}

void SystemScreenshotWatcher::scan()
{
    const QStringList names = WatchedFolder::names(m_folder.path());
    const QSet<QString> known = std::exchange(m_knownFiles, QSet<QString>(names.begin(), names.end()));
    for (const QString &name : names) {
        if (known.contains(name) || name.startsWith(u'.') || m_ignoredNames.remove(name))
            continue;
        if (!isAcceptable(name))
            continue;
        m_folder.watchFile(name);
        follow(name);
    }
}

bool SystemScreenshotWatcher::isAcceptable(const QString &name) const
{
    const QFileInfo file(QDir(m_folder.path()).filePath(name));
    const QString extension = file.suffix().toLower();
    return std::ranges::any_of(imageExtensions, [&](QLatin1StringView each) { return extension == each; })
        && file.isFile() && creationOf(file) >= m_startedAt.addSecs(-stampStep.count());
}

void SystemScreenshotWatcher::follow(const QString &name)
{
    if (!m_lookedAt.contains(name))
        lookAt({ name });
}

void SystemScreenshotWatcher::lookAt(Growing file)
{
    const QFileInfo info(QDir(m_folder.path()).filePath(file.name));
    const qint64 size = info.isFile() ? info.size() : -1;
    const bool isAtRest = size >= 1 && size == file.size;
    if (isAtRest || ++file.looks == mostLooks) {
        m_lookedAt.remove(file.name);
        if (isAtRest)
            open(file.name);
        return;
    }
    file.size = size;
    m_lookedAt.insert(file.name);
    QTimer::singleShot(m_surroundings.settling, this, [this, file, session = m_session] {
        if (session == m_session)
            lookAt(file);
    });
}

void SystemScreenshotWatcher::open(const QString &name)
{
    // What is no picture was not meant for this program, or its tool has only paused: it is looked at when it changes.
    auto image = readImageFile(QDir(m_folder.path()).filePath(name));
    if (!image)
        return;
    m_folder.forgetFile(name);
    found(std::move(*image), name);
}

} // namespace tessaly
