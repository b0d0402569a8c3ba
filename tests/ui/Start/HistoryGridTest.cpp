// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/HistoryGrid.h"

#include "core/History/HistoryThumbnails.h"
#include "tests/support/FakeDesktop.h"

#include <QAccessible>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace tessaly;

Q_DECLARE_METATYPE(tessaly::EntryCommand)

/// Operates the grid with keys and mouse.
class HistoryGridTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    test::FakeClock m_clock;
    std::unique_ptr<HistoryThumbnails> m_thumbnails;
    std::unique_ptr<HistoryGrid> m_grid;
    QList<HistoryEntry> m_entries;
    QStringList m_chosen; ///< the command's number and the title

    static HistoryEntry entry(int number)
    {
        HistoryEntry entry;
        entry.id = QUuid::createUuid();
        entry.title = QString::number(number);
        entry.created = QDateTime(QDate(2024, 5, 1), QTime(12, 0)).addSecs(-number);
        return entry;
    }

    QString current() const { return m_grid->currentIndex().data().toString(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(m_grid.get(), key, modifiers); }
    QPoint centerOf(int row) const { return m_grid->visualRect(m_grid->model()->index(row, 0)).center(); }

private Q_SLOTS:
    void init()
    {
        m_thumbnails = std::make_unique<HistoryThumbnails>(HistoryStore { m_folder.path() });
        m_grid = std::make_unique<HistoryGrid>(
            *m_thumbnails, m_clock, [](const HistoryEntry &) { return std::make_unique<QMimeData>(); });
        m_entries.clear();
        m_chosen.clear();
        for (int number = 0; number < 50; ++number)
            m_entries += entry(number);
        connect(m_grid.get(), &HistoryGrid::chosen, this, [this](EntryCommand command, const QUuid &id) {
            m_chosen += QString::number(int(command)) + u' ' + m_grid->entries().indexOf(id).data().toString();
        });
        m_grid->resize(780, 400); // four columns
        m_grid->show();
        m_grid->setEntries(m_entries);
        m_grid->setFocus();
        QVERIFY(QTest::qWaitForWindowExposed(m_grid.get()));
        m_grid->selectFirst();
    }

    void theSelectedOneStaysInSight()
    {
        const auto isSeen
            = [this] { return m_grid->viewport()->rect().contains(m_grid->visualRect(m_grid->currentIndex())); };
        press(Qt::Key_Down);
        m_grid->scrollTo(m_grid->currentIndex());
        QVERIFY(isSeen());
        m_grid->resize(780, m_grid->visualRect(m_grid->currentIndex()).bottom() - 30);
        QVERIFY(isSeen());
        m_grid->verticalScrollBar()->setValue(m_grid->verticalScrollBar()->maximum());
        m_grid->resize(780, 380);
        QVERIFY(!isSeen()); // it had been scrolled away
    }

    void keysMoveAmongTheTiles()
    {
        QCOMPARE(current(), "0");
        press(Qt::Key_Right);
        QCOMPARE(current(), "1");
        press(Qt::Key_Down);
        QCOMPARE(current(), "5");
        press(Qt::Key_Left);
        QCOMPARE(current(), "4");
        press(Qt::Key_Up);
        QCOMPARE(current(), "0");
        press(Qt::Key_End);
        QCOMPARE(current(), "49");
        QVERIFY(m_grid->viewport()->rect().contains(centerOf(49)));
        press(Qt::Key_PageUp);
        QVERIFY2(current().toInt() < 46 && current().toInt() > 33, qPrintable(current()));
        press(Qt::Key_Home);
        QCOMPARE(current(), "0");
        press(Qt::Key_PageDown);
        QVERIFY2(current().toInt() > 3 && current().toInt() < 16, qPrintable(current()));
        QCOMPARE(m_grid->selectionModel()->selectedIndexes(), QModelIndexList { m_grid->currentIndex() });
    }

    void columnsShareTheWidth_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("columns");
        QTest::newRow("standard window") << 788 << 4;
        QTest::newRow("700 points") << 668 << 3;
        QTest::newRow("smallest window") << 588 << 3;
        QTest::newRow("wide") << 1880 << 10;
        QTest::newRow("too narrow for one") << 100 << 1;
    }

    void columnsShareTheWidth()
    {
        QFETCH(int, width);
        m_grid->resize(width, 400);
        QCoreApplication::processEvents();
        int columns = 0;
        const int top = m_grid->visualRect(m_grid->model()->index(0, 0)).top();
        while (m_grid->visualRect(m_grid->model()->index(columns, 0)).top() == top)
            ++columns;
        QTEST(columns, "columns");
        if (columns > 1) {
            const int right = m_grid->visualRect(m_grid->model()->index(columns - 1, 0)).right();
            QVERIFY2(right <= m_grid->viewport()->width() && right > m_grid->viewport()->width() - 30,
                qPrintable(QString::number(right)));
        }
    }

    void commandsHaveKeys()
    {
        press(Qt::Key_Right);
        press(Qt::Key_Return);
        press(Qt::Key_Enter, Qt::KeypadModifier);
        press(Qt::Key_C, Qt::ControlModifier);
        press(Qt::Key_Delete);
        QCOMPARE(m_chosen, QStringList({ "0 1", "0 1", "2 1", "3 1" }));
    }

    void theMouseSelectsOpensAndAsks()
    {
        QTest::mouseClick(m_grid->viewport(), Qt::LeftButton, {}, centerOf(2));
        QCOMPARE(current(), "2");
        QVERIFY(m_chosen.isEmpty());
        QTest::mouseClick(m_grid->viewport(), Qt::LeftButton, {}, centerOf(6));
        QTest::mouseDClick(m_grid->viewport(), Qt::LeftButton, {}, centerOf(6));
        QCOMPARE(m_chosen, QStringList { "0 6" });

        QContextMenuEvent ask(QContextMenuEvent::Mouse, centerOf(3), m_grid->viewport()->mapToGlobal(centerOf(3)));
        QCoreApplication::sendEvent(m_grid->viewport(), &ask);
        QCOMPARE(current(), "3");
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QStringList titles;
        for (const QAction *action : menu->actions())
            titles += action->isSeparator() ? QStringLiteral("-") : action->text();
        QCOMPARE(titles, QStringList({ "Open", "Show in Finder", "Copy", "-", "Delete from History" }));
        menu->actions().at(1)->trigger();
        QCOMPARE(m_chosen.last(), "1 3");
        menu->close();

        const QPoint nowhere(m_grid->viewport()->width() - 2, 2);
        QContextMenuEvent askNothing(QContextMenuEvent::Mouse, nowhere, m_grid->viewport()->mapToGlobal(nowhere));
        m_grid->setEntries({});
        QCoreApplication::sendEvent(m_grid->viewport(), &askNothing);
        QVERIFY(!QApplication::activePopupWidget() || QApplication::activePopupWidget() == menu);
    }

    void lettersAreForTheSearch()
    {
        QSignalSpy typed(m_grid.get(), &HistoryGrid::typed), escaped(m_grid.get(), &HistoryGrid::escaped);
        QTest::keyClick(m_grid.get(), 'f');
        QTest::sendKeyEvent(QTest::Click, m_grid.get(), Qt::Key_unknown, QStringLiteral("é"), {});
        press(Qt::Key_Space);
        press(Qt::Key_Escape);
        press(Qt::Key_A, Qt::AltModifier);
        QCOMPARE(typed.size(), 2);
        QCOMPARE(typed.at(0).at(0).toString(), "f");
        QCOMPARE(typed.at(1).at(0).toString(), QStringLiteral("é"));
        QCOMPARE(escaped.size(), 1);
    }

    void keepsItsPlaceWhenTheListChanges()
    {
        m_grid->setCurrentIndex(m_grid->model()->index(20, 0));
        const int scrolled = m_grid->verticalScrollBar()->value();
        QVERIFY(scrolled > 0);
        QList<HistoryEntry> changed = m_entries;
        changed.prepend(entry(100));
        m_grid->setEntries(changed);
        QCOMPARE(current(), "20");
        changed.removeAt(21);
        m_grid->setEntries(changed); // the current one has gone
        QCOMPARE(current(), "21");
        QCOMPARE(m_grid->verticalScrollBar()->value(), scrolled);
        m_grid->setEntries({});
        m_grid->setEntries(m_entries);
        QCOMPARE(current(), "0"); // it has the focus
    }

    void readersOfTheScreenHearTitleAndDate()
    {
        QAccessibleInterface *list = QAccessible::queryAccessibleInterface(m_grid.get());
        QVERIFY(list);
        QCOMPARE(list->role(), QAccessible::List);
        QCOMPARE(list->text(QAccessible::Name), "Recent Captures");
        QCOMPARE(list->childCount(), 50);
        QAccessibleInterface *tile = list->child(7);
        QCOMPARE(tile->role(), QAccessible::ListItem);
        QVERIFY(tile->text(QAccessible::Name).startsWith(u"7, "));
        QVERIFY(tile->text(QAccessible::Name).contains(u"2024"));
    }
};

QTEST_MAIN(HistoryGridTest)
#include "HistoryGridTest.moc"
