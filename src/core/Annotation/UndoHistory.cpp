// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/UndoHistory.h"

namespace tessaly {

UndoHistory::UndoHistory(std::size_t maxSteps, qint64 pictureBudget) : m_pictures(pictureBudget), m_maxSteps(maxSteps)
{
}

UndoHistory::Kept UndoHistory::kept(Step step)
{
    PictureArchive::Picture picture = m_pictures.enter(step.content.image);
    step.content.image = {};
    return { std::move(step.content), std::move(picture), step.hasUnsavedChanges };
}

void UndoHistory::record(Step before)
{
    m_displaced = Displaced { std::exchange(m_redo, {}), std::nullopt };
    m_undo.push_back(kept(std::move(before)));
    if (m_undo.size() > m_maxSteps) {
        m_displaced->oldest = std::move(m_undo.front());
        m_undo.pop_front();
    }
}

void UndoHistory::edited(const ImageEdit &edit, const RasterImage &result)
{
    m_displaced.reset(); // it happened: no picture needs to be kept for it
    m_pictures.edited(edit, result);
}

std::optional<UndoHistory::Step> UndoHistory::moveOne(std::deque<Kept> &from, std::deque<Kept> &to, Step current)
{
    if (from.empty())
        return std::nullopt;
    Kept present = kept(std::move(current));
    auto image = m_pictures.image(from.back().picture);
    if (!image)
        return std::nullopt;
    Kept newest = std::move(from.back());
    from.pop_back();
    to.push_back(std::move(present));
    m_pictures.show(newest.picture, *image);
    newest.content.image = *std::move(image);
    return Step { std::move(newest.content), newest.hasUnsavedChanges };
}

std::optional<UndoHistory::Step> UndoHistory::undo(Step current)
{
    m_displaced.reset();
    return moveOne(m_undo, m_redo, std::move(current));
}

std::optional<UndoHistory::Step> UndoHistory::redo(Step current)
{
    m_displaced.reset();
    return moveOne(m_redo, m_undo, std::move(current));
}

std::optional<UndoHistory::Step> UndoHistory::discardNewest()
{
    if (m_undo.empty())
        return std::nullopt;
    Kept newest = std::move(m_undo.back());
    m_undo.pop_back();
    newest.content.image = m_pictures.image(newest.picture).value_or(RasterImage());
    if (auto displaced = std::exchange(m_displaced, std::nullopt)) {
        m_redo = std::move(displaced->redo);
        if (displaced->oldest)
            m_undo.push_front(*std::move(displaced->oldest));
    }
    return Step { std::move(newest.content), newest.hasUnsavedChanges };
}

} // namespace tessaly
