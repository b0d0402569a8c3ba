// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/SavedStyles.h"

#include <QObject>

namespace tessaly {

/// The colours that the keys 1 to 9 and the options bar's swatches offer, in order.
inline constexpr std::array<const char *, 9> paletteColors { "#FF3366", "#FF9500", "#FFCC00", "#34C759", "#2E7DF6",
    "#5E5CE6", "#FFFFFF", "#8E8E93", "#1D1D1F" };

/// The style that was copied last, shared by all editors.
class CopiedStyle {
public:
    std::optional<Annotation> mark; ///< whose style it is
};

enum class Order { Forward, Backward, ToFront, ToBack };

/// The commands on the selected mark that need neither pointer nor clipboard. Each that changes something is one undo
/// step.
class MarkCommands {
public:
    /// Keeps the references.
    MarkCommands(AnnotationStore &store, SavedStyles &styles, CopiedStyle &copiedStyle);

    bool canActOnSelection() const;
    /// At +10, +10; again repeats the offset that the copy was moved by since.
    void duplicate();
    void reorder(Order order);
    void copyStyle();
    bool canPasteStyle() const;
    void pasteStyle();
    /// 1 to 9: the colour for new marks and the selected one.
    void applyPaletteColor(int number);
    /// 1 to 9: the n-th saved style of the tool, or of the selected mark's tool; nothing when there is none.
    void applySavedStyle(int number);

private:
    AnnotationStore &m_store;
    SavedStyles &m_styles;
    CopiedStyle &m_copiedStyle;
    std::optional<QUuid> m_original, m_duplicate; ///< of the last duplicate()
};

/// The tool that makes marks of a kind.
Tool toolOf(AnnotationKind kind);

} // namespace tessaly
