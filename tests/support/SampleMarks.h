// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationDocument.h"

class QRandomGenerator;

namespace tessaly::test {

/// The canvas in points that the marks of oneOfEachKind are laid out on.
inline constexpr QSizeF sampleCanvas { 960, 640 };

/// Every kind of mark, and of each kind every head, glyph, style and shape that draws differently, side by side in
/// rows. The same marks with the same identities on every call. Two spotlights dim the rest of the canvas.
QList<Annotation> oneOfEachKind();

/// `count` of these marks in turn, each moved to its own place on the canvas and with its own identity.
QList<Annotation> manyMarks(int count);

/// A small opaque picture as the bytes of a PNG file.
QByteArray samplePng(QSize pixelSize = { 24, 16 });

/// A mark whose every field is drawn at random from what a file can hold, including odd texts and large numbers.
Annotation randomMark(QRandomGenerator &random);

/// A document of up to `maxMarks` random marks with every optional field there or not.
AnnotationDocument randomDocument(QRandomGenerator &random, int maxMarks);

} // namespace tessaly::test
