// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/CommandPalette.h"

#include "tests/support/RecordingTarget.h"
#include "ui/Menu/CommandActions.h"
#include "ui/Menu/PaletteList.h"

#include <QLineEdit>
#include <QMainWindow>
#include <QTest>

using namespace tessaly;
using namespace tessaly::test;

class CommandPaletteTest : public QObject {
    Q_OBJECT

    struct Fixture {
        RecordingTarget target;
        PaletteSupply supply;
        QMainWindow window;
        QLineEdit *content = new QLineEdit; ///< what had the focus before
        std::optional<Tool> tool = Tool::Arrow;
        QStringList log;
        std::unique_ptr<CommandActions> actions;

        explicit Fixture(QSize size = { 900, 600 })
        {
            target.rows[CommandId::FullScreenOn] = { { "DP-1", "17" } };
            supply.settings = [this] {
                return QList<PaletteSupply::Choice> { { "Capture sound", [this] { log += "sound"; } } };
            };
            window.setCentralWidget(content);
            window.resize(size);
            window.show();
            if (!QTest::qWaitForWindowActive(&window))
                qFatal("the window is not active");
            content->setFocus();
            actions = std::make_unique<CommandActions>(&window,
                CommandHooks { .target = [this] { return &target; },
                    .currentTool = [this] { return tool; },
                    .chooseTool = [this](Tool chosen) { tool = chosen; } });
        }

        CommandPalette *open()
        {
            CommandPalette::open(window, *actions, &supply);
            return palette();
        }
        CommandPalette *palette() const
        {
            for (auto *found : window.findChildren<CommandPalette *>()) {
                if (found->isVisible())
                    return found;
            }
            return nullptr;
        }
        QLineEdit *field() const { return palette()->findChild<QLineEdit *>(); }
        PaletteList *list() const { return palette()->findChild<PaletteList *>(); }
        QString current() const { return list()->entries().entry(list()->currentIndex().row()).title; }
        void type(const QString &text) const { QTest::keyClicks(field(), text); }
    };

private Q_SLOTS:
    void doesWhatIsChosen_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("current");
        QTest::newRow("a command") << "sharpen"
                                   << "Sharpen";
        QTest::newRow("a switch by its present name") << "live text"
                                                      << "Show Live Text";
        QTest::newRow("a tool") << "magnifier"
                                << "Magnifier";
        QTest::newRow("a setting") << "sound"
                                   << "Capture sound";
        QTest::newRow("a row of a submenu") << "dp-1"
                                            << "Full Screen on: DP-1";
    }

    void doesWhatIsChosen()
    {
        QFETCH(QString, typed);
        Fixture fixture;
        QVERIFY(fixture.open());
        QVERIFY(fixture.field()->hasFocus());
        fixture.type(typed);
        QTEST(fixture.current(), "current");
        QTest::keyClick(fixture.field(), Qt::Key_Return);
        QVERIFY(!fixture.palette());
        QVERIFY(fixture.content->hasFocus());
        const auto done = [&] {
            return fixture.target.performed == QList { CommandId::Sharpen }
            || fixture.target.performed == QList { CommandId::ToggleLiveText } || fixture.tool == Tool::Magnifier
                || fixture.log == QStringList("sound") || fixture.target.chosen == QStringList("17");
        };
        QTRY_VERIFY(done());
    }

    void whatWasUsedComesFirstNextTime()
    {
        Fixture fixture;
        fixture.open();
        fixture.type("sharpen");
        QTest::keyClick(fixture.field(), Qt::Key_Enter);
        fixture.open();
        QCOMPARE(fixture.current(), "Sharpen");
    }

    void greyedOnesStay()
    {
        Fixture fixture;
        fixture.target.possible = QList { CommandId::Redo };
        fixture.open();
        fixture.type("undo");
        QCOMPARE(fixture.current(), "Undo");
        QTest::keyClick(fixture.field(), Qt::Key_Return);
        QVERIFY(fixture.palette());
        QVERIFY(fixture.list()->currentIndex().data(Qt::AccessibleTextRole).toString().contains("not available"));
        QTest::keyClick(fixture.field(), Qt::Key_Escape);
        QVERIFY(!fixture.palette());
        QVERIFY(fixture.target.performed.isEmpty());
    }

    void isWalkedWithTheKeyboard()
    {
        Fixture fixture;
        fixture.open();
        const QString first = fixture.current();
        QTest::keyClick(fixture.field(), Qt::Key_Up);
        const QString last = fixture.current();
        QVERIFY(last != first);
        QTest::keyClick(fixture.field(), Qt::Key_Down);
        QCOMPARE(fixture.current(), first);
        QTest::keyClick(fixture.field(), Qt::Key_PageDown);
        QVERIFY(fixture.list()->currentIndex().row() > 3);
        fixture.type("qqqq");
        QVERIFY(!fixture.list()->isVisible());
        QTest::keyClick(fixture.field(), Qt::Key_Return); // nothing to do
        QVERIFY(fixture.palette());
    }

    void closesWhenTheUserTurnsElsewhere()
    {
        Fixture fixture;
        fixture.open();
        QTest::mouseClick(fixture.content, Qt::LeftButton, {}, { 5, 5 });
        QVERIFY(!fixture.palette());
        fixture.open();
        fixture.open(); // its key again
        QVERIFY(!fixture.palette());
    }

    /// Every row has room for its title and keys, also in a small window and a large font.
    void nothingIsCut_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("points");
        QTest::newRow("ordinary") << QSize(900, 600) << 10;
        QTest::newRow("small") << QSize(620, 420) << 14;
        QTest::newRow("large") << QSize(1800, 1200) << 14;
    }

    void nothingIsCut()
    {
        QFETCH(QSize, size);
        QFETCH(int, points);
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
        Fixture fixture(size);
        const CommandPalette *palette = fixture.open();
        QVERIFY(fixture.window.rect().contains(palette->geometry().adjusted(18, 18, -18, -18)));
        const PaletteList &list = *fixture.list();
        const QFontMetrics metrics(list.font());
        for (int row = 0; row < list.entries().rowCount(); ++row) {
            const PaletteEntry &entry = list.entries().entry(row);
            const int wanted
                = metrics.horizontalAdvance(entry.title + entry.keys.join(u' ')) + 22 * int(entry.keys.size()) + 60;
            QVERIFY2(wanted <= list.viewport()->width(), qPrintable(entry.title));
            QVERIFY(!entry.place.isEmpty());
        }
    }
};

QTEST_MAIN(CommandPaletteTest)
#include "CommandPaletteTest.moc"
