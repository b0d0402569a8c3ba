// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/RecentPictures.h"

#include "ui/Style/Icons.h"

#include <QMenu>
#include <QPainter>

namespace tessaly {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds idleTime = 60s;

/// Of a row's icon in pixels, for screens of up to 300 %.
constexpr int pixelSide = 48;

/// In the middle of a square, so that the texts of all rows begin at one place.
QIcon squared(const QImage &picture)
{
    QPixmap square(pixelSide, pixelSide);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.drawImage((pixelSide - picture.width()) / 2, (pixelSide - picture.height()) / 2, picture);
    return square;
}

} // namespace

RecentPictures::RecentPictures(QMenu &menu) : QObject(&menu), m_menu(menu), m_thumbnails({ pixelSide, pixelSide })
{
    m_idle.setSingleShot(true);
    m_idle.setInterval(idleTime);
    // Whoever fills the menu has connected before.
    connect(&menu, &QMenu::aboutToShow, this, &RecentPictures::begin);
    connect(&menu, &QMenu::aboutToHide, &m_idle, qOverload<>(&QTimer::start));
    connect(&m_idle, &QTimer::timeout, this, [this] {
        m_thumbnails.forget();
        m_menu.clear(); // it is filled when it opens
    });
    connect(&m_thumbnails, &FileThumbnails::ready, this, &RecentPictures::show);
}

void RecentPictures::begin()
{
    m_idle.stop();
    for (const QAction *row : m_menu.actions()) {
        const QString path = row->data().toString();
        if (path.isEmpty())
            continue;
        show(path);
        m_thumbnails.read(path);
    }
}

void RecentPictures::show(const QString &path)
{
    for (QAction *row : m_menu.actions()) {
        if (row->data().toString() != path)
            continue;
        const QImage picture = m_thumbnails.thumbnail(path);
        row->setIcon(picture.isNull() ? Icons::icon(QLatin1StringView("document")) : squared(picture));
    }
}

} // namespace tessaly
