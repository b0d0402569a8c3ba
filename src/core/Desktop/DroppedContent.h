// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

class QMimeData;

namespace tessaly {

/// What was dropped on a window, or would be: files of this machine, else a picture. What lies elsewhere is never
/// fetched.
struct DroppedContent {
    QStringList paths {}; ///< of files and folders of this machine, each once
    QByteArray picture {}; ///< a picture file, where there are no paths; empty when it could not be had
    bool hasPicture = false; ///< also before the picture itself was asked for
    bool hasLinks = false; ///< some of it lies elsewhere: a page, or another machine's file

    /// What is offered, without asking the program that it comes from for a picture. Whatever is offered here is worth
    /// a drop, be it only to say why it cannot be opened.
    static DroppedContent offered(const QMimeData &data);
    /// The same with the picture.
    static DroppedContent taken(const QMimeData &data);

    bool isEmpty() const { return paths.isEmpty() && !hasPicture && !hasLinks; }
    /// Why not all of it is opened, as a sentence; empty when all is.
    QString refusal() const;
};

} // namespace tessaly
