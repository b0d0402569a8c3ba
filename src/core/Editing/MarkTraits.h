// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Annotation/Tool.h"

namespace tessaly {

/// What reshapes a mark: its two ends, its box, its font size, or its path.
enum class MarkForm { Line, Box, Text, Path };

/// The quantity of a mark that a notch of the wheel changes.
struct WheelField {
    double Annotation::*member = nullptr; ///< none: the mark grows about its centre
    double step = 0;
    double least = 0, most = 0;
};

/// How a kind of mark answers on the canvas.
struct MarkTraits {
    AnnotationKind kind;
    Tool tool; ///< that makes it
    MarkForm form;
    WheelField wheel = {};
    bool isPlaced = false; ///< a click with its tool makes one
    bool keepsRatio = false; ///< when a corner is dragged; Shift frees it
    double placedSize = 0; ///< points, both ways, where a click makes a box
};

const MarkTraits &traitsOf(AnnotationKind kind);

/// Of the marks that a tool makes; null for a tool that draws nothing.
const MarkTraits *traitsMadeBy(Tool tool);

/// The mark after that many notches of the wheel; unchanged at the end of the range.
Annotation afterWheel(Annotation mark, int notches);

/// What a person calls the mark, for a screen reader: "Arrow", "Text “Hello”".
QString spokenName(const Annotation &mark);

} // namespace tessaly
