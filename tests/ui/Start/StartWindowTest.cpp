// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/StartWindowController.h"

#include "tests/ui/Start/StartFixture.h"
#include "ui/Menu/CommandTarget.h"
#include "ui/Style/WindowFrame.h"

#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSignalSpy>

using namespace tessaly;
using namespace tessaly::test;

/// The commands that were asked of it.
class RecordingProgram final : public CommandTarget {
public:
    QList<CommandId> done;
    QList<CommandId> more; ///< that it knows beside some
    bool knows(CommandId command) const override
    {
        return command == CommandId::NewTab || command == CommandId::NewCollageStacked || command == CommandId::Open
            || command == CommandId::Quit || more.contains(command);
    }
    bool canPerform(CommandId) const override { return true; }
    void perform(CommandId command) override { done += command; }
};

class StartWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isCentredTheFirstTime()
    {
        StartFixture fixture;
        fixture.start.show();
        const QWidget &window = *StartFixture::window();
        QCOMPARE(window.windowTitle(), "Tessaly");
        QCOMPARE(window.size(), QSize(820, 580).boundedTo(window.size()));
        QCOMPARE(window.minimumSize(), QSize(620, 420));
        const QPoint off = window.geometry().center() - window.screen()->availableGeometry().center();
        QVERIFY(off.manhattanLength() <= 2);
    }

    void opensWhereItWasClosed()
    {
        auto fixture = std::make_unique<StartFixture>();
        fixture->start.show();
        StartFixture::window()->setGeometry(41, 52, 700, 450);
        fixture->start.close();
        QVERIFY(!fixture->start.isVisible());
        const auto stored = fixture->settings.value(SettingKeys::startWindowFrame);
        fixture = std::make_unique<StartFixture>();
        QVERIFY(stored && fixture->settings.set(SettingKeys::startWindowFrame, *stored));
        fixture->start.show();
        QCOMPARE(StartFixture::window()->geometry(), QRect(41, 52, 700, 450));
    }

    void storedFramesAreChecked_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::newRow("no JSON") << QByteArray("frame");
        QTest::newRow("another type") << QByteArray(R"({"x":"a","y":1,"width":700,"height":500})");
        QTest::newRow("no area") << QByteArray(R"({"x":1,"y":1,"width":0,"height":500})");
        QTest::newRow("beyond the screen") << QByteArray(R"({"x":9000,"y":1,"width":700,"height":500})");
        QTest::newRow("title above the screen") << QByteArray(R"({"x":10,"y":-300,"width":700,"height":500})");
    }

    void storedFramesAreChecked()
    {
        QFETCH(QByteArray, stored);
        const auto frame = WindowFrame::fromJson(stored);
        QVERIFY(!frame || !frame->isReachable({ QRect(0, 0, 1600, 1000), QRect(1600, 0, 1600, 1000) }));
    }

    void aFrameOnAnyScreenIsKept()
    {
        const WindowFrame frame = WindowFrame::of({ 3000, -10, 700, 500 }, true);
        QCOMPARE(WindowFrame::fromJson(frame.toJson()), frame);
        QVERIFY(frame.isReachable({ QRect(0, 0, 1600, 1000), QRect(1600, 0, 1600, 1000) }));
        QVERIFY(!frame.isReachable({ QRect(0, 0, 1600, 1000) }));
    }

    void menusAndKeysAreThoseOfTheProgram()
    {
        StartFixture fixture;
        RecordingProgram program;
        StartWindowController start(
            { fixture.history, fixture.settings, fixture.clipboard, fixture.exports, fixture.links, fixture.clock },
            { .openFile = {}, .paste = {}, .openEntry = {}, .program = &program });
        start.show();
        QWidget *window = StartFixture::window();
        QVERIFY(QTest::qWaitForWindowActive(window));
        QStringList offered, menus;
        for (const QAction *title : StartFixture::part<QMenuBar>()->actions()) {
            menus += title->text().remove(u'&');
            for (const QAction *action : title->menu()->actions()) {
                if (action->isEnabled() && !action->isSeparator())
                    offered += action->text();
            }
        }
        // What needs an editor is there, and cannot be chosen.
        QCOMPARE(menus.join(u' '), "File Edit View Tools Image Capture Window Help");
        QCOMPARE(offered.join(u' '), "Open… Quit Tessaly New Collage — Stacked Keyboard Shortcuts Command Palette…");
        for (const Qt::Key key : { Qt::Key_O, Qt::Key_T, Qt::Key_Q })
            QTest::keyClick(window, key, Qt::ControlModifier);
        QCOMPARE(program.done, QList({ CommandId::Open, CommandId::Quit }));
    }

    void capturesComeFirstWhereThereAreAny()
    {
        StartFixture fixture;
        RecordingProgram program;
        program.more = { CommandId::CaptureRegion, CommandId::CaptureFullScreen };
        StartWindowController start(
            { fixture.history, fixture.settings, fixture.clipboard, fixture.exports, fixture.links, fixture.clock },
            { .openFile = {}, .paste = {}, .openEntry = {}, .program = &program });
        start.show();
        QStringList buttons, tips;
        for (QPushButton *button : StartFixture::window()->findChildren<QPushButton *>()) {
            if (!button->isVisible() || button->accessibleName().isEmpty())
                continue;
            buttons += button->text();
            tips += button->toolTip();
        }
        QCOMPARE(buttons.first(4), QStringList({ "Capture Region", "Full Screen", "Open…", "Paste" }));
        QCOMPARE(tips.first(2), QStringList({ "Capture Region (Ctrl+Alt+4)", "Capture Full Screen (Ctrl+Alt+3)" }));
        QTest::mouseClick(StartFixture::part<QPushButton>("capture-screen"), Qt::LeftButton);
        QCOMPARE(program.done, QList({ CommandId::CaptureFullScreen }));
    }

    void closingIsToldWhenTheUserDoesIt()
    {
        StartFixture fixture;
        QSignalSpy closed(&fixture.start, &StartWindowController::closed);
        fixture.start.show();
        fixture.start.close();
        QCOMPARE(closed.size(), 0);
        fixture.start.show();
        QVERIFY(QTest::qWaitForWindowActive(StartFixture::window()));
        QTest::keyClick(StartFixture::window(), Qt::Key_W, Qt::ControlModifier);
        QCOMPARE(closed.size(), 1);
        QVERIFY(!fixture.start.isVisible());
        fixture.start.show(); // the same window again
        QVERIFY(fixture.start.isVisible());
    }
};

QTEST_MAIN(StartWindowTest)
#include "StartWindowTest.moc"
