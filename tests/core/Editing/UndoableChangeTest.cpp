// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/UndoableChange.h"

#include "core/Preferences/Settings.h"
#include "tests/support/SampleMarks.h"

#include <QTest>

using namespace tessaly;

/// A change that is kept, one that came to nothing, and one that is taken back.
class UndoableChangeTest : public QObject {
    Q_OBJECT

    Settings m_settings { QString() };
    AnnotationStore m_store { RasterImage { QImage(40, 30, QImage::Format_RGB32), { 40, 30 } }, m_settings };

    void changeAll()
    {
        m_store.append(Annotation(AnnotationKind::Line, { 1, 1 }, { 5, 5 }));
        m_store.setNextStampNumber(9);
        m_store.setSelectedID(m_store.annotations().last().id);
        ToolStyle style = m_store.toolStyle();
        style.lineWidth += 1;
        m_store.setToolStyle(style);
    }

private Q_SLOTS:
    void takenBackItPutsEverythingBack()
    {
        m_store.setAnnotations(test::manyMarks(3));
        m_store.setSelectedID(m_store.annotations()[1].id);
        const Snapshot before = m_store.currentSnapshot();
        const ToolStyle style = m_store.toolStyle();
        {
            const UndoableChange change(m_store);
            changeAll();
            QVERIFY(m_store.hasUnsavedChanges());
        }
        QCOMPARE(m_store.currentSnapshot(), before);
        QCOMPARE(m_store.toolStyle(), style);
        QCOMPARE(m_store.selectedID(), before.annotations[1].id);
        QVERIFY(!m_store.hasUnsavedChanges());
        QVERIFY(!m_store.canUndo());
    }

    void takenBackItLeavesWhatCouldBeRedone()
    {
        for (int change = 0; change < 2; ++change) {
            m_store.beginChange();
            changeAll();
        }
        const Snapshot done = m_store.currentSnapshot();
        m_store.undo();
        m_store.undo();
        for (int time = 0; time < 2; ++time) {
            const UndoableChange change(m_store);
            changeAll();
            QVERIFY(!m_store.canRedo());
        }
        m_store.redo();
        m_store.redo();
        QCOMPARE(m_store.currentSnapshot(), done);
        m_store.undo();
        m_store.undo();
        m_store.setHasUnsavedChanges(false);
    }

    void keptItIsOneStep()
    {
        const Snapshot before = m_store.currentSnapshot();
        {
            UndoableChange change(m_store);
            changeAll();
            change.keep();
        }
        QCOMPARE(m_store.nextStampNumber(), 9);
        m_store.undo();
        QCOMPARE(m_store.currentSnapshot(), before);
        QVERIFY(!m_store.canUndo());
    }

    void keptWithoutADifferenceItIsNone()
    {
        m_store.setSelectedID(m_store.annotations().first().id);
        const bool unsaved = m_store.hasUnsavedChanges();
        {
            UndoableChange change(m_store);
            m_store.updateSelection(Undo::Skip, [](Annotation &mark) { mark.p1 += QPointF(1, 0); });
            m_store.updateSelection(Undo::Skip, [](Annotation &mark) { mark.p1 -= QPointF(1, 0); });
            change.keep();
        }
        QVERIFY(!m_store.canUndo());
        QCOMPARE(m_store.hasUnsavedChanges(), unsaved);
        QVERIFY(m_store.selected());
    }
};

QTEST_GUILESS_MAIN(UndoableChangeTest)
#include "UndoableChangeTest.moc"
