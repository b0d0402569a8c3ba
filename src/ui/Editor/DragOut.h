// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/DraggedPicture.h"

#include <QPixmap>
#include <QToolButton>

#include <functional>

namespace tessaly {

/// The finished picture of an editor on its way to another program.
class DragOutData : public DraggedPicture {
    Q_OBJECT

public:
    /// `fileName` has no extension. The file is written below `temporaryFolder`, which belongs to the user alone.
    DragOutData(RasterImage picture, QString fileName, QString temporaryFolder);

    /// The picture scaled down to at most this size in pixels.
    QPixmap thumbnail(QSize pixelSize) const;

private:
    RasterImage m_picture;
};

/// The place of the tool bar from which the finished picture is dragged into another program.
class DragOutHandle : public QToolButton {
    Q_OBJECT

public:
    /// `makeData` is asked when a drag begins; without data there is none.
    explicit DragOutHandle(std::function<std::unique_ptr<DragOutData>()> makeData, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The handle was clicked, which does nothing by itself: tell what it is for.
    void explained(const QString &sentence);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void drag();

    std::function<std::unique_ptr<DragOutData>()> m_makeData;
    QPoint m_pressed;
};

} // namespace tessaly
