// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Document/FileThumbnails.h"

#include <QFrame>
#include <QModelIndex>
#include <QTimer>

class QItemSelectionModel;
class QLabel;

namespace tessaly {

/// The picture of the file that is selected in a file dialog, with its name, kind and size below. It is read off the
/// main thread; without one only the texts are shown.
class FilePreview : public QFrame {
    Q_OBJECT

public:
    explicit FilePreview(QWidget *parent = nullptr);

    /// Of the dialog's list; its model is that of the file system.
    void follow(QItemSelectionModel &selection);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void showSelected(const QModelIndexList &rows);
    QRect pictureArea() const;

    FileThumbnails m_thumbnails;
    QTimer m_delay { this }; ///< what is only passed over is not read
    QString m_path; ///< empty while none is selected alone
    bool m_isReady = false; ///< the picture is there, or there is none
    QWidget *m_room; ///< where the picture is painted
    QLabel *m_name;
    QLabel *m_details;
};

} // namespace tessaly
