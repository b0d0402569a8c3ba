// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/ExportService.h"

#include "core/Base/SafeFile.h"
#include "core/Desktop/Alerts.h"
#include "core/Desktop/Sharing.h"
#include "core/Export/DragFile.h"
#include "core/Export/ImageEncoder.h"
#include "core/Export/PictureOffer.h"
#include "core/Preferences/Settings.h"

#include <QCoreApplication>

namespace tessaly {

SavePanels::~SavePanels() = default;

ExportService::ExportService(const Surroundings &surroundings) : m_surroundings(surroundings) { }

std::optional<QByteArray> ExportService::data(
    const RasterImage &image, ExportFormat format, std::optional<double> quality)
{
    const EncodeOptions options { .quality = quality.value_or(storedQuality(format, m_surroundings.settings)) };
    const auto bytes = std::make_shared<std::optional<QByteArray>>();
    const auto encode = [image, format, options, bytes](const Cancellation &) {
        if (auto encoded = encodeImage(image, format, options))
            *bytes = std::move(*encoded);
    };
    if (!m_surroundings.work.run(QCoreApplication::translate("ExportService", "Encoding the image…"), encode))
        return std::nullopt;
    return std::move(*bytes);
}

void ExportService::copy(const RasterImage &image, bool countsAsExport)
{
    if (countsAsExport)
        exported();
    m_surroundings.clipboard.offer(
        std::make_unique<PictureOffer>(image, m_surroundings.settings.value(SettingKeys::copyAtFullSize)));
}

bool ExportService::save(
    const RasterImage &image, ExportFormat format, const std::function<void(const QString &)> &writeDocument)
{
    return saveAs(image, format, writeDocument).has_value();
}

std::optional<QString> ExportService::saveAs(
    const RasterImage &image, ExportFormat format, const std::function<void(const QString &)> &writeDocument)
{
    const auto choice = m_surroundings.panels.chooseImage({ .format = format,
        .baseName = QCoreApplication::translate("ExportService", "Screenshot"),
        .folder = m_surroundings.settings.value(SettingKeys::defaultSaveFolder),
        .offersDocument = static_cast<bool>(writeDocument) });
    if (!choice)
        return std::nullopt;
    rememberChoices(*choice);
    const auto bytes = data(image, choice->format, choice->quality);
    if (!bytes)
        return std::nullopt;
    Outcome written = Failure { QCoreApplication::translate("ExportService", "There is not enough memory for it.") };
    m_surroundings.work.complete(QCoreApplication::translate("ExportService", "Saving the image…"),
        [&written, &choice, &bytes](const Cancellation &) { written = SafeFile::write(choice->path, *bytes); });
    if (!written) {
        m_surroundings.alerts.warn(
            QCoreApplication::translate("ExportService", "Couldn't save the image"), written.failure().message);
        return std::nullopt;
    }
    if (writeDocument && choice->alsoDocument)
        writeDocument(choice->path);
    if (m_surroundings.settings.value(SettingKeys::autoCopyAfterSave))
        copy(image, false);
    exported();
    return choice->path;
}

void ExportService::rememberChoices(const SavePanels::ImageChoice &choice)
{
    // Settings that cannot be written hold for this run all the same; the picture matters more.
    Settings &settings = m_surroundings.settings;
    static_cast<void>(settings.set(SettingKeys::exportFormat, rawValue(choice.format)));
    static_cast<void>(storeQuality(choice.format, choice.quality, settings));
}

bool ExportService::canShare() const { return m_surroundings.sharing.isAvailable(); }

void ExportService::share(const RasterImage &image)
{
    const auto png = data(image, ExportFormat::Png);
    if (!png)
        return;
    const QString name = dragFileName(m_surroundings.clock) + QStringLiteral(".png");
    const auto path = writeShareFile(*png, name, privateTemporaryFolder());
    const Outcome shared = path ? m_surroundings.sharing.share(*path) : Outcome(path.failure());
    if (!shared)
        m_surroundings.alerts.warn(
            QCoreApplication::translate("ExportService", "Couldn't share the image"), shared.failure().message);
}

} // namespace tessaly
