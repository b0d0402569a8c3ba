// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/EnumNames.h"
#include "core/Base/Result.h"

namespace tessaly {

class Settings;

/// The formats a picture is written in, in the order in which they are offered.
enum class ExportFormat { Png, Jpeg, Webp, Pdf, Tiff, Gif, Bmp };

template <>
inline constexpr auto enumNames<ExportFormat> = std::to_array<EnumName<ExportFormat>>({
    { ExportFormat::Png, QLatin1StringView("png") },
    { ExportFormat::Jpeg, QLatin1StringView("jpeg") },
    { ExportFormat::Webp, QLatin1StringView("webp") },
    { ExportFormat::Pdf, QLatin1StringView("pdf") },
    { ExportFormat::Tiff, QLatin1StringView("tiff") },
    { ExportFormat::Gif, QLatin1StringView("gif") },
    { ExportFormat::Bmp, QLatin1StringView("bmp") },
});

/// The name that menus show: "PNG", "WebP".
QString label(ExportFormat format);

/// The extension of file names, without the dot: "jpg" for JPEG.
QLatin1StringView extension(ExportFormat format);

/// The format's MIME type.
QLatin1StringView mimeType(ExportFormat format);

/// Whether a quality below 1 loses detail for smaller files: JPEG and WebP.
bool isLossy(ExportFormat format);

/// The format of a file name's extension, "jpeg" and "tif" included, in any case; empty for any other.
std::optional<ExportFormat> formatOfExtension(QStringView extension);

/// The quality that the user chose for the format, 0 to 1; 1 for a format that has none.
double storedQuality(ExportFormat format, const Settings &settings);

/// Stores the quality; a format that has none ignores it.
Outcome storeQuality(ExportFormat format, double quality, Settings &settings);

/// The format that the user last chose; PNG for one that is not known.
ExportFormat storedFormat(const Settings &settings);

} // namespace tessaly
