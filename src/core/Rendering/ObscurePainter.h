// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"

#include <QColor>

#include <optional>

namespace tessaly {

/// The opaque colour of a mark that leaves nothing of what it covers; empty for a mark that does not promise that.
std::optional<QColor> hidingColor(const Annotation &mark);

} // namespace tessaly
