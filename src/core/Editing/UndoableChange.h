// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationStore.h"

namespace tessaly {

/// One undo step in the making: recorded when this is made, and taken back, with the selection and the tool's style,
/// when this is destroyed without having been kept.
class UndoableChange {
public:
    /// Keeps the reference.
    explicit UndoableChange(AnnotationStore &store);
    ~UndoableChange();
    Q_DISABLE_COPY_MOVE(UndoableChange)

    /// What was before the change.
    const Snapshot &before() const { return m_before; }

    /// Lets the change stand. One that came to nothing leaves no step.
    void keep();

    /// Leaves everything as it is: the step was taken back by someone else.
    void abandon() { m_isOpen = false; }

private:
    void discardStep();

    AnnotationStore &m_store;
    Snapshot m_before;
    std::optional<QUuid> m_selectedID;
    ToolStyle m_style;
    bool m_isOpen = true;
};

} // namespace tessaly
