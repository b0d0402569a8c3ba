// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Dialogs/NamePrompt.h"

#include <QLineEdit>
#include <QTest>

using namespace tessaly;

class NamePromptTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keysEndIt_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("Return takes the proposal") << QString() << Qt::Key_Return << true;
        QTest::newRow("Return takes what was typed over it") << QStringLiteral(" mine ") << Qt::Key_Return << true;
        QTest::newRow("Return takes no empty name") << QStringLiteral("  ") << Qt::Key_Return << false;
        QTest::newRow("Escape takes nothing") << QStringLiteral("mine") << Qt::Key_Escape << false;
    }

    void keysEndIt()
    {
        QFETCH(QString, typed);
        QFETCH(Qt::Key, key);
        NamePrompt prompt(QStringLiteral("Save Style"), QStringLiteral("Save"), QStringLiteral("Style 1"));
        prompt.show();
        QVERIFY(QTest::qWaitForWindowActive(&prompt));
        auto *field = prompt.findChild<QLineEdit *>();
        QVERIFY(field->hasFocus());
        QTest::keyClicks(field, typed);
        QTest::keyClick(field, key);
        QTEST(prompt.result() == QDialog::Accepted, "accepted");
        QCOMPARE(prompt.name(), typed.isEmpty() ? QStringLiteral("Style 1") : typed.trimmed());
    }
};

QTEST_MAIN(NamePromptTest)
#include "NamePromptTest.moc"
