// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/Editor/Canvas/EditedCanvas.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QSignalSpy>

using namespace tessaly;
using test::EditedCanvas;

class ContextMenuRowsTest : public QObject {
    Q_OBJECT

    /// The right button as a window system sends it.
    static void rightClick(EditedCanvas &canvas, QPointF image)
    {
        canvas.press(image, {}, Qt::RightButton);
        const QPoint position = canvas.viewPosition(image).toPoint();
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, canvas.view.mapToGlobal(position));
        QApplication::sendEvent(&canvas.view, &event);
        canvas.release({}, Qt::RightButton);
    }

    static QMenu *menuOf(EditedCanvas &canvas)
    {
        for (QMenu *menu : canvas.view.findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly))
            if (menu->isVisible())
                return menu;
        return nullptr;
    }

    static QStringList titlesOf(const QMenu *menu)
    {
        QStringList titles;
        for (const QAction *action : menu->actions())
            if (!action->isSeparator())
                titles += action->text().section(u'\t', 0, 0);
        return titles;
    }

    static QAction *actionOf(const QMenu *menu, const QString &title)
    {
        for (QAction *action : menu->actions())
            if (action->text().section(u'\t', 0, 0) == title)
                return action;
        return nullptr;
    }

    const QStringList m_onMark { QStringLiteral("Cut"), QStringLiteral("Copy"), QStringLiteral("Paste"),
        QStringLiteral("Duplicate"), QStringLiteral("Delete"), QStringLiteral("Edit Text"), QStringLiteral("Order"),
        QStringLiteral("Copy Style"), QStringLiteral("Paste Style"), QStringLiteral("Save Style") };

private Q_SLOTS:
    void onAMarkItIsSelectedAndNothingElseHappens()
    {
        EditedCanvas canvas;
        const QUuid id = canvas.add(AnnotationKind::Highlight, { 50, 50 }, { 150, 100 });
        canvas.store.activate(Tool::Arrow);
        rightClick(canvas, { 100, 75 });
        QMenu *menu = menuOf(canvas);
        QVERIFY(menu);
        QCOMPARE(canvas.store.selectedID(), id);
        QCOMPARE(titlesOf(menu), m_onMark);
        QVERIFY(!actionOf(menu, QStringLiteral("Edit Text"))->isEnabled());
        QCOMPARE(canvas.undoSteps(), 0);
        actionOf(menu, QStringLiteral("Delete"))->trigger();
        QCOMPARE(canvas.count(), 0);
    }

    void byKeyForTheSelectedMark_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Menu") << int(Qt::Key_Menu);
        QTest::newRow("Shift+F10") << (Qt::SHIFT | Qt::Key_F10).toCombined();
    }
    void byKeyForTheSelectedMark()
    {
        QFETCH(int, key);
        EditedCanvas canvas;
        canvas.store.setSelectedID(canvas.add(AnnotationKind::Highlight, { 50, 50 }, { 150, 100 }));
        const auto combination = QKeyCombination::fromCombined(key);
        canvas.key(combination.key(), combination.keyboardModifiers());
        QVERIFY(menuOf(canvas));
        QCOMPARE(titlesOf(menuOf(canvas)), m_onMark);
        const QPoint place = canvas.view.mapFromGlobal(menuOf(canvas)->pos());
        QCOMPARE(place, canvas.viewPosition({ 100, 75 }).toPoint());
    }

    void onTheCanvasItPastesHereAndAsksTheWindow()
    {
        EditedCanvas canvas;
        const QUuid id = canvas.add(AnnotationKind::Rectangle, { 50, 50 }, { 90, 90 });
        canvas.store.setSelectedID(id);
        canvas.key(Qt::Key_C, Qt::ControlModifier);
        rightClick(canvas, { 200, 150 });
        QMenu *menu = menuOf(canvas);
        QVERIFY(menu);
        QVERIFY(!canvas.store.selectedID());
        QCOMPARE(titlesOf(menu),
            QStringList({ QStringLiteral("Paste Here"), QStringLiteral("Copy Image"), QStringLiteral("Crop…"),
                QStringLiteral("Zoom") }));
        QSignalSpy requested(&canvas.view, &CanvasView::commandRequested);
        actionOf(menu, QStringLiteral("Copy Image"))->trigger();
        QCOMPARE(requested.at(0).at(0).value<CommandId>(), CommandId::CopyImage);
        actionOf(menu, QStringLiteral("Paste Here"))->trigger();
        QCOMPARE(canvas.last().rect().center(), QPointF(200, 150));
    }

    void theRightButtonOnlyCancelsADrag()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Rectangle);
        canvas.pull({ 20, 20 }, { 120, 120 });
        rightClick(canvas, { 120, 120 });
        QVERIFY(!menuOf(canvas));
        QCOMPARE(canvas.count(), 0);
        QCOMPARE(canvas.undoSteps(), 0);
        canvas.moveTo({ 160, 160 });
        canvas.release();
        QCOMPARE(canvas.count(), 0);
        rightClick(canvas, { 120, 120 });
        QVERIFY(menuOf(canvas));
    }

    void aFingerHeldInPlaceOpensIt()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Pen);
        QPointingDevice finger(QStringLiteral("finger"), 1, QInputDevice::DeviceType::TouchScreen,
            QPointingDevice::PointerType::Finger, QInputDevice::Capability::Position, 1, 0);
        const QPointF place = canvas.viewPosition({ 200, 150 });
        QMouseEvent press(QEvent::MouseButtonPress, place, canvas.view.mapToGlobal(place), Qt::LeftButton,
            Qt::LeftButton, Qt::NoModifier, &finger);
        QApplication::sendEvent(&canvas.view, &press);
        QVERIFY(!menuOf(canvas));
        QTRY_VERIFY(menuOf(canvas));
        QVERIFY(!canvas.view.controller().isGestureActive());
        QCOMPARE(canvas.count(), 0);
    }

    void onATextBeingEditedItMeansTheText()
    {
        EditedCanvas canvas;
        Annotation text(AnnotationKind::Text, { 50, 50 }, { 50, 50 });
        text.text = QStringLiteral("WWWW");
        text.fontSize = 30;
        canvas.store.setSelectedID(canvas.add(text));
        canvas.key(Qt::Key_F2);
        rightClick(canvas, { 70, 65 });
        QVERIFY(canvas.view.isEditingText());
        actionOf(menuOf(canvas), QStringLiteral("Delete"))->trigger();
        QCOMPARE(canvas.last().text, QString());
        QCOMPARE(canvas.count(), 1);
    }
};

QTEST_MAIN(ContextMenuRowsTest)
#include "ContextMenuRowsTest.moc"
