// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Document/FileThumbnails.h"

#include "core/Document/FileThumbnail.h"

#include <QPromise>
#include <QThreadPool>

#include <memory>

namespace tessaly {

FileThumbnails::FileThumbnails(QSize pixelSize, QObject *parent) : QObject(parent), m_pixelSize(pixelSize) { }

FileThumbnails::~FileThumbnails() { forget(); }

void FileThumbnails::read(const QString &path)
{
    if (m_reading.contains(path))
        return;
    const auto promise = std::make_shared<QPromise<QImage>>();
    auto *watcher = new Watcher(this);
    m_reading.insert(path, watcher);
    connect(watcher, &Watcher::finished, this, [this, path, watcher] { take(path, watcher); });
    promise->start();
    watcher->setFuture(promise->future());
    // On the program's own pool: one of this object would have to be waited for.
    QThreadPool::globalInstance()->start([promise, path, pixelSize = m_pixelSize] {
        if (!promise->isCanceled())
            promise->addResult(fileThumbnail(path, pixelSize));
        promise->finish();
    });
}

void FileThumbnails::take(const QString &path, Watcher *watcher)
{
    m_reading.remove(path);
    watcher->deleteLater();
    const QImage picture = watcher->future().resultCount() > 0 ? watcher->result() : QImage();
    if (picture.isNull())
        m_pictures.remove(path);
    else
        m_pictures.insert(path, picture);
    Q_EMIT ready(path);
}

void FileThumbnails::forget()
{
    for (Watcher *watcher : std::as_const(m_reading)) {
        watcher->disconnect(this);
        watcher->cancel();
        watcher->deleteLater();
    }
    m_reading.clear();
    m_pictures.clear();
}

} // namespace tessaly
