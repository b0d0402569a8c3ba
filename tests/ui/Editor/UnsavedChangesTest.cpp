// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/UnsavedChangesAlert.h"

#include "core/Annotation/AnnotationStore.h"
#include "tests/support/Rows.h"
#include "tests/ui/Editor/EditorFixture.h"

using namespace tessaly;
using UnsavedChangesAlert::Answer;

/// The question before a capture closes, with each answer.
class UnsavedChangesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachAnswerDoesWhatItSays_data()
    {
        // target: of the panel; empty cancels it
        test::columns<bool, int, QString, int, bool>("dirty", "button", "target", "answer", "unsaved");
        test::row("nothing to ask", false, 1, "", int(Answer::Close), false);
        test::row("save", true, 0, "a.png", int(Answer::Close), false);
        test::row("save, panel cancelled", true, 0, "", int(Answer::Cancel), true);
        test::row("save, folder gone", true, 0, "gone/a.png", int(Answer::Cancel), true);
        test::row("cancel", true, 1, "", int(Answer::Cancel), true);
        test::row("don't save", true, 2, "", int(Answer::Discard), false);
    }

    void eachAnswerDoesWhatItSays()
    {
        QFETCH(bool, dirty);
        QFETCH(int, button);
        QFETCH(QString, target);
        test::EditorFixture desk;
        desk.alerts.answer = button;
        if (!target.isEmpty())
            desk.panels.image = { .path = desk.folder.filePath(target) };
        QImage pixels(20, 10, QImage::Format_RGB32);
        pixels.fill(Qt::white);
        AnnotationStore store(RasterImage::fromPixels(pixels), desk.settings);
        store.setHasUnsavedChanges(dirty);
        const Answer answer = UnsavedChangesAlert::run(store, { desk.alerts, desk.documents, desk.history, desk.work });
        QTEST(int(answer), "answer");
        QTEST(store.hasUnsavedChanges(), "unsaved");
        QCOMPARE(desk.alerts.shown.value(0), dirty ? "Do you want to save your annotations?" : QString());
        QCOMPARE(QFile::exists(desk.folder.filePath("a.png")), target == u"a.png");
    }
};

QTEST_MAIN(UnsavedChangesTest)
#include "UnsavedChangesTest.moc"
