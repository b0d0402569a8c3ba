// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/UndoableChange.h"

namespace tessaly {

UndoableChange::UndoableChange(AnnotationStore &store) :
    m_store(store),
    m_before(store.currentSnapshot()),
    m_selectedID(store.selectedID()),
    m_style(store.toolStyle())
{
    store.beginChange();
}

UndoableChange::~UndoableChange()
{
    if (!m_isOpen)
        return;
    m_store.restore(m_before);
    discardStep();
    m_store.setToolStyle(m_style);
    m_store.setSelectedID(m_selectedID);
}

void UndoableChange::keep()
{
    m_isOpen = false;
    const bool isSame = m_store.annotations() == m_before.annotations;
    if (!isSame)
        return;
    const auto selection = m_store.selectedID();
    m_store.restore(m_before);
    discardStep();
    m_store.setSelectedID(selection);
}

// No mark has the null identity: only the step goes, and with it that there is something to save.
void UndoableChange::discardStep() { m_store.cancelLastChange(QUuid()); }

} // namespace tessaly
