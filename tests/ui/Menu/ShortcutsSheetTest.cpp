// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/ShortcutsSheet.h"
#include "ui/Menu/KeyCaps.h"

#include <QApplication>
#include <QLabel>
#include <QTest>

using namespace tessaly;

class ShortcutsSheetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesTheKeys_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("in the order of pressing") << "Ctrl+Shift+Z" << QStringList { "Ctrl", "Shift", "Z" };
        QTest::newRow("plus") << "Ctrl++" << QStringList { "Ctrl", "+" };
        QTest::newRow("minus sign") << "Ctrl+-" << QStringList { "Ctrl", "−" };
        QTest::newRow("bracket") << "Ctrl+]" << QStringList { "Ctrl", "]" };
        QTest::newRow("one key") << "Del" << QStringList { "Del" };
        QTest::newRow("none") << "" << QStringList {};
    }

    void namesTheKeys()
    {
        QFETCH(QString, keys);
        QTEST(keyNames(QKeySequence(keys)), "names");
    }

    /// Every line has a name and the caps it stands for, and nothing is cut off, also in a large font.
    void listsCommandsAndTools()
    {
        QFont font = QApplication::font();
        font.setPointSize(14);
        QApplication::setFont(font);
        ShortcutsSheet sheet;
        sheet.show();
        QVERIFY(QTest::qWaitForWindowExposed(&sheet));
        QStringList names;
        for (const QLabel *label : sheet.findChildren<QLabel *>()) {
            QVERIFY2(label->wordWrap() || label->width() >= label->sizeHint().width(), qPrintable(label->text()));
            if (!label->buddy())
                continue;
            names += label->text();
            QVERIFY2(!label->buddy()->accessibleName().isEmpty(), qPrintable(label->text()));
            QVERIFY2(label->buddy()->width() >= label->buddy()->sizeHint().width(), qPrintable(label->text()));
        }
        QCOMPARE(names.size(), 12 + 16);
        QCOMPARE(names.first(), "Undo");
        QCOMPARE(names[11], "Resize Image…");
        QCOMPARE(names.last(), "Frame");
    }
};

QTEST_MAIN(ShortcutsSheetTest)
#include "ShortcutsSheetTest.moc"
