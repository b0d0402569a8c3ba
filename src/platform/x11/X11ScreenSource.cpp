// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11ScreenSource.h"

#include "core/Imaging/PixelMemory.h"
#include "platform/x11/PixelConversion.h"
#include "platform/x11/SharedSegment.h"

#include <QCoreApplication>

#include <xcb/randr.h>

namespace tessaly {

namespace {

QString atomName(xcb_connection_t *xcb, xcb_atom_t atom)
{
    const XcbReply<xcb_get_atom_name_reply_t> reply(
        xcb_get_atom_name_reply(xcb, xcb_get_atom_name(xcb, atom), nullptr));
    return reply ? QString::fromUtf8(xcb_get_atom_name_name(reply.get()), xcb_get_atom_name_name_length(reply.get()))
                 : QString();
}

} // namespace

X11ScreenSource::X11ScreenSource(CaptureUse use, std::shared_ptr<X11Connection> connection) :
    m_use(use),
    m_connection(std::move(connection))
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
    xcb_connection_t *xcb = m_connection->xcb();
    const double scale = m_connection->scale();
    QList<Display> displays;
    const auto *randr = xcb_get_extension_data(xcb, &xcb_randr_id);
    if (randr && randr->present) {
        const XcbReply<xcb_randr_get_monitors_reply_t> monitors(
            xcb_randr_get_monitors_reply(xcb, xcb_randr_get_monitors(xcb, m_connection->root(), 1), nullptr));
        auto monitor = monitors ? xcb_randr_get_monitors_monitors_iterator(monitors.get())
                                : xcb_randr_monitor_info_iterator_t {};
        for (; monitor.rem > 0; xcb_randr_monitor_info_next(&monitor)) {
            const auto &info = *monitor.data;
            displays.append(
                { atomName(xcb, info.name), QRect(info.x, info.y, info.width, info.height), scale, info.primary != 0 });
        }
    }
    if (displays.isEmpty())
        displays.append({ QStringLiteral("screen"), m_connection->rootPixelRect(), scale, true });
    std::stable_partition(displays.begin(), displays.end(), [](const Display &display) { return display.primary; });
    return displays;
}

Result<RasterImage> X11ScreenSource::capture(const QRect &pixelRect, double scale)
{
    const QRect visible = pixelRect & m_connection->rootPixelRect();
    if (visible.isEmpty())
        return Failure { QCoreApplication::translate(
            "X11ScreenSource", "The area to capture lies outside the screen.") };
    QImage pixels = m_use == CaptureUse::Once ? captureInStrips(visible) : captureShared(visible);
    if (pixels.isNull())
        pixels = captureThroughSocket(visible);
    if (pixels.isNull())
        return Failure { QCoreApplication::translate(
            "X11ScreenSource", "The X server did not give the screen's pixels.") };
    const QSizeF pointSize = QSizeF(pixels.size()) / scale;
    return RasterImage { std::move(pixels), pointSize };
}

bool X11ScreenSource::fillSegment(const QRect &pixelRect) const
{
    xcb_connection_t *xcb = m_connection->xcb();
    const auto request = xcb_shm_get_image(xcb, m_connection->root(), static_cast<int16_t>(pixelRect.x()),
        static_cast<int16_t>(pixelRect.y()), static_cast<uint16_t>(pixelRect.width()),
        static_cast<uint16_t>(pixelRect.height()), ~0u, XCB_IMAGE_FORMAT_Z_PIXMAP, m_segment->id(), 0);
    return XcbReply<xcb_shm_get_image_reply_t>(xcb_shm_get_image_reply(xcb, request, nullptr)) != nullptr;
}

QImage X11ScreenSource::captureShared(const QRect &pixelRect)
{
    if (!m_connection->rootPixelLayout().isRgb32() || !m_connection->hasSharedMemory())
        return {};
    const qsizetype bytesPerLine = qsizetype(pixelRect.width()) * 4;
    const size_t bytes = static_cast<size_t>(bytesPerLine) * static_cast<size_t>(pixelRect.height());
    if (!m_segment || m_segment.use_count() > 1 || m_segment->bytes() < bytes)
        m_segment = SharedSegment::create(m_connection, bytes);
    if (!m_segment || !fillSegment(pixelRect))
        return {};
    PixelConversion::makeOpaque(m_segment->memory(), bytes / 4);
    auto *keptAlive = new std::shared_ptr<SharedSegment>(m_segment);
    return QImage(
        m_segment->memory(), pixelRect.width(), pixelRect.height(), bytesPerLine, QImage::Format_RGB32,
        [](void *segment) { delete static_cast<std::shared_ptr<SharedSegment> *>(segment); }, keptAlive);
}

QImage X11ScreenSource::captureInStrips(const QRect &pixelRect)
{
    constexpr int rowsInStrip = 64;
    if (!m_connection->rootPixelLayout().isRgb32() || !m_connection->hasSharedMemory())
        return {};
    const size_t bytesPerRow = static_cast<size_t>(pixelRect.width()) * 4;
    m_segment = SharedSegment::create(m_connection, bytesPerRow * rowsInStrip);
    QImage picture = PixelMemory::allocate(pixelRect.size(), QImage::Format_RGB32);
    if (!m_segment || picture.isNull())
        return {};
    // Nobody draws between two strips, so they show one moment. The server ends the grab of a program that dies.
    xcb_grab_server(m_connection->xcb());
    bool complete = true;
    for (int first = 0; complete && first < pixelRect.height(); first += rowsInStrip) {
        const int rows = std::min(rowsInStrip, pixelRect.height() - first);
        complete = fillSegment(QRect(pixelRect.x(), pixelRect.y() + first, pixelRect.width(), rows));
        PixelConversion::copyOpaque(
            m_segment->memory(), picture.scanLine(first), bytesPerRow / 4 * static_cast<size_t>(rows));
    }
    xcb_ungrab_server(m_connection->xcb());
    xcb_flush(m_connection->xcb());
    return complete ? picture : QImage();
}

QImage X11ScreenSource::captureThroughSocket(const QRect &pixelRect)
{
    xcb_connection_t *xcb = m_connection->xcb();
    const auto request = xcb_get_image(xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, m_connection->root(),
        static_cast<int16_t>(pixelRect.x()), static_cast<int16_t>(pixelRect.y()),
        static_cast<uint16_t>(pixelRect.width()), static_cast<uint16_t>(pixelRect.height()), ~0u);
    const XcbReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(xcb, request, nullptr));
    if (!reply)
        return {};
    const qsizetype bytesPerLine = xcb_get_image_data_length(reply.get()) / pixelRect.height();
    return PixelConversion::toRgb32(
        xcb_get_image_data(reply.get()), bytesPerLine, pixelRect.size(), m_connection->rootPixelLayout());
}

} // namespace tessaly
