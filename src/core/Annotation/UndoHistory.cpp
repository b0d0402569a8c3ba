// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/UndoHistory.h"

namespace tessaly {

UndoHistory::UndoHistory(std::size_t maxSteps) : m_maxSteps(maxSteps) { }

void UndoHistory::record(Step before)
{
    m_redo.clear();
    m_dropped.reset();
    m_undo.push_back(std::move(before));
    if (m_undo.size() > m_maxSteps) {
        m_dropped = std::move(m_undo.front());
        m_undo.pop_front();
    }
}

static std::optional<UndoHistory::Step> moveOne(
    std::deque<UndoHistory::Step> &from, std::deque<UndoHistory::Step> &to, UndoHistory::Step current)
{
    if (from.empty())
        return std::nullopt;
    UndoHistory::Step newest = std::move(from.back());
    from.pop_back();
    to.push_back(std::move(current));
    return newest;
}

std::optional<UndoHistory::Step> UndoHistory::undo(Step current)
{
    m_dropped.reset();
    return moveOne(m_undo, m_redo, std::move(current));
}

std::optional<UndoHistory::Step> UndoHistory::redo(Step current)
{
    m_dropped.reset();
    return moveOne(m_redo, m_undo, std::move(current));
}

std::optional<UndoHistory::Step> UndoHistory::discardNewest()
{
    if (m_undo.empty())
        return std::nullopt;
    Step newest = std::move(m_undo.back());
    m_undo.pop_back();
    if (m_dropped)
        m_undo.push_front(*std::exchange(m_dropped, std::nullopt));
    return newest;
}

} // namespace tessaly
