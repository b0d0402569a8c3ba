// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"

/// A stored mark may hold any number; these are the numbers that can be drawn.
namespace tessaly::MarkLimits {

/// The farthest that a point may lie from the picture's origin, in points.
inline constexpr double maxCoordinate = 1e6;

/// The longest pen path, in points, and the longest text, in UTF-16 units, that are drawn in full.
inline constexpr qsizetype maxPathPoints = 100'000;
inline constexpr qsizetype maxTextLength = 10'000;

/// What is out of range in a mark, as the end of a sentence ("its highlightOpacity is 7"); empty when all is well.
std::optional<QString> problem(const Annotation &mark);

/// The mark with its style brought into range, a longer path thinned and a longer text cut; empty when it lies where
/// nothing can be drawn. An area that hides is cut to the reachable part instead, so that what it covers stays hidden;
/// only one whose place is no number at all is lost.
std::optional<Annotation> drawable(const Annotation &mark);

} // namespace tessaly::MarkLimits
