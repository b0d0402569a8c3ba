// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/DesktopPicture.h"

#include "core/Imaging/ImageReading.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <unistd.h>

namespace tessaly::DesktopPicture {

namespace {

bool isOursToRemove(const QFileInfo &file)
{
    return file.isFile() && !file.isSymLink() && file.ownerId() == ::geteuid();
}

struct Layout {
    QRect rect;
    double largestScale = 1; ///< pixels per layout unit
    double rounding = 0; ///< by which that may be wrong, since places are whole layout units
};

Layout layoutOf(const QList<Display> &displays)
{
    Layout layout;
    for (const Display &each : displays) {
        const double scale = double(each.pixelSize.width()) / each.layoutRect.width();
        layout.rect |= each.layoutRect;
        layout.largestScale = std::max(layout.largestScale, scale);
        layout.rounding = std::max(layout.rounding, scale / each.layoutRect.width());
    }
    return layout;
}

constexpr int pixelsOfRounding = 2;

/// Pixels of the picture per layout unit; absent when it is no picture of the whole layout.
std::optional<double> scaleOf(QSize picture, const Layout &layout)
{
    const double scale = double(picture.width()) / layout.rect.width();
    // Qt rounds a monitor's scale up to a whole number, so that the true one may be less by less than one.
    const double least = std::max(1.0, layout.largestScale - 1);
    const bool plausible = scale >= least - layout.rounding && scale <= layout.largestScale + layout.rounding;
    const bool sameShape = std::abs(picture.height() - layout.rect.height() * scale) <= pixelsOfRounding;
    return plausible && sameShape ? std::optional(scale) : std::nullopt;
}

/// Where the display lies in the picture; exactly its own size where only rounding makes a difference.
QRect placeOf(const Display &display, const Layout &layout, double scale, QSize picture)
{
    const QPointF topLeft = QPointF(display.layoutRect.topLeft() - layout.rect.topLeft()) * scale;
    QRect place(topLeft.toPoint(), (QSizeF(display.layoutRect.size()) * scale).toSize());
    const QSize off = place.size() - display.pixelSize;
    if (std::max(std::abs(off.width()), std::abs(off.height())) <= pixelsOfRounding)
        place.setSize(display.pixelSize);
    place.moveLeft(std::max(0, std::min(place.left(), picture.width() - place.width())));
    place.moveTop(std::max(0, std::min(place.top(), picture.height() - place.height())));
    return place & QRect(QPoint(), picture);
}

} // namespace

Result<QImage> takeFile(const QString &uri)
{
    const QUrl url(uri);
    if (!url.isLocalFile())
        return Failure {
            QCoreApplication::translate("PortalScreenSource", "“%1” is no file of this computer.").arg(uri)
        };
    QFile file(url.toLocalFile());
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return Failure { QCoreApplication::translate("PortalScreenSource", "%1 cannot be read.").arg(file.fileName()) };
    const QByteArray bytes = file.readAll();
    if (isOursToRemove(QFileInfo(file)) && !file.remove())
        qWarning("%s cannot be removed: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
    auto picture = readImage(bytes, file.fileName(), { .pixelsPerPoint = 1 });
    if (!picture)
        return picture.failure();
    return std::move(picture->pixels);
}

Result<QImage> cut(const QImage &picture, const QList<Display> &displays, const Display &display)
{
    const Layout layout = layoutOf(displays);
    const auto scale = scaleOf(picture.size(), layout);
    if (!scale || !layout.rect.contains(display.layoutRect))
        return Failure { QCoreApplication::translate(
            "PortalScreenSource", "It does not show the whole of the screen.") };
    const QImage shown = picture.copy(placeOf(display, layout, *scale, picture.size()));
    return shown.size() == display.pixelSize
        ? shown
        : shown.scaled(display.pixelSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace tessaly::DesktopPicture
