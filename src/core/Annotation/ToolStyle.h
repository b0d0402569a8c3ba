// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"

namespace tessaly {

class Settings;

/// The style that new marks get, as the tool options show it. Lengths are image points.
///
/// Which of these fields belong to a kind of mark, and to which of its fields, is one table: a mark's style is adopted
/// and applied by the same rows.
struct ToolStyle {
    QString colorHex = QStringLiteral("#FF3366");
    double lineWidth = 20;
    bool rectFilled = false;
    bool ellipseFilled = false;
    bool arrowDoubleHeaded = false;
    ArrowHeadStyle arrowHead = ArrowHeadStyle::Tapered;
    double textSize = 18;
    bool textBold = false;
    bool textItalic = false;
    QString textFont; ///< family; empty is the system font
    StampKind stampKind = StampKind::Check;
    bool spotEllipse = true;
    double spotDim = 0.5;
    QString stickerEmoji = QStringLiteral("😀");
    ObscureStyle obscureStyle = ObscureStyle::Pixelate;
    double obscureStrength = 1;
    double highlightOpacity = 0.45;
    bool arrowCurved = false;
    double magnifierZoom = 2;
    bool magnifierRound = true;

    /// The style that the user chose to start with; an unknown name of a case is that of a new style.
    static ToolStyle fromSettings(const Settings &settings);

    /// Takes over from the mark the fields that belong to its kind, and leaves the others.
    void adopt(const Annotation &mark);

    /// Gives the mark the fields that belong to its kind.
    void applyTo(Annotation &mark) const;

    bool operator==(const ToolStyle &) const = default;
};

} // namespace tessaly
