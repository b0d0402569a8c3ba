// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/CanvasController.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Preferences/Settings.h"
#include "core/Rendering/TextGeometry.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/SampleMarks.h"

#include <QRandomGenerator>
#include <QTest>

using namespace tessaly;

/// Whatever the pointer does with whatever is held, a gesture can be taken back, and leaves at most one undo step.
class CanvasControllerTest : public QObject {
    Q_OBJECT

    struct Editor {
        Settings settings { QString() };
        AnnotationStore store { RasterImage { QImage(960, 640, QImage::Format_RGB32), test::sampleCanvas }, settings };
        TextGeometry text;
        test::FakeClock clock;
        CanvasController controller { store, text, clock };
    };

    /// Everything that a cancelled gesture must leave as it was.
    struct State {
        Snapshot content;
        std::optional<QUuid> selected;
        ToolStyle style;
        QRectF crop;
        bool unsaved, canUndo;
        bool operator==(const State &) const = default;

        explicit State(const AnnotationStore &store) :
            content(store.currentSnapshot()),
            selected(store.selectedID()),
            style(store.toolStyle()),
            crop(store.cropRect()),
            unsaved(store.hasUnsavedChanges()),
            canUndo(store.canUndo())
        {
        }
    };

    static QPointF anywhere(QRandomGenerator &random)
    {
        return { random.bounded(1100.0) - 70, random.bounded(780.0) - 70 };
    }

    static Qt::KeyboardModifiers someModifiers(QRandomGenerator &random)
    {
        Qt::KeyboardModifiers modifiers;
        for (const auto modifier : { Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier })
            modifiers.setFlag(modifier, random.bounded(3) == 0);
        return modifiers;
    }

    /// A tool, a selected mark, a zoom, and a press: on one of the handles when the dice say so.
    static void begin(Editor &editor, QRandomGenerator &random)
    {
        const auto &marks = editor.store.annotations();
        editor.controller.setTransform({ 0.3 + random.bounded(3.0), { 20, 10 } });
        editor.store.activate(enumNames<Tool>[size_t(random.bounded(int(enumNames<Tool>.size())))].value);
        if (random.bounded(3) > 0)
            editor.store.setSelectedID(marks[random.bounded(marks.size())].id);
        const auto handles = editor.controller.adornments().handles;
        QPointF at = editor.controller.transform().toView(anywhere(random));
        if (!handles.isEmpty() && random.bounded(2) == 0) {
            const Handle &handle = handles[random.bounded(handles.size())];
            at = editor.controller.transform().toView(handle.position) + handle.viewOffset;
        }
        editor.controller.press({ at, Qt::LeftButton, Qt::LeftButton, someModifiers(random) });
    }

    static void dragAround(Editor &editor, QRandomGenerator &random)
    {
        const int moves = 2 + random.bounded(6);
        for (int move = 0; move < moves; ++move) {
            const QPointF to = editor.controller.transform().toView(anywhere(random));
            editor.controller.setSpaceHeld(random.bounded(4) == 0);
            editor.controller.move({ to, Qt::NoButton, Qt::LeftButton, someModifiers(random) });
            editor.controller.setModifiers(someModifiers(random));
            editor.controller.wheel(random.bounded(3) - 1, {});
        }
        editor.controller.setSpaceHeld(false);
    }

private Q_SLOTS:
    void anyGestureCanBeTakenBack_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 6; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void anyGestureCanBeTakenBack()
    {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        Editor editor;
        editor.store.setAnnotations(test::oneOfEachKind());
        for (int round = 0; round < 60; ++round) {
            editor.store.cancelCrop();
            begin(editor, random);
            const State before(editor.store);
            dragAround(editor, random);
            editor.controller.press({ {}, Qt::RightButton, Qt::LeftButton | Qt::RightButton });
            QVERIFY2(State(editor.store) == before, qPrintable(QString::number(round)));
            editor.controller.release({ {}, Qt::LeftButton });
            QVERIFY(State(editor.store) == before);
        }
    }

    void anyGestureIsAtMostOneStep_data() { anyGestureCanBeTakenBack_data(); }
    void anyGestureIsAtMostOneStep()
    {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        for (int round = 0; round < 25; ++round) {
            Editor editor;
            editor.store.setAnnotations(test::oneOfEachKind());
            const Snapshot before = editor.store.currentSnapshot();
            begin(editor, random);
            dragAround(editor, random);
            editor.controller.release({ { 100, 100 }, Qt::LeftButton });
            const Snapshot after = editor.store.currentSnapshot();
            QCOMPARE(editor.store.canUndo(), after != before);
            editor.store.undo();
            QCOMPARE(editor.store.currentSnapshot(), before);
            QVERIFY(!editor.store.canUndo());
            for (const Annotation &mark : after.annotations)
                QVERIFY(
                    mark.kind != AnnotationKind::Rectangle || (mark.rect().width() >= 1 && mark.rect().height() >= 1));
        }
    }
};

QTEST_MAIN(CanvasControllerTest)
#include "CanvasControllerTest.moc"
