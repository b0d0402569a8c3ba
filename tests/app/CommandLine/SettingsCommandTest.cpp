// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Preferences/SettingTable.h"
#include "tests/app/CommandLine/Program.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace tessaly;
using namespace tessaly::test;

class SettingsCommandTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Program> m_program;

    Finished run(const QStringList &arguments) const { return m_program->run(QStringList { "settings" } + arguments); }
    QJsonObject list() const { return QJsonDocument::fromJson(run({ "list", "--json" }).output).object(); }

private Q_SLOTS:
    void init() { m_program = std::make_unique<Program>(); }

    void listsEveryKeyInItsType()
    {
        const QJsonObject all = list();
        QCOMPARE(all.size(), qsizetype(SettingTable::rows().size()));
        for (const SettingRow &row : SettingTable::rows())
            QCOMPARE(all.value(QLatin1StringView(row.name())), row.fallback());
        const Finished text = run({ "list" });
        QCOMPARE(text.output.count('\n'), qsizetype(SettingTable::rows().size()));
        QVERIFY(text.output.contains("jpegQuality") && text.output.contains("  0.9\n"));
    }

    void changesAndForgets()
    {
        QCOMPARE(run({ "set", "captureDelay", "5" }).status, 0);
        QCOMPARE(run({ "set", "defaultColor", "00ff00" }).status, 0);
        QCOMPARE(run({ "get", "defaultColor" }).output, QByteArray("#00FF00\n"));
        QCOMPARE(run({ "reset", "defaultColor" }).status, 0);
        QCOMPARE(run({ "get", "defaultColor" }).output, QByteArray("#FF3366\n"));
        QCOMPARE(list().value("captureDelay"), QJsonValue(5));
        QCOMPARE(run({ "reset", "--all" }).status, 0);
        QCOMPARE(run({ "get", "captureDelay" }).output, QByteArray("0\n"));
    }

    void refusesInASentence_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("fragment");
        QTest::newRow("unknown key") << QStringList { "get", "capturDelay" } << 1 << "captureDelay";
        QTest::newRow("unlike any key") << QStringList { "set", "moon", "1" } << 1 << "settings list";
        QTest::newRow("unknown to reset") << QStringList { "reset", "moon" } << 1 << "\"moon\"";
        QTest::newRow("ill-typed") << QStringList { "set", "captureSound", "5" } << 1 << "true or false";
        QTest::newRow("out of range") << QStringList { "set", "jpegQuality", "90" } << 1 << "from 0 to 1";
        QTest::newRow("below nothing") << QStringList { "set", "captureDelay", "-3" } << 1 << "from 0";
        QTest::newRow("no choice") << QStringList { "set", "appearance", "blue" } << 1 << "system, light, dark";
        QTest::newRow("no value") << QStringList { "set", "appearance" } << 2 << "VALUE";
        QTest::newRow("nothing to reset") << QStringList { "reset" } << 2 << "--all";
        QTest::newRow("both to reset") << QStringList { "reset", "--all", "appearance" } << 2 << "--all";
    }

    void refusesInASentence()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, fragment);
        const Finished finished = run(arguments);
        QTEST(finished.status, "status");
        QCOMPARE(finished.output, QByteArray());
        QCOMPARE(finished.messageLines().size(), 1);
        QVERIFY2(finished.messages.contains(fragment), qPrintable(finished.messages));
        QVERIFY(!m_program->tree().join(u' ').contains(u"settings.json"));
    }

    void keepsTheProgramReachable()
    {
        const Finished finished = run({ "set", "showInMenuBar", "false" });
        QCOMPARE(finished.status, 0);
        QVERIFY(finished.messages.contains("showInMenuBar"));
        QCOMPARE(list().value("showInMenuBar"), QJsonValue(true));
        QCOMPARE(run({ "set", "showInDock", "true" }).messages, QString());
        QCOMPARE(run({ "set", "showInMenuBar", "false" }).messages, QString());
        QCOMPARE(list().value("showInMenuBar"), QJsonValue(false));
    }
};

QTEST_GUILESS_MAIN(SettingsCommandTest)
#include "SettingsCommandTest.moc"
