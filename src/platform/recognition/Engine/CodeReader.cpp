// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/Engine/CodeReader.h"

#include "platform/recognition/Engine/CodeRegions.h"

#define ZX_USE_UTF8 1
#include <ZXing/ReadBarcode.h>

namespace tessaly {

namespace {

using Codes = QList<RecognizedContent::Code>;

// Modules of one or two pixels are found better enlarged, up to this size of the symbol's side.
constexpr int enlargedSide = 120, maximumEnlargement = 4;
// The light border that symbols need, in parts of their side.
constexpr double quietZone = 0.12;

ZXing::DecodeHints hintsForAnyCode()
{
    ZXing::DecodeHints hints;
    hints.setTryHarder(true).setTryRotate(true);
    return hints;
}

/// For a symbol alone in its picture, black and white.
ZXing::DecodeHints hintsForMatrixCode()
{
    using ZXing::BarcodeFormat;
    ZXing::DecodeHints hints = hintsForAnyCode();
    hints.setFormats(
        BarcodeFormat::QRCode | BarcodeFormat::MicroQRCode | BarcodeFormat::DataMatrix | BarcodeFormat::Aztec);
    hints.setBinarizer(ZXing::Binarizer::FixedThreshold);
    return hints;
}

/// Around the corners, in pixels of the picture that was read.
QRectF boxOf(const ZXing::Position &position)
{
    QPolygonF corners;
    for (const auto &corner : position)
        corners += QPointF(corner.x, corner.y);
    return corners.boundingRect();
}

/// The codes of a picture, with their boxes in its pixels.
Codes codesOf(const QImage &gray, const ZXing::DecodeHints &hints)
{
    const ZXing::ImageView view(
        gray.constBits(), gray.width(), gray.height(), ZXing::ImageFormat::Lum, int(gray.bytesPerLine()));
    Codes codes;
    for (const ZXing::Result &result : ZXing::ReadBarcodes(view, hints)) {
        const QString payload = QString::fromStdString(result.text());
        const bool isQR
            = result.format() == ZXing::BarcodeFormat::QRCode || result.format() == ZXing::BarcodeFormat::MicroQRCode;
        if (result.isValid() && !payload.isEmpty())
            codes += RecognizedContent::Code { payload, isQR, boxOf(result.position()) };
    }
    return codes;
}

QImage negated(QImage gray)
{
    gray.invertPixels();
    return gray;
}

/// A region by itself: enlarged where it is small, black on white, with the border that symbols need.
struct Cutout {
    QImage pixels;
    double scale = 1; ///< pixels of the cutout a pixel of the picture
    QPointF origin; ///< of the cutout in pixels of the picture

    QRectF inPicture(const QRectF &box) const { return { origin + box.topLeft() / scale, box.size() / scale }; }
};

/// The level that most of the pixels around a region have: that of its quiet zone.
int levelAround(const QImage &gray, const QRect &region)
{
    const QRect ring = region.adjusted(-2, -2, 2, 2) & gray.rect();
    std::vector<uchar> levels;
    for (int x = ring.left(); x <= ring.right(); ++x) {
        levels.push_back(gray.constScanLine(ring.top())[x]);
        levels.push_back(gray.constScanLine(ring.bottom())[x]);
    }
    for (int y = ring.top(); y <= ring.bottom(); ++y) {
        levels.push_back(gray.constScanLine(y)[ring.left()]);
        levels.push_back(gray.constScanLine(y)[ring.right()]);
    }
    const auto middle = levels.begin() + std::ptrdiff_t(levels.size() / 2);
    std::nth_element(levels.begin(), middle, levels.end());
    return *middle;
}

/// Smoothed enlargement suits symbols that were scaled, the other those with modules of whole pixels.
Cutout cutout(const QImage &gray, const QRect &region, Qt::TransformationMode enlargement)
{
    const int side = std::max(region.width(), region.height());
    const int scale = std::clamp((enlargedSide + side - 1) / side, 1, maximumEnlargement);
    const int border = std::max(4, int(quietZone * side));
    const int quiet = levelAround(gray, region);
    QImage pixels(region.size() + QSize(2 * border, 2 * border), QImage::Format_Grayscale8);
    pixels.fill(quiet);
    int least = quiet, most = quiet;
    for (int y = 0; y < region.height(); ++y) {
        const uchar *from = gray.constScanLine(region.top() + y) + region.left();
        std::copy_n(from, region.width(), pixels.scanLine(border + y) + border);
        const auto [low, high] = std::minmax_element(from, from + region.width());
        least = std::min(least, int(*low));
        most = std::max(most, int(*high));
    }
    if (scale > 1)
        pixels = pixels.scaled(pixels.size() * scale, Qt::IgnoreAspectRatio, enlargement)
                     .convertToFormat(QImage::Format_Grayscale8);
    const int middle = (least + most) / 2;
    const bool isInverted = quiet <= middle;
    for (int y = 0; y < pixels.height(); ++y) {
        uchar *row = pixels.scanLine(y);
        std::transform(row, row + pixels.width(), row,
            [middle, isInverted](uchar level) { return (level > middle) != isInverted ? uchar(255) : uchar(0); });
    }
    return { pixels, double(scale), QPointF(region.topLeft() - QPoint(border, border)) };
}

bool isFoundIn(const QRect &region, const Codes &codes)
{
    return std::ranges::any_of(
        codes, [&region](const auto &code) { return QRectF(region).contains(code.boundingBox.center()); });
}

} // namespace

Codes readCodes(const QImage &gray)
{
    const ZXing::DecodeHints any = hintsForAnyCode(), matrix = hintsForMatrixCode();
    Codes codes = codesOf(gray, any) + codesOf(negated(gray), any);
    // Most symbols other than QR are only found in the middle of a picture.
    for (const QRect &region : codeRegions(gray)) {
        if (isFoundIn(region, codes))
            continue;
        for (const auto enlargement : { Qt::SmoothTransformation, Qt::FastTransformation }) {
            const Cutout own = cutout(gray, region, enlargement);
            const Codes found = codesOf(own.pixels, matrix);
            for (RecognizedContent::Code code : found) {
                code.boundingBox = own.inPicture(code.boundingBox);
                codes += code;
            }
            if (!found.isEmpty() || own.scale == 1)
                break;
        }
    }
    for (RecognizedContent::Code &code : codes) {
        const QRectF box = code.boundingBox;
        code.boundingBox = QRectF(box.x() / gray.width(), box.y() / gray.height(), box.width() / gray.width(),
                               box.height() / gray.height())
            & QRectF(0, 0, 1, 1);
    }
    return codes;
}

} // namespace tessaly
