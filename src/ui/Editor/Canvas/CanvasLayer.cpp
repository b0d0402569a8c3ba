// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/CanvasLayer.h"

namespace tessaly {

bool CanvasLayer::isOver(QPointF) const { return false; }
Qt::CursorShape CanvasLayer::cursorAt(QPointF) const { return Qt::ArrowCursor; }
void CanvasLayer::hover(std::optional<QPointF>) { }
bool CanvasLayer::press(const PointerInput &) { return false; }
bool CanvasLayer::doubleClick(const PointerInput &) { return false; }
bool CanvasLayer::isDragging() const { return false; }
void CanvasLayer::drag(const PointerInput &) { }
void CanvasLayer::release(const PointerInput &) { }
bool CanvasLayer::key(const QKeyEvent &) { return false; }
bool CanvasLayer::canCopy() const { return false; }
void CanvasLayer::copy() { }
bool CanvasLayer::openMenu(std::optional<QPointF>) { return false; }
LayerMarks CanvasLayer::marks() const { return {}; }

} // namespace tessaly
