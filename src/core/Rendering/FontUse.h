// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Frame/Watermark.h"

namespace tessaly {

/// Whether drawing these needs the font database, and so a QGuiApplication.
bool needsFonts(const QList<Annotation> &annotations, const std::optional<Watermark> &watermark);

} // namespace tessaly
