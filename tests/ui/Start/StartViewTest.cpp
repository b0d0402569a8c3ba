// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/StartView.h"

#include "tests/support/Rows.h"
#include "tests/ui/Start/StartFixture.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>

using namespace tessaly;
using namespace tessaly::test;

/// The whole window over a real history, with keys and mouse.
class StartViewTest : public QObject {
    Q_OBJECT

    static const inline QStringList threeTitles { QStringLiteral("Mail"), QStringLiteral("Terminal"),
        QStringLiteral("Mailbox") };

    static void show(StartFixture &fixture)
    {
        fixture.load();
        fixture.start.show();
        QVERIFY(QTest::qWaitForWindowActive(StartFixture::window()));
    }
    /// To whatever has the focus.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(StartFixture::window()->focusWidget(), key, modifiers);
    }
    static void type(const char *text) { QTest::keyClicks(StartFixture::window()->focusWidget(), QLatin1String(text)); }

    static bool undoIsOffered() { return StartFixture::part<QPushButton>("undo")->isVisible(); }

private Q_SLOTS:
    void layoutFollowsSettingsAndEntries_data()
    {
        columns<bool, QStringList, QStringList, bool>("enabled", "titles", "texts", "showsGrid");

        const QString kept = QStringLiteral("Captures are kept only on this Mac, for 30 days.");
        row("nothing yet", true, QStringList(),
            QStringList { QStringLiteral("No Recent Captures"),
                QStringLiteral("Capture, mark up and share. Your recent captures will "
                               "appear here."),
                QStringLiteral("There are no captures in the history yet. ") + kept },
            false);
        row("switched off, with old captures", false, threeTitles,
            QStringList { QStringLiteral("Start a New Capture"), QStringLiteral("Capture, mark up and share."), kept },
            false);
        row("captures", true, threeTitles, QStringList { QStringLiteral("Recent Captures"), kept }, true);
    }

    void layoutFollowsSettingsAndEntries()
    {
        QFETCH(bool, enabled);
        QFETCH(QStringList, titles);
        QFETCH(bool, showsGrid);
        StartFixture fixture;
        fixture.fill(titles);
        QVERIFY(fixture.settings.set(SettingKeys::historyEnabled, enabled));
        show(fixture);
        QTEST(StartFixture::texts(), "texts");
        QCOMPARE(StartFixture::grid().isVisible(), showsGrid);
        QCOMPARE(StartFixture::search().isVisible(), showsGrid);
        if (showsGrid)
            QCOMPARE(StartFixture::shown(), titles);
        QVERIFY(StartFixture::part<QPushButton>("open")->isVisible());
    }

    void nothingIsSaidBeforeTheHistoryIsRead()
    {
        StartFixture fixture;
        fixture.start.show();
        QVERIFY(!StartFixture::texts().contains(u"No Recent Captures"));
        fixture.load();
        QVERIFY(StartFixture::texts().contains(u"No Recent Captures"));
    }

    void theNewestIsSelectedOnceTheHistoryIsRead()
    {
        StartFixture fixture;
        fixture.fill(threeTitles);
        fixture.start.show();
        QVERIFY(QTest::qWaitForWindowActive(StartFixture::window()));
        fixture.load();
        press(Qt::Key_Return);
        QCOMPARE(fixture.asked, QStringList { "Mail" });
    }

    void pasteFollowsTheClipboard()
    {
        StartFixture fixture;
        show(fixture);
        const auto *paste = StartFixture::part<QPushButton>("paste");
        const auto offer = [&fixture](const char *type) {
            fixture.clipboard.offer(std::make_unique<FixedOffer>(QLatin1String(type), "bytes"));
        };
        QVERIFY(!paste->isEnabled());
        press(Qt::Key_V, Qt::ControlModifier);
        offer("text/plain");
        QVERIFY(!paste->isEnabled());
        QVERIFY(fixture.asked.isEmpty());
        offer("image/bmp");
        QVERIFY(paste->isEnabled());
        QTest::mouseClick(StartFixture::part<QPushButton>("paste"), Qt::LeftButton);
        press(Qt::Key_V, Qt::ControlModifier);
        press(Qt::Key_O, Qt::ControlModifier);
        QTest::mouseClick(StartFixture::part<QPushButton>("open"), Qt::LeftButton);
        QCOMPARE(fixture.asked, QStringList({ "paste", "paste", "open", "open" }));
    }

    void whatIsDroppedIsOpened()
    {
        StartFixture fixture;
        fixture.fill(threeTitles);
        show(fixture);
        QMimeData data;
        data.setUrls({ QUrl(QStringLiteral("file:///a/b.tessaly")), QUrl(QStringLiteral("file:///a/c.png")) });
        for (const char *name : { "historyGrid", "search" }) // neither keeps it
            QVERIFY2(!StartFixture::part<QWidget>(name)->acceptDrops(), name);
        auto *view = StartFixture::part<StartView>();
        QDragEnterEvent enter({ 5, 5 }, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop({ 5, 5 }, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view, &drop);
        QTRY_COMPARE(fixture.asked, QStringList({ "/a/b.tessaly", "/a/c.png" }));
    }

    void searches()
    {
        StartFixture fixture;
        fixture.fill(threeTitles);
        show(fixture);
        QCOMPARE(StartFixture::window()->focusWidget(), &StartFixture::grid());
        press(Qt::Key_M); // typing in the grid begins a search
        type("ail");
        QCOMPARE(StartFixture::search().text(), "mail");
        QCOMPARE(StartFixture::shown(), QStringList({ "Mail", "Mailbox" }));
        press(Qt::Key_Down);
        QCOMPARE(StartFixture::window()->focusWidget(), &StartFixture::grid());
        press(Qt::Key_Right);
        press(Qt::Key_Return);
        QCOMPARE(fixture.asked, QStringList { "Mailbox" });

        press(Qt::Key_F, Qt::ControlModifier);
        type("<nothing> & no one");
        QVERIFY(!StartFixture::grid().isVisible());
        QVERIFY(StartFixture::texts().contains(u"No Matches"));
        QVERIFY(StartFixture::texts().contains(QStringLiteral("No capture contains “<nothing> & no one”.")));
        press(Qt::Key_Escape);
        QCOMPARE(StartFixture::search().text(), QString());
        QCOMPARE(StartFixture::shown(), threeTitles);
        press(Qt::Key_Escape); // leaves the empty field
        QCOMPARE(StartFixture::window()->focusWidget(), &StartFixture::grid());
        type("x");
        StartFixture::grid().setFocus();
        press(Qt::Key_Escape);
        QCOMPARE(StartFixture::search().text(), QString());
    }

    void deletionCanBeTakenBack()
    {
        StartFixture fixture;
        fixture.fill(threeTitles);
        show(fixture);
        press(Qt::Key_Right);
        press(Qt::Key_Delete);
        QCOMPARE(StartFixture::shown(), QStringList({ "Mail", "Mailbox" }));
        QCOMPARE(StartFixture::current(), "Mailbox");
        QVERIFY(StartFixture::texts().contains(QStringLiteral("Deleted “Terminal” from the history.")));
        press(Qt::Key_Delete);
        QVERIFY(StartFixture::texts().contains(QStringLiteral("Deleted 2 captures from the history.")));
        QVERIFY(undoIsOffered());
        QTest::mouseClick(StartFixture::part<QPushButton>("undo"), Qt::LeftButton);
        QCOMPARE(StartFixture::shown(), threeTitles);
        QVERIFY(!undoIsOffered());
        press(Qt::Key_Delete);
        press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(StartFixture::shown(), threeTitles);
        fixture.start.close();
        fixture.history.flush();
        QCOMPARE(fixture.titlesInHistory(), threeTitles);
    }

    void deletionHoldsInTheEnd_data()
    {
        QTest::addColumn<QString>("how");
        row("after ten seconds", QStringLiteral("time"));
        row("when the window closes", QStringLiteral("close"));
        row("when the program quits", QStringLiteral("quit"));
    }

    void deletionHoldsInTheEnd()
    {
        QFETCH(QString, how);
        StartFixture fixture;
        const QList<HistoryEntry> entries = fixture.fill(threeTitles);
        show(fixture);
        press(Qt::Key_Delete);
        fixture.history.flush();
        QCOMPARE(fixture.titlesInHistory(), threeTitles); // not yet
        if (how == u"time") {
            QTimer *running = nullptr;
            for (QTimer *timer : StartFixture::part<QWidget>("undoBar")->findChildren<QTimer *>())
                running = timer->isActive() ? timer : running;
            QVERIFY(running);
            QCOMPARE(running->intervalAsDuration(), std::chrono::seconds(10));
            running->setInterval(0);
        } else if (how == u"close") {
            StartFixture::window()->close();
        } else {
            QMetaObject::invokeMethod(qApp, "aboutToQuit");
        }
        QTRY_COMPARE(fixture.titlesInHistory(), threeTitles.mid(1));
        fixture.history.flush();
        QVERIFY(!QFileInfo::exists(fixture.files.packagePath(entries.first().id)));
        QCOMPARE(StartFixture::shown(), threeTitles.mid(1));
        QVERIFY(!undoIsOffered());
    }

    void deletingTheLastOneKeepsTheUndo()
    {
        StartFixture fixture;
        fixture.fill({ QStringLiteral("Only") });
        show(fixture);
        press(Qt::Key_Delete);
        QVERIFY(StartFixture::texts().contains(u"No Recent Captures"));
        QVERIFY(undoIsOffered());
        press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(StartFixture::shown(), QStringList { QStringLiteral("Only") });
        QVERIFY(StartFixture::grid().isVisible());
    }

    void copiesTheFinishedPicture()
    {
        StartFixture fixture;
        const auto entries = fixture.fill(threeTitles);
        show(fixture);
        press(Qt::Key_C, Qt::ControlModifier);
        QTRY_VERIFY(fixture.clipboard.content);
        const QImage copied = QImage::fromData(fixture.clipboard.data(QStringLiteral("image/png")));
        QCOMPARE(copied.pixelColor(2, 2), QColor(Qt::black));
        QVERIFY(StartFixture::texts().contains(u"Copied to clipboard"));
        QFile::remove(fixture.files.packagePath(entries.at(0).id) + QStringLiteral("/document.json"));
        press(Qt::Key_C, Qt::ControlModifier);
        QTRY_VERIFY(StartFixture::texts().contains(u"The document is damaged or incomplete."));
    }

    void showsWhereAPackageLies()
    {
        StartFixture fixture;
        const auto entries = fixture.fill(threeTitles);
        show(fixture);
        Q_EMIT StartFixture::grid().chosen(EntryCommand::Reveal, entries.at(1).id);
        QCOMPARE(fixture.links.revealed, QStringList { fixture.files.packagePath(entries.at(1).id) });
    }

    void followsTheHistory()
    {
        StartFixture fixture;
        const auto entries = fixture.fill(threeTitles);
        show(fixture);
        StartFixture::grid().setCurrentIndex(StartFixture::grid().model()->index(2, 0));
        fixture.history.remove(entries.at(0).id);
        fixture.history.flush();
        QCOMPARE(StartFixture::shown(), threeTitles.mid(1));
        QCOMPARE(StartFixture::current(), "Mailbox");
        fixture.history.empty();
        fixture.history.flush();
        QVERIFY(StartFixture::texts().contains(u"No Recent Captures"));
        QVERIFY(!StartFixture::grid().isVisible());
    }

    void everyControlIsReachedByTab()
    {
        StartFixture fixture;
        fixture.fill(threeTitles);
        fixture.clipboard.offer(std::make_unique<FixedOffer>(QStringLiteral("image/png"), "bytes"));
        show(fixture);
        press(Qt::Key_Delete);
        StartFixture::part<QPushButton>("open")->setFocus();
        QStringList names;
        do {
            const QWidget *focused = StartFixture::window()->focusWidget();
            names += focused->objectName();
            QVERIFY2(!focused->toolTip().isEmpty() || focused == &StartFixture::grid(), qPrintable(names.last()));
            press(Qt::Key_Tab);
        } while (StartFixture::window()->focusWidget()->objectName() != names.first() && names.size() < 10);
        QCOMPARE(names, QStringList({ "open", "paste", "search", "historyGrid", "undo" }));
    }
};

QTEST_MAIN(StartViewTest)
#include "StartViewTest.moc"
