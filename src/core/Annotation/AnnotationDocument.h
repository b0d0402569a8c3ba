// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Frame/FrameStyle.h"
#include "core/Frame/Watermark.h"

#include <QSizeF>

namespace tessaly {

/// The marks of one capture as they are stored.
struct AnnotationDocument {
    /// The format that this program writes.
    static constexpr int currentVersion = 1;

    /// The longest JSON text that is read, in bytes, and the most marks in it.
    static constexpr qint64 maxJsonBytes = qint64(128) * 1024 * 1024;
    static constexpr int maxAnnotations = 50'000;

    /// The most JSON keys and values, above a million points of pen strokes: what a hostile text of brackets can make
    /// the parser take stays below 700 MB.
    static constexpr int maxJsonValues = 8'000'000;

    int version = currentVersion;
    QSizeF canvasSize { 0, 0 }; ///< points
    QList<Annotation> annotations; ///< the first is drawn first
    int nextStampNumber = 1;
    std::optional<QSizeF> pixelSize;
    std::optional<QString> generator;
    std::optional<FrameStyle> frame;
    std::optional<Watermark> watermark;

    /// How many marks could not be read; never stored.
    int skippedAnnotations = 0;

    /// Why the first of them could not be read; never stored and not compared.
    QString firstSkippedReason;

    /// Pretty-printed JSON with sorted keys: equal documents give equal bytes. Fails for a number that JSON cannot
    /// hold, and for what would be too much to read back.
    Result<QByteArray> encoded() const;

    /// A mark that cannot be read is left out and counted; anything else that is wrong fails. The sentence says what
    /// and where, and not in which file.
    static Result<AnnotationDocument> decoded(const QByteArray &json);

    /// The same of either a document or a bare list of marks, which stands for a document without canvas.
    static Result<AnnotationDocument> decodedDocumentOrList(const QByteArray &json);

    /// The version that a text names, also when the rest of it cannot be decoded; 1 when it names none.
    static int probedVersion(const QByteArray &json);

    bool operator==(const AnnotationDocument &other) const;
};

/// A frame or a watermark from the JSON of the record alone, or of a document that has one.
Result<FrameStyle> decodedFrame(const QByteArray &json);
Result<Watermark> decodedWatermark(const QByteArray &json);

} // namespace tessaly
