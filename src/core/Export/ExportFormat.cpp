// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/ExportFormat.h"

#include "core/Preferences/Settings.h"

namespace tessaly {

namespace {

struct FormatRow {
    ExportFormat format;
    const char *label;
    const char *extension;
    const char *mimeType;
    const SettingKey<double> *quality; ///< null for a format without loss
};

constexpr std::array<FormatRow, 7> formatRows { {
    { ExportFormat::Png, "PNG", "png", "image/png", nullptr },
    { ExportFormat::Jpeg, "JPEG", "jpg", "image/jpeg", &SettingKeys::jpegQuality },
    { ExportFormat::Webp, "WebP", "webp", "image/webp", &SettingKeys::webpQuality },
    { ExportFormat::Pdf, "PDF", "pdf", "application/pdf", nullptr },
    { ExportFormat::Tiff, "TIFF", "tiff", "image/tiff", nullptr },
    { ExportFormat::Gif, "GIF", "gif", "image/gif", nullptr },
    { ExportFormat::Bmp, "BMP", "bmp", "image/bmp", nullptr },
} };

const FormatRow &rowOf(ExportFormat format) { return formatRows.at(static_cast<size_t>(format)); }

} // namespace

QString label(ExportFormat format) { return QLatin1StringView(rowOf(format).label); }
QLatin1StringView extension(ExportFormat format) { return QLatin1StringView(rowOf(format).extension); }
QLatin1StringView mimeType(ExportFormat format) { return QLatin1StringView(rowOf(format).mimeType); }
bool isLossy(ExportFormat format) { return rowOf(format).quality != nullptr; }

std::optional<ExportFormat> formatOfExtension(QStringView text)
{
    const QString lower = text.toString().toLower();
    if (lower == u"tif")
        return ExportFormat::Tiff;
    for (const FormatRow &row : formatRows) {
        if (lower == QLatin1StringView(row.extension) || lower == rawValue(row.format))
            return row.format;
    }
    return std::nullopt;
}

double storedQuality(ExportFormat format, const Settings &settings)
{
    const auto *key = rowOf(format).quality;
    return key ? settings.value(*key) : 1.0;
}

Outcome storeQuality(ExportFormat format, double quality, Settings &settings)
{
    const auto *key = rowOf(format).quality;
    return key ? settings.set(*key, quality) : Outcome(Done {});
}

ExportFormat storedFormat(const Settings &settings)
{
    return enumFromRaw<ExportFormat>(settings.value(SettingKeys::exportFormat)).value_or(ExportFormat::Png);
}

} // namespace tessaly
