// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Snapshot.h"

#include <deque>

namespace tessaly {

/// The two stacks behind undo and redo of one open capture.
///
/// It keeps whole states and no commands: the parts of a Snapshot are implicitly shared, so a step costs the list of
/// marks and not another copy of the picture. Main thread only.
class UndoHistory {
public:
    /// The capture as it was, and whether it then had changes that were not saved.
    struct Step {
        Snapshot content;
        bool hasUnsavedChanges = false;
    };

    explicit UndoHistory(std::size_t maxSteps = 100);

    /// Remembers `before`, the state that the coming change starts from. Drops the oldest step beyond the limit, and
    /// everything that could have been redone.
    void record(Step before);

    /// The state to put back; `current` becomes the step in the other direction. Empty, and nothing moves, when there
    /// is no step to take.
    [[nodiscard]] std::optional<Step> undo(Step current);
    [[nodiscard]] std::optional<Step> redo(Step current);

    /// Forgets the newest recorded step and gives it back: the change that it stood for never happened. A step that
    /// was dropped to make room for it stands again.
    std::optional<Step> discardNewest();

    bool canUndo() const { return !m_undo.empty(); }
    bool canRedo() const { return !m_redo.empty(); }

private:
    std::deque<Step> m_undo;
    std::deque<Step> m_redo;
    std::optional<Step> m_dropped; ///< by the newest record, until something else moves
    std::size_t m_maxSteps;
};

} // namespace tessaly
