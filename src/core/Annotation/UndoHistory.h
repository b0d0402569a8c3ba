// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/PictureArchive.h"
#include "core/Annotation/Snapshot.h"

#include <deque>

namespace tessaly {

/// The two stacks behind undo and redo of one open capture.
///
/// It keeps whole states and no commands: the parts of a Snapshot are implicitly shared, so a step costs the list of
/// marks and not another copy of the picture. Where the picture itself changes, an archive keeps those before. Main
/// thread only.
class UndoHistory {
public:
    /// The capture as it was, and whether it then had changes that were not saved.
    struct Step {
        Snapshot content;
        bool hasUnsavedChanges = false;
    };

    /// The most that packed pictures take. With the latest ones as they are, and what a program needs anyway, an
    /// editor of a screen of 3840 × 2160 then stays below 400 MiB.
    static constexpr qint64 pictureBudgetBytes = qint64(160) << 20;

    explicit UndoHistory(std::size_t maxSteps = 100, qint64 pictureBudget = pictureBudgetBytes);

    /// Remembers `before`, the state that the coming change starts from. Drops the oldest step beyond the limit, and
    /// everything that could have been redone.
    void record(Step before);

    /// The change that was recorded last is this edit of the picture, and `result` what applied() made by it. Without
    /// being told, the history keeps every picture for itself.
    void edited(const ImageEdit &edit, const RasterImage &result);

    /// The state to put back; `current` becomes the step in the other direction. Empty, and nothing moves, when there
    /// is no step to take, or no memory for its picture.
    [[nodiscard]] std::optional<Step> undo(Step current);
    [[nodiscard]] std::optional<Step> redo(Step current);

    /// Forgets the newest recorded step and gives it back: the change that it stood for never happened. What could be
    /// redone before it can be again, and a step that was dropped to make room for it stands again.
    std::optional<Step> discardNewest();

    bool canUndo() const { return !m_undo.empty(); }
    bool canRedo() const { return !m_redo.empty(); }

    /// What older pictures take now, and the end of work on them.
    qint64 packedBytes() const { return m_pictures.packedBytes(); }
    void finishPacking() { m_pictures.finishPacking(); }

private:
    /// A step whose picture lies in the archive.
    struct Kept {
        Snapshot content; ///< without pixels
        PictureArchive::Picture picture;
        bool hasUnsavedChanges = false;
    };

    /// What had to make way for the newest recorded step.
    struct Displaced {
        std::deque<Kept> redo;
        std::optional<Kept> oldest; ///< of the steps to undo, when there were too many
    };

    Kept kept(Step step);
    std::optional<Step> moveOne(std::deque<Kept> &from, std::deque<Kept> &to, Step current);

    PictureArchive m_pictures;
    std::deque<Kept> m_undo;
    std::deque<Kept> m_redo;
    std::optional<Displaced> m_displaced; ///< by the newest record, until something else moves
    std::size_t m_maxSteps;
};

} // namespace tessaly
