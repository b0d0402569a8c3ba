// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/StepSeries.h"

#include <QScopedValueRollback>

namespace tessaly {

StepSeries::StepSeries(AnnotationStore &store, const Clock &clock) : m_store(store), m_clock(clock)
{
    connect(&store, &AnnotationStore::changed, this, [this] {
        if (!m_isStepping)
            m_kind.reset();
    });
}

bool StepSeries::goesOn(Kind kind) const
{
    constexpr qint64 pause = 1000; // milliseconds
    const qint64 since = m_last.msecsTo(m_clock.now());
    return m_kind == kind && since >= 0 && since <= pause;
}

void StepSeries::step(Kind kind, const std::function<Annotation(const Annotation &)> &change)
{
    const Annotation *mark = m_store.selected();
    if (!mark)
        return;
    const Annotation changed = change(*mark);
    const bool isSame = changed == *mark;
    const QScopedValueRollback stepping(m_isStepping, true);
    if (!isSame)
        m_store.updateSelection(
            goesOn(kind) ? Undo::Skip : Undo::Record, [&](Annotation &target) { target = changed; });
    if (kind == Kind::Wheel)
        m_store.adoptStyle(changed);
    if (isSame && !goesOn(kind))
        return;
    m_kind = kind;
    m_last = m_clock.now();
}

} // namespace tessaly
