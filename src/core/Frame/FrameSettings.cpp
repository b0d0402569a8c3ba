// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Frame/FrameSettings.h"

#include "core/Base/SafeFile.h"
#include "core/Imaging/ImageReading.h"
#include "core/Preferences/Settings.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QStandardPaths>

namespace tessaly {

namespace {

QByteArray compactJson(const QJsonObject &object) { return QJsonDocument(object).toJson(QJsonDocument::Compact); }

template <class Record>
Record remembered(const Settings &settings, const SettingKey<SettingKeys::Bytes> &key)
{
    const auto record = Record::fromJson(QJsonDocument::fromJson(settings.value(key).value_or(QByteArray())).object());
    return record ? *record : Record();
}

/// Both are stored even if the first fails, which is then what is said.
Outcome both(Outcome first, Outcome second) { return first ? std::move(second) : std::move(first); }

} // namespace

FrameSettings::FrameSettings(Settings &settings, QString dataFolder) :
    m_settings(settings),
    m_dataFolder(std::move(dataFolder))
{
}

QString FrameSettings::defaultDataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/tessaly");
}

FrameSettings::Presentation FrameSettings::forNewCapture() const
{
    Presentation presentation;
    if (!m_settings.value(SettingKeys::frameApplyAlways))
        return presentation;
    if (m_settings.value(SettingKeys::frameLastOn))
        presentation.frame = rememberedFrame();
    if (m_settings.value(SettingKeys::watermarkLastOn)) {
        Watermark watermark = rememberedWatermark();
        if (watermark.isVisible())
            presentation.watermark = std::move(watermark);
    }
    return presentation;
}

Outcome FrameSettings::remember(const std::optional<FrameStyle> &frame)
{
    Outcome switched = m_settings.set(SettingKeys::frameLastOn, frame.has_value());
    if (!frame)
        return switched;
    return both(std::move(switched), m_settings.set(SettingKeys::frameStyle, compactJson(frame->toJson())));
}

Outcome FrameSettings::remember(const std::optional<Watermark> &watermark)
{
    Outcome switched = m_settings.set(SettingKeys::watermarkLastOn, watermark.has_value());
    if (!watermark)
        return switched;
    // The logo's own file holds the bytes; only without it they have to stay in the settings.
    Watermark kept = *watermark;
    if (QFileInfo(logoPath()).isFile())
        kept.imageData.reset();
    return both(std::move(switched), m_settings.set(SettingKeys::watermarkStyle, compactJson(kept.toJson())));
}

FrameStyle FrameSettings::rememberedFrame() const
{
    return remembered<FrameStyle>(m_settings, SettingKeys::frameStyle);
}

Watermark FrameSettings::rememberedWatermark() const
{
    auto watermark = remembered<Watermark>(m_settings, SettingKeys::watermarkStyle);
    if (watermark.kind == WatermarkKind::Image) {
        if (auto bytes = logo())
            watermark.imageData = std::move(bytes);
    }
    return watermark;
}

std::optional<QByteArray> FrameSettings::logo() const
{
    QFile file(logoPath());
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

Result<QByteArray> FrameSettings::importLogo(const QByteArray &imageFile)
{
    return storeLogo(readImage(imageFile, logoPath()));
}

Result<QByteArray> FrameSettings::importLogo(const QString &path) { return storeLogo(readImageFile(path)); }

Result<QByteArray> FrameSettings::storeLogo(const Result<RasterImage> &image)
{
    QByteArray png;
    QBuffer buffer(&png);
    if (!image || !image->pixels.save(&buffer, "PNG"))
        return Failure { QCoreApplication::translate("FrameSettings", "Couldn't use this image as a watermark") };
    QDir().mkpath(QFileInfo(logoPath()).path()); // where this fails, so does writing, and says why
    if (const auto written = SafeFile::write(logoPath(), png); !written)
        return written.failure();
    return png;
}

QString FrameSettings::logoPath() const { return QDir(m_dataFolder).filePath(QStringLiteral("Watermark/logo.png")); }

} // namespace tessaly
