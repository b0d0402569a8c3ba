// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationDocument.h"
#include "core/Imaging/ImageReading.h"

/// Marks and logos that cannot be used as they stand: found before anything is drawn, so that they can be named.
namespace tessaly::MarkCheck {

/// Takes out of `document` the marks that cannot be drawn and a watermark whose logo is no picture. The sentence counts
/// them, and those that are drawn with a value brought into range; empty when all is well.
std::optional<QString> setAside(AnnotationDocument &document, const ImageReadOptions &options);

/// What is wrong with a watermark's logo, as a sentence; empty when nothing is.
std::optional<QString> problem(const Watermark &watermark, const ImageReadOptions &options);

} // namespace tessaly::MarkCheck
