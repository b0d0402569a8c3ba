// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text/RecognizedContent.h"

#include <QImage>

namespace tessaly {

/// The bar codes and matrix codes of a picture in Format_Grayscale8, at any right angle, also light on dark, in no
/// particular order and each payload as often as it is found.
[[nodiscard]] QList<RecognizedContent::Code> readCodes(const QImage &gray);

} // namespace tessaly
