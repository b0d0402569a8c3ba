// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"

#include <QMimeData>

#include <functional>
#include <optional>

namespace tessaly {

/// A picture on its way to another program: PNG data and a PNG file, each made when it is asked for.
class DraggedPicture : public QMimeData {
    Q_OBJECT

public:
    /// `picture` is asked once, when a receiver first wants something; empty when it cannot be made. `fileName` has no
    /// extension. The file is written below `temporaryFolder`, which belongs to the user alone.
    DraggedPicture(std::function<std::optional<RasterImage>()> picture, QString fileName, QString temporaryFolder);

    QStringList formats() const override;
    bool hasFormat(const QString &type) const override;

protected:
    QVariant retrieveData(const QString &type, QMetaType wanted) const override;

private:
    const QByteArray &png() const;
    QString file() const;

    std::function<std::optional<RasterImage>()> m_picture;
    QString m_fileName;
    QString m_temporaryFolder;
    mutable std::optional<QByteArray> m_png; ///< empty when there is no picture
    mutable std::optional<QString> m_file; ///< empty when it could not be written
};

} // namespace tessaly
