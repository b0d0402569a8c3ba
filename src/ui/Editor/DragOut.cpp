// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/DragOut.h"

#include "ui/Style/Icons.h"

#include <QApplication>
#include <QDrag>
#include <QMouseEvent>

namespace tessaly {

DragOutData::DragOutData(RasterImage picture, QString fileName, QString temporaryFolder) :
    DraggedPicture([picture] { return picture; }, std::move(fileName), std::move(temporaryFolder)),
    m_picture(std::move(picture))
{
}

QPixmap DragOutData::thumbnail(QSize pixelSize) const
{
    const QSize size = m_picture.pixelSize().scaled(pixelSize.boundedTo(m_picture.pixelSize()), Qt::KeepAspectRatio);
    return QPixmap::fromImage(m_picture.pixels.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

DragOutHandle::DragOutHandle(std::function<std::unique_ptr<DragOutData>()> makeData, QWidget *parent) :
    QToolButton(parent),
    m_makeData(std::move(makeData))
{
    setObjectName(QStringLiteral("dragOut"));
    setText(tr("Drag"));
    setIcon(Icons::icon(QLatin1StringView("drag-out")));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::OpenHandCursor);
    setToolTip(tr("Drag the finished picture into another program"));
    setAccessibleName(tr("Drag out"));
    setAccessibleDescription(toolTip());
    connect(this, &QToolButton::clicked, this,
        [this] { Q_EMIT explained(tr("Drag this into another program, or press Ctrl+Shift+C to copy the picture.")); });
}

void DragOutHandle::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->position().toPoint();
    QToolButton::mousePressEvent(event);
}

void DragOutHandle::mouseMoveEvent(QMouseEvent *event)
{
    const int distance = (event->position().toPoint() - m_pressed).manhattanLength();
    if ((event->buttons() & Qt::LeftButton) && distance >= QApplication::startDragDistance()) {
        setDown(false);
        drag();
        return;
    }
    QToolButton::mouseMoveEvent(event);
}

void DragOutHandle::drag()
{
    std::unique_ptr<DragOutData> data = m_makeData();
    if (!data)
        return;
    constexpr QSize thumbnailSize { 160, 120 }; // points
    auto *drag = new QDrag(this);
    QPixmap thumbnail = data->thumbnail(thumbnailSize * devicePixelRatioF());
    thumbnail.setDevicePixelRatio(devicePixelRatioF());
    drag->setPixmap(thumbnail);
    drag->setHotSpot({ -12, -12 });
    // The drag owns the data, and Qt keeps it beyond exec() for receivers that fetch late.
    drag->setMimeData(data.release());
    drag->exec(Qt::CopyAction);
}

} // namespace tessaly
