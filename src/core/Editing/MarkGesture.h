// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/EditingContext.h"
#include "core/Editing/Gesture.h"
#include "core/Editing/GestureSnapping.h"
#include "core/Editing/UndoableChange.h"

namespace tessaly {

/// A gesture on one mark, which it selects. Every update starts anew from the mark as it was, so that nothing adds up.
class MarkGesture : public Gesture {
public:
    void begin() override;
    void finish() override { m_change->keep(); }
    void abandon() override { m_change->abandon(); }
    QList<QLineF> guides() const override { return m_snapping.guides(); }

protected:
    /// Keeps the reference to the context.
    MarkGesture(EditingContext &context, const Annotation &mark);

    /// Gives the selected mark this shape.
    void put(const Annotation &mark);

    const Annotation &original() const { return m_original; }
    EditingContext &context() const { return m_context; }
    GestureSnapping &snapping() { return m_snapping; }
    UndoableChange &change() { return *m_change; }

private:
    EditingContext &m_context;
    Annotation m_original;
    GestureSnapping m_snapping;
    std::optional<UndoableChange> m_change;
};

} // namespace tessaly
