// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationDocument.h"
#include "core/Base/SafeFile.h"
#include "core/Imaging/ImageReading.h"
#include "core/Rendering/FrameComposition.h"

namespace tessaly {

class AnnotationStore;

/// The editable document: a folder with the extension "tessaly" that holds the capture as PNG, the marks as JSON and a
/// thumbnail of the finished picture.
namespace TessalyDocument {

/// What a package holds, in memory.
struct Package {
    QByteArray documentJson; ///< "document.json"
    QByteArray imagePng; ///< "image.png", the capture without marks
    std::optional<QByteArray> thumbnailPng; ///< "QuickLook/Thumbnail.png"
};

/// A package as it was read.
struct Contents {
    AnnotationDocument document;
    RasterImage image; ///< its point size is the document's canvas, or the PNG's pixels without a usable one
};

enum class FailureKind { NewerVersion, Damaged };

struct Failure {
    FailureKind kind = FailureKind::Damaged;
    int version = 0; ///< of the document, for NewerVersion
    QString detail; ///< what exactly is wrong with a damaged document, as a sentence; not compared

    /// The sentence for the user.
    QString description() const;
    bool operator==(const Failure &other) const { return kind == other.kind && version == other.version; }
};

/// All of a capture that a package is made of, as it is at one moment: a value that another thread may take.
struct Source {
    AnnotationDocument document;
    FrameComposition finished; ///< holds the picture
};
Source source(const AnnotationStore &store);

/// The package of an open capture. Without a thumbnail it is still whole.
Result<Package, Failure> package(const Source &source);
Result<Package, Failure> package(const AnnotationStore &store);

Result<Package> package(
    const AnnotationDocument &document, QByteArray imagePng, std::optional<QByteArray> thumbnailPng);

/// The files of a package's folder, by their paths in it.
QList<SafeFile::Entry> entries(const Package &package);

/// Writes the package whole; one that stands at `path` is replaced only when the new one is complete. A folder that is
/// no package is never replaced.
Outcome write(const Package &package, const QString &path);

/// Whether the path names a document: by its extension, or by being a folder that holds one.
bool isDocument(const QString &path);

/// Reads a package. Entries must be regular files inside the folder; links are not followed. A canvas that stands for
/// less than 0.01 or more than 100 pixels a point is taken as none; the resolution that `options` asks for is not used.
Result<Contents, Failure> contents(const QString &path, const ImageReadOptions &options = {});

/// "Tessaly <version> (<build>)".
QString generator();

/// The PNG of the picture scaled so that its longer side is at most 1024 pixels, never enlarged; empty if it fails.
/// Without a number of threads it takes the processor's.
std::optional<QByteArray> thumbnailPng(const RasterImage &image, int threads = 0);

} // namespace TessalyDocument

} // namespace tessaly
