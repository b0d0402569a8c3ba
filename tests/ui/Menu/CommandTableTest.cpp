// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/Commands.h"
#include "ui/Menu/ToolTable.h"
#include "ui/Style/Icons.h"

#include <QTest>

using namespace tessaly;

/// What a row of the two tables can get wrong.
class CommandTableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Of two actions of a window with one key, neither would be triggered.
    void noTwoRowsShareAKey()
    {
        QMap<KeyScope, QStringList> keys;
        for (const CommandRow &row : commandTable()) {
            const int expected = *row.key ? QString::fromLatin1(row.key).count(QStringLiteral("; ")) + 1 : 0;
            QCOMPARE(commandKeys(row).size(), expected);
            for (const QKeySequence &key : commandKeys(row)) {
                QVERIFY2(key.count() == 1 && key[0].key() != Qt::Key_unknown, row.title);
                keys[row.scope] += key.toString();
            }
        }
        for (const ToolRow &row : toolTable()) {
            keys[KeyScope::Window] += toolKey(row).toString();
            keys[KeyScope::Canvas] += QChar::fromLatin1(row.letter);
        }
        for (const QStringList &each : keys) {
            QStringList once = each;
            once.removeDuplicates();
            QCOMPARE(each, once);
        }
    }

    /// The keys that people know; another tool's letter or a slip of the pen would take one away.
    void keysAreThoseOfTheMenus_data()
    {
        QTest::addColumn<QString>("keys");
        const auto add = [](CommandMenu menu, const char *keys) {
            QTest::newRow(qPrintable(QString::number(int(menu)))) << QString::fromLatin1(keys);
        };
        add(CommandMenu::File, "Ctrl+N Ctrl+Shift+N Ctrl+O Ctrl+T Ctrl+W Ctrl+S Ctrl+Shift+S");
        add(CommandMenu::View, "Ctrl++ Ctrl+- Ctrl+0 Ctrl+9");
        add(CommandMenu::Image, "Ctrl+[ Ctrl+] Ctrl+Shift+R Ctrl+Alt+U Ctrl+Alt+W");
        add(CommandMenu::Capture, "Ctrl+Alt+4 Ctrl+Alt+5 Ctrl+Alt+Shift+5 Ctrl+Alt+3 Ctrl+Alt+Shift+4 Ctrl+Alt+7");
        add(CommandMenu::Window, "Ctrl+Shift+1");
        add(CommandMenu::Help, "Ctrl+? Ctrl+Shift+P");
        add(CommandMenu::Application, "Ctrl+, Ctrl+Q");
    }

    void keysAreThoseOfTheMenus()
    {
        const auto menu = CommandMenu(QByteArray(QTest::currentDataTag()).toInt());
        QStringList keys;
        for (const CommandRow &row : commandTable()) {
            if (row.menu == menu && *row.key)
                keys += commandKeys(row).first().toString();
        }
        QTEST(keys.join(u' '), "keys");
    }

    void everyIconExists()
    {
        const QStringList names = Icons::names();
        for (const CommandRow &row : commandTable())
            QVERIFY2(!*row.icon || names.contains(QLatin1StringView(row.icon)), row.title);
        for (const ToolRow &row : toolTable())
            QVERIFY2(names.contains(QLatin1StringView(row.icon)), row.label);
    }

    /// A group that is left and entered again would be divided by two separators.
    void groupsHangTogether()
    {
        QMap<CommandMenu, int> last;
        for (const CommandRow &row : commandTable()) {
            QVERIFY2(row.group >= last.value(row.menu) && row.group <= last.value(row.menu) + 1, row.title);
            last[row.menu] = row.group;
        }
    }

    void saysWhatItDoesAndItsKey_data()
    {
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("expected");
        QTest::newRow("dots are left out") << commandToolTip(command(CommandId::Save)) << "Save (Ctrl+S)";
        QTest::newRow("the first of several keys") << commandToolTip(command(CommandId::Redo)) << "Redo (Ctrl+Shift+Z)";
        QTest::newRow("plus") << commandKeyText(command(CommandId::ZoomIn)) << "Ctrl++";
        QTest::newRow("bracket") << commandKeyText(command(CommandId::RotateCounterclockwise)) << "Ctrl+[";
        QTest::newRow("no key") << commandToolTip(command(CommandId::Share)) << "Share";
        QTest::newRow("on") << commandToolTip(command(CommandId::ToggleOptionsBar), true) << "Hide Options Bar";
        QTest::newRow("a command that is no switch") << commandTitle(command(CommandId::Undo), true) << "Undo";
        QTest::newRow("a tool") << toolToolTip(toolRow(Tool::Line)) << "Line (L)";
        QTest::newRow("a tool's key anywhere") << toolKey(toolRow(Tool::Line)).toString() << "Ctrl+Alt+L";
    }

    void saysWhatItDoesAndItsKey()
    {
        QFETCH(QString, shown);
        QTEST(shown, "expected");
    }

    void findsTheToolOfALetter()
    {
        QCOMPARE(toolOfLetter(u'b'), Tool::Pixelate);
        QCOMPARE(toolOfLetter(u'B'), Tool::Pixelate);
        QCOMPARE(toolOfLetter(u'z'), std::nullopt);
    }
};

QTEST_MAIN(CommandTableTest)
#include "CommandTableTest.moc"
