// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"

#include <QMimeData>
#include <QPixmap>
#include <QToolButton>

#include <functional>
#include <optional>

namespace tessaly {

/// A picture on its way to another program: PNG data and a PNG file, each made when it is asked for.
class DragOutData : public QMimeData {
    Q_OBJECT

public:
    /// `fileName` has no extension. The file is written below `temporaryFolder`, which belongs to the user alone.
    DragOutData(RasterImage picture, QString fileName, QString temporaryFolder);

    QStringList formats() const override;
    bool hasFormat(const QString &type) const override;

    /// The picture scaled down to at most this size in pixels.
    QPixmap thumbnail(QSize pixelSize) const;

protected:
    QVariant retrieveData(const QString &type, QMetaType wanted) const override;

private:
    const QByteArray &png() const;
    QString file() const;

    RasterImage m_picture;
    QString m_fileName;
    QString m_temporaryFolder;
    mutable std::optional<QByteArray> m_png;
    mutable std::optional<QString> m_file; ///< empty when it could not be written
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
