// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

#include <QByteArray>

/// The entries of a package on the disk.
namespace tessaly::PackageFolder {

inline constexpr char documentName[] = "document.json";
inline constexpr char imageName[] = "image.png";
inline constexpr char thumbnailFolder[] = "QuickLook";
inline constexpr char thumbnailName[] = "QuickLook/Thumbnail.png";

/// The folder of a package, held open so that its entries cannot change places while they are read.
class Reader {
public:
    explicit Reader(const QString &path);
    ~Reader();
    Reader(const Reader &) = delete;
    Reader &operator=(const Reader &) = delete;

    /// The content of a regular file of the folder. A link is not followed, and more than `limit` bytes is a failure;
    /// the sentence says what is wrong with the entry.
    Result<QByteArray> entry(const char *name, qint64 limit) const;

private:
    int m_folder;
};

/// Whether the folder may be replaced by a package: it holds one, be it damaged, or nothing at all.
bool isReplaceable(const QString &path);

/// Whether both files of a package are there.
bool holdsPackage(const QString &path);

} // namespace tessaly::PackageFolder
