// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkGesture.h"

namespace tessaly {

MarkGesture::MarkGesture(EditingContext &context, const Annotation &mark) :
    m_context(context),
    m_original(mark),
    m_snapping(context)
{
}

void MarkGesture::begin()
{
    m_change.emplace(m_context.store);
    m_context.select(m_original);
    m_snapping.start(m_original.id);
}

void MarkGesture::put(const Annotation &mark)
{
    const Annotation *present = m_context.store.selected();
    if (!present || *present == mark)
        return;
    m_context.store.updateSelection(Undo::Skip, [&](Annotation &target) { target = mark; });
}

} // namespace tessaly
