// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Screen/CaptureEngine.h"

#include "core/Imaging/ImageEffects.h"

#include <QCoreApplication>
#include <QPainter>

#include <cmath>

namespace tessaly::CaptureEngine {

namespace {

struct Snapshotting {
    ScreenSource &source;
    QList<Display> left;
    bool leavesOutDesktopIcons;
    std::function<void(Result<DisplaySnapshots>)> answer;
    DisplaySnapshots taken = {};
    Failure failure = noDisplay();
};

void takeNext(const std::shared_ptr<Snapshotting> &work)
{
    if (work->left.isEmpty()) {
        if (work->taken.isEmpty())
            return work->answer(std::move(work->failure));
        return work->answer(std::move(work->taken));
    }
    const Display display = work->left.takeFirst();
    const auto take = [work, id = display.id()](Result<RasterImage> picture) {
        if (!picture) {
            work->failure = picture.failure();
            if (work->failure.cancelled)
                work->left.clear(); // the user is not asked once more for each monitor
        } else if (!picture->isEmpty()) {
            work->taken.insert(id, std::move(picture->pixels));
        }
        takeNext(work);
    };
    work->source.capture({ display, display.pixelRect(), work->leavesOutDesktopIcons, true }, take);
}

/// What the picture covers, on a canvas of `size` with its top left at `origin`.
QImage coverageOf(const QImage &picture, QSize size, QPoint origin)
{
    QImage coverage(size, QImage::Format_Grayscale8);
    if (coverage.isNull())
        return coverage;
    coverage.fill(0);
    const bool opaque = !picture.hasAlphaChannel();
    for (int y = 0; y < picture.height(); ++y) {
        const auto *pixels = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        uchar *row = coverage.scanLine(y + origin.y()) + origin.x();
        for (int x = 0; x < picture.width(); ++x)
            row[x] = opaque ? uchar(255) : uchar(qAlpha(pixels[x]));
    }
    return coverage;
}

/// Black of the coverage's strength, premultiplied.
QImage blackOf(const QImage &coverage, double opacity)
{
    QImage black(coverage.size(), QImage::Format_ARGB32_Premultiplied);
    if (black.isNull())
        return black;
    std::array<QRgb, 256> levels;
    for (size_t level = 0; level < levels.size(); ++level)
        levels[level] = qRgba(0, 0, 0, static_cast<int>(std::lround(double(level) * opacity)));
    for (int y = 0; y < black.height(); ++y) {
        const uchar *row = coverage.constScanLine(y);
        auto *pixels = reinterpret_cast<QRgb *>(black.scanLine(y));
        for (int x = 0; x < black.width(); ++x)
            pixels[x] = levels[row[x]];
    }
    return black;
}

} // namespace

Failure noDisplay() { return { QCoreApplication::translate("CaptureEngine", "No display was found.") }; }
Failure noFrontWindow() { return { QCoreApplication::translate("CaptureEngine", "No front window was found.") }; }
Failure cropFailed() { return { QCoreApplication::translate("CaptureEngine", "Couldn't crop the selected region.") }; }

Failure noSuchWindow(quint64 id)
{
    return { QCoreApplication::translate(
        "CaptureEngine", "There is no window %1 on the screen; tessaly windows lists those that are there.")
                 .arg(id) };
}

std::optional<Display> display(const QList<Display> &displays, std::optional<quint32> id)
{
    const auto found
        = std::ranges::find_if(displays, [&id](const Display &each) { return id ? each.id() == *id : each.primary; });
    if (found != displays.end())
        return *found;
    return id || displays.isEmpty() ? std::nullopt : std::optional(displays.first());
}

QRectF pixelAligned(const QRectF &rect, double scale)
{
    const double pixels = scale > 0 ? scale : 1;
    const auto aligned = [pixels](double edge) { return std::round(edge * pixels) / pixels; };
    return QRectF(QPointF(aligned(rect.left()), aligned(rect.top())),
        QPointF(aligned(rect.left() + rect.width()), aligned(rect.top() + rect.height())));
}

QRect pixelsOf(const QRectF &rect, double scale)
{
    const double pixels = scale > 0 ? scale : 1;
    const QRectF aligned = pixelAligned(rect, pixels);
    // Aligned edges are whole but for the last bits of the division.
    const QPoint topLeft(qRound(aligned.left() * pixels), qRound(aligned.top() * pixels));
    const QPoint end(qRound(aligned.right() * pixels), qRound(aligned.bottom() * pixels));
    return QRect(topLeft, end - QPoint(1, 1));
}

Result<RasterImage> crop(const QImage &picture, const QRect &pixelRect, double scale)
{
    const QRect inside = pixelRect & picture.rect();
    if (inside.isEmpty())
        return cropFailed();
    QImage part = picture.copy(inside);
    if (part.isNull())
        return cropFailed();
    return RasterImage::fromPixels(std::move(part), scale);
}

RasterImage withShadow(const RasterImage &image, const Shadow &shadow)
{
    const double scale = image.pixelScale();
    const int margin = qRound(scale * shadow.margin);
    const QSize size = image.pixelSize() + QSize(2 * margin, 2 * margin);
    const QPoint origin(margin, margin + qRound(scale * shadow.offsetY));
    const QImage coverage = coverageOf(image.pixels, size, origin);
    QImage canvas = blackOf(ImageEffects::shapedShadow(coverage, scale * shadow.blur / 2), shadow.opacity);
    if (image.isEmpty() || canvas.size() != size)
        return image;
    {
        QPainter painter(&canvas);
        painter.drawImage(margin, margin, image.pixels);
    }
    return RasterImage::fromPixels(std::move(canvas), scale);
}

void snapshotDisplays(ScreenSource &source, const QList<Display> &displays, bool leavesOutDesktopIcons,
    std::function<void(Result<DisplaySnapshots>)> answer)
{
    takeNext(
        std::make_shared<Snapshotting>(Snapshotting { source, displays, leavesOutDesktopIcons, std::move(answer) }));
}

} // namespace tessaly::CaptureEngine
