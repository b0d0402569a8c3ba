// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11ScreenSource.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/PixelMemory.h"
#include "platform/x11/DesktopIcons.h"
#include "platform/x11/DrawablePixels.h"
#include "platform/x11/DrawingPause.h"
#include "platform/x11/Monitors.h"
#include "platform/x11/PixelConversion.h"
#include "platform/x11/ScreenScale.h"
#include "platform/x11/SegmentPool.h"

#include <QCoreApplication>

namespace tessaly {

X11ScreenSource::X11ScreenSource(CaptureUse use, std::shared_ptr<X11Connection> connection) :
    m_use(use),
    m_connection(std::move(connection)),
    m_pool(std::make_unique<SegmentPool>(m_connection)),
    m_drawingPause(std::make_unique<DrawingPause>(m_connection))
{
}
X11ScreenSource::~X11ScreenSource() = default;

Result<std::unique_ptr<ScreenSource>> X11ScreenSource::create(CaptureUse use, const QString &display)
{
    auto connection = X11Connection::open(display);
    if (!connection)
        return connection.failure();
    return std::unique_ptr<ScreenSource>(new X11ScreenSource(use, std::move(*connection)));
}

Result<QList<Display>> X11ScreenSource::displays()
{
    QList<Display> displays = Monitors::list(m_connection->xcb(), m_connection->root());
    if (displays.isEmpty()) {
        const QRect screen = m_connection->rootPixelRect();
        if (screen.isEmpty())
            return Failure { QCoreApplication::translate("X11ScreenSource", "The X server no longer answers.") };
        displays.append({ QStringLiteral("screen"), screen, screen.size(), 1, true });
    }
    std::stable_partition(displays.begin(), displays.end(), [](const Display &display) { return display.primary; });
    displays.first().primary = true;
    QStringList names;
    for (const Display &display : displays)
        names.append(display.name);
    const QList<double> scales
        = ScreenScale::ofMonitors(names, m_connection->textDpi(), ScreenScale::Settings::fromEnvironment());
    for (qsizetype index = 0; index < displays.size(); ++index)
        displays[index].scale = scales[index];
    return displays;
}

void X11ScreenSource::capture(const Shot &shot, Answer answer)
{
    // Errors about windows that went away meanwhile.
    m_connection->dropEvents();
    // Since the display was described its monitor may have been unplugged.
    const QRect visible = shot.pixelRect.translated(shot.display.layoutRect.topLeft()) & m_connection->rootPixelRect();
    if (visible.isEmpty())
        return answer(
            Failure { QCoreApplication::translate("X11ScreenSource", "The area to capture lies outside the screen.") });
    // With nothing kept, pages that only this program writes to are had much sooner than shared ones.
    QImage pixels = captureRoot(visible, m_use == CaptureUse::Once || (shot.isBrief && m_pool->isEmpty()));
    if (pixels.isNull())
        return answer(Failure {
            QCoreApplication::translate("X11ScreenSource", "The X server did not give the screen's pixels.") });
    if (shot.leavesOutDesktopIcons)
        DesktopIcons::replaceWithBackground(*m_connection, pixels, visible.topLeft());
    const QSizeF pointSize = QSizeF(pixels.size()) / shot.display.scale;
    answer(RasterImage { std::move(pixels), pointSize });
}

void X11ScreenSource::whenSettled(std::function<void()> then) { m_drawingPause->wait(std::move(then)); }

void X11ScreenSource::prepare()
{
    if (m_use == CaptureUse::Once || !canShareScreen())
        return;
    std::vector<size_t> sizes;
    for (const Display &display : Monitors::list(m_connection->xcb(), m_connection->root()))
        sizes.push_back(
            static_cast<size_t>(display.pixelSize.width()) * 4 * static_cast<size_t>(display.pixelSize.height()));
    m_pool->prepare(sizes);
}

void X11ScreenSource::release() { m_pool->release(); }

bool X11ScreenSource::canShareScreen() const
{
    return m_connection->rootPixelLayout().isRgb32() && m_connection->hasExtension(xcb_shm_id);
}

QImage X11ScreenSource::captureRoot(const QRect &rootPixelRect, bool inStrips)
{
    QImage pixels;
    if (canShareScreen())
        pixels = inStrips ? captureInStrips(rootPixelRect) : captureShared(rootPixelRect);
    if (pixels.isNull())
        pixels = DrawablePixels::read(*m_connection, m_connection->root(), rootPixelRect,
            m_connection->rootPixelLayout(), DrawablePixels::Alpha::Ignored);
    return pixels;
}

bool X11ScreenSource::fill(const SharedSegment &segment, const QRect &pixelRect) const
{
    xcb_connection_t *xcb = m_connection->xcb();
    const auto request = xcb_shm_get_image(xcb, m_connection->root(), static_cast<int16_t>(pixelRect.x()),
        static_cast<int16_t>(pixelRect.y()), static_cast<uint16_t>(pixelRect.width()),
        static_cast<uint16_t>(pixelRect.height()), ~0u, XCB_IMAGE_FORMAT_Z_PIXMAP, segment.id(), 0);
    return XcbReply<xcb_shm_get_image_reply_t>(xcb_shm_get_image_reply(xcb, request, nullptr)) != nullptr;
}

QImage X11ScreenSource::captureShared(const QRect &pixelRect)
{
    const qsizetype bytesPerLine = qsizetype(pixelRect.width()) * 4;
    const size_t bytes = static_cast<size_t>(bytesPerLine) * static_cast<size_t>(pixelRect.height());
    const auto segment = m_pool->take(bytes);
    if (!segment || !fill(*segment, pixelRect))
        return {};
    if (bytes < segment->bytes() / 2) {
        // A small part of the screen may be kept for long; the large piece stays free for the next capture.
        QImage picture = PixelMemory::allocate(pixelRect.size(), QImage::Format_RGB32);
        if (!picture.isNull())
            PixelConversion::copyOpaque(segment->memory(), picture.bits(), bytes / 4);
        return picture;
    }
    PixelConversion::makeOpaque(segment->memory(), bytes / 4);
    auto *keptAlive = new std::shared_ptr<SharedSegment>(segment);
    return QImage(
        segment->memory(), pixelRect.width(), pixelRect.height(), bytesPerLine, QImage::Format_RGB32,
        [](void *kept) { delete static_cast<std::shared_ptr<SharedSegment> *>(kept); }, keptAlive);
}

QImage X11ScreenSource::captureInStrips(const QRect &pixelRect)
{
    constexpr int rowsInStrip = 64;
    const size_t bytesPerRow = static_cast<size_t>(pixelRect.width()) * 4;
    const auto segment = SharedSegment::create(m_connection, bytesPerRow * rowsInStrip);
    QImage picture = PixelMemory::allocate(pixelRect.size(), QImage::Format_RGB32);
    if (!segment || picture.isNull())
        return {};
    // Nobody draws between two strips, so they show one moment. The server ends the grab of a program that dies.
    xcb_grab_server(m_connection->xcb());
    bool complete = true;
    const auto fetch = [&] {
        for (int first = 0; complete && first < pixelRect.height(); first += rowsInStrip) {
            const int rows = std::min(rowsInStrip, pixelRect.height() - first);
            complete = fill(*segment, QRect(pixelRect.x(), pixelRect.y() + first, pixelRect.width(), rows));
            PixelConversion::copyOpaque(
                segment->memory(), picture.scanLine(first), bytesPerRow / 4 * static_cast<size_t>(rows));
        }
    };
    PixelMemory::populateBeside(
        fetch, picture.bits(), static_cast<size_t>(picture.sizeInBytes()), Parallel::defaultThreadCount());
    xcb_ungrab_server(m_connection->xcb());
    xcb_flush(m_connection->xcb());
    return complete ? picture : QImage();
}

} // namespace tessaly
