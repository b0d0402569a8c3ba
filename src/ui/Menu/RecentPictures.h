// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Document/FileThumbnails.h"

#include <QTimer>

class QMenu;

namespace tessaly {

/// Small pictures beside the rows of a menu of files; the data of a row is its path. They come when they have been
/// read, and are given back a while after the menu was used last.
class RecentPictures : public QObject {
    Q_OBJECT

public:
    /// Belongs to the menu. What makes its rows when it is about to be shown must be connected already.
    explicit RecentPictures(QMenu &menu);

private:
    void begin();
    void show(const QString &path);

    QMenu &m_menu;
    FileThumbnails m_thumbnails;
    QTimer m_idle { this };
};

} // namespace tessaly
