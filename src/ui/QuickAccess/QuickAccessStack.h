// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QRect>

namespace tessaly {

class Settings;

/// Where thumbnails lie on a screen. Points of the whole desktop.
namespace QuickAccessStack {

constexpr int distanceFromEdges = 16;
constexpr int spacing = 10;
constexpr int slide = 40; ///< a new thumbnail begins this far outside its place
constexpr int mostItems = 6;

enum class Corner { BottomRight, BottomLeft };

/// "quickAccessCorner".
Corner chosenCorner(const Settings &settings);

/// The places in the corner of a screen's available area: the first lies in the corner, each other above the one
/// before it; when the area's height is used up, the next column begins beside the last. There are none for those
/// that would leave the area.
QList<QRect> places(const QList<QSize> &sizes, const QRect &area, Corner corner);

/// Where a thumbnail begins on its way to its place.
QPoint outside(const QRect &place, Corner corner);

} // namespace QuickAccessStack

} // namespace tessaly
