// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Imaging/RasterImage.h"

#include <QMimeData>
#include <QObject>
#include <QThreadPool>

#include <functional>
#include <memory>

namespace tessaly {

/// The finished pictures of captures of the history, made from their packages on another thread.
class EntryPicture : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    /// Waits for what is being made.
    ~EntryPicture() override;

    /// The package's picture with its marks, frame and watermark. Any thread.
    static Result<RasterImage> flattened(const QString &packagePath);

    /// Calls `taken` on the main thread, unless something else was asked for meanwhile.
    void make(const QString &packagePath, std::function<void(Result<RasterImage>)> taken);

    /// Data for a drag. The picture is begun at once; a receiver that asks for it waits until it is there.
    static std::unique_ptr<QMimeData> dragData(const QString &packagePath, const QString &fileName);

private:
    QThreadPool m_pool;
    quint64 m_wanted = 0; ///< number of the newest request
};

} // namespace tessaly
