// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationStore.h"

namespace tessaly {

/// Joins the changes of one adjustment (a slider's drag, the typing in a field) into one undo step.
class Adjustment {
public:
    void begin()
    {
        m_active = true;
        m_recorded = false;
    }
    void end() { m_active = false; }
    bool isActive() const { return m_active; }

    /// Whether the coming change leaves an undo step: the first of an adjustment does, and any outside of one.
    Undo next()
    {
        const bool skips = m_active && m_recorded;
        m_recorded = true;
        return skips ? Undo::Skip : Undo::Record;
    }

private:
    bool m_active = false;
    bool m_recorded = false;
};

} // namespace tessaly
