// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/UnsavedChangesAlert.h"

#include "core/Annotation/AnnotationStore.h"
#include "tests/ui/Editor/EditorFixture.h"

#include <QTest>

using namespace tessaly;
using UnsavedChangesAlert::Answer;

/// The question before a capture closes, with each answer.
class UnsavedChangesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachAnswerDoesWhatItSays_data()
    {
        QTest::addColumn<bool>("dirty");
        QTest::addColumn<int>("button");
        QTest::addColumn<QString>("target"); // of the panel; empty cancels it
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("unsaved");
        QTest::newRow("nothing to ask") << false << 1 << "" << int(Answer::Close) << false;
        QTest::newRow("save") << true << 0 << "a.png" << int(Answer::Close) << false;
        QTest::newRow("save, panel cancelled") << true << 0 << "" << int(Answer::Cancel) << true;
        QTest::newRow("save, folder gone") << true << 0 << "gone/a.png" << int(Answer::Cancel) << true;
        QTest::newRow("cancel") << true << 1 << "" << int(Answer::Cancel) << true;
        QTest::newRow("don't save") << true << 2 << "" << int(Answer::Discard) << false;
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
