// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/MarkLimits.h"

namespace tessaly::MarkLimits {

std::optional<QString> problem(const Annotation &) { return std::nullopt; }
std::optional<Annotation> drawable(const Annotation &mark) { return mark; }

} // namespace tessaly::MarkLimits
