// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Frame/FrameStyle.h"
#include "core/Frame/Watermark.h"

namespace tessaly {

class Settings;
struct RasterImage;

/// The frame and watermark that the user last used, and the program's own copy of the watermark's logo.
class FrameSettings {
public:
    /// Keeps the reference. The logo is "Watermark/logo.png" below `dataFolder`.
    FrameSettings(Settings &settings, QString dataFolder);

    /// The program's folder below the user's data folder.
    static QString defaultDataFolder();

    struct Presentation {
        std::optional<FrameStyle> frame;
        std::optional<Watermark> watermark;
    };
    /// What a new capture opens with: nothing, unless the user wants the remembered ones on every capture.
    Presentation forNewCapture() const;

    /// Remember what is in use now. Absent means that it was switched off: the style is kept for the next time.
    Outcome remember(const std::optional<FrameStyle> &frame);
    Outcome remember(const std::optional<Watermark> &watermark);

    /// What cannot be read is a new one. A watermark with a logo has the bytes of the logo's file, where there is one.
    FrameStyle rememberedFrame() const;
    Watermark rememberedWatermark() const;

    /// Makes a picture the logo: decoded, written to the logo's file as PNG, whose bytes are the result. Bytes that are
    /// no picture fail and leave the file as it was.
    Result<QByteArray> importLogo(const QByteArray &imageFile);
    Result<QByteArray> importLogo(const QString &path);

    QString logoPath() const;

private:
    std::optional<QByteArray> logo() const;
    Result<QByteArray> storeLogo(const Result<RasterImage> &image);

    Settings &m_settings;
    QString m_dataFolder;
};

} // namespace tessaly
