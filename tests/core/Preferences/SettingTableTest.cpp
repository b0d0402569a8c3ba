// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Preferences/SettingTable.h"

#include "core/Preferences/Settings.h"
#include "tests/support/Rows.h"
#include "tests/support/TestFiles.h"

#include <QJsonDocument>
#include <QSet>
#include <QTemporaryDir>

using namespace tessaly;

Q_DECLARE_METATYPE(QJsonValue)

/// The table of what the user may set.
class SettingTableTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    QString path() const { return m_folder.filePath(QStringLiteral("settings.json")); }
    QJsonObject stored() const { return QJsonDocument::fromJson(test::fileContent(path())).object(); }

private Q_SLOTS:
    void init() { QFile::remove(path()); }

    void everyDefaultIsAllowed()
    {
        QSet<QString> names;
        for (const SettingRow &row : SettingTable::rows()) {
            const QString name = QString::fromLatin1(row.name());
            QVERIFY2(!names.contains(name), row.name());
            names.insert(name);
            QCOMPARE(SettingTable::find(name), &row);
            const auto parsed = SettingTable::parse(row, row.fallback().toVariant().toString());
            QVERIFY2(parsed && *parsed == row.fallback(), row.name());
        }
        for (const char *key : { "showInDock", "captureDelay", "captureHotKeyCopyTextKeyLabel", "defaultColor" })
            QVERIFY2(names.contains(QString::fromLatin1(key)), key);
    }

    void readsTexts_data()
    {
        test::columns<QString, QString, QJsonValue, QString>("key", "text", "value", "refusal");
        const QJsonValue none(QJsonValue::Undefined);
        test::row("true", QString("captureSound"), QString("true"), QJsonValue(true), QString());
        test::row("off", QString("captureSound"), QString("OFF"), QJsonValue(false), QString());
        test::row("maybe", QString("captureSound"), QString("maybe"), none, QString("true or false"));
        test::row("whole", QString("captureDelay"), QString("7"), QJsonValue(7), QString());
        test::row("half a second", QString("captureDelay"), QString("2.5"), none, QString("whole number from 0"));
        test::row("negative", QString("captureDelay"), QString("-1"), none, QString("whole number from 0"));
        test::row("too long", QString("captureDelay"), QString("1e9"), none, QString("to 86400"));
        test::row("real", QString("jpegQuality"), QString("0.25"), QJsonValue(0.25), QString());
        test::row("percent", QString("jpegQuality"), QString("25"), none, QString("from 0 to 1"));
        test::row("no number", QString("jpegQuality"), QString("nan"), none, QString("from 0 to 1"));
        test::row("choice", QString("exportFormat"), QString("webp"), QJsonValue("webp"), QString());
        test::row("no choice", QString("exportFormat"), QString("WebP"), none, QString("png, jpeg, webp"));
        test::row("language", QString("appLanguage"), QString("de"), QJsonValue("de"), QString());
        test::row("color", QString("defaultColor"), QString("#00ff80"), QJsonValue("#00FF80"), QString());
        test::row("color for a shell", QString("defaultColor"), QString("00ff80"), QJsonValue("#00FF80"), QString());
        test::row("no color", QString("defaultColor"), QString("green"), none, QString("FF3366"));
        test::row("any text", QString("defaultSaveFolder"), QString("/a b"), QJsonValue("/a b"), QString());
        test::row("modifiers", QString("captureHotKeyModifiers"), QString("6913"), none, QString("6912"));
    }

    void readsTexts()
    {
        QFETCH(QString, key);
        QFETCH(QString, text);
        QFETCH(QJsonValue, value);
        QFETCH(QString, refusal);
        const SettingRow &row = *SettingTable::find(key);
        const auto parsed = SettingTable::parse(row, text);
        QCOMPARE(bool(parsed), refusal.isEmpty());
        if (!parsed) {
            QVERIFY2(parsed.failure().message.contains(refusal), qPrintable(parsed.failure().message));
            QVERIFY(parsed.failure().message.startsWith(key));
            return;
        }
        QCOMPARE(*parsed, value);
        Settings settings(path());
        QVERIFY(SettingTable::store(settings, row, *parsed));
        QCOMPARE(SettingTable::value(Settings(path()), row), value);
    }

    void proposesANearName_data()
    {
        test::columns<QString, QString>("written", "meant");
        test::row("letters swapped", QString("captureDealy"), QString("captureDelay"));
        test::row("other case", QString("showindock"), QString("showInDock"));
        test::row("a part", QString("saveFolder"), QString("defaultSaveFolder"));
        test::row("nothing like it", QString("colourOfTheMoon"), QString());
    }

    void proposesANearName()
    {
        QFETCH(QString, written);
        QVERIFY(!SettingTable::find(written));
        QTEST(SettingTable::nearest(written), "meant");
    }

    void whatIsStrangeStaysUntilItIsSet()
    {
        const QByteArray json
            = R"({"captureDelay":2.5,"exportFormat":"tga","captureSound":"yes","defaultColor":"red"})";
        QVERIFY(test::writeFile(path(), json));
        Settings settings(path());
        for (const QString &key : QJsonDocument::fromJson(json).object().keys()) {
            const SettingRow &row = *SettingTable::find(key);
            QCOMPARE(SettingTable::value(settings, row), row.fallback());
        }
        QVERIFY(settings.set(SettingKeys::historyRetentionDays, 7));
        QVERIFY(settings.set(SettingKeys::captureDelay, 0)); // which is the default
        QJsonObject expected = QJsonDocument::fromJson(json).object();
        expected.remove(QStringLiteral("captureDelay"));
        expected.insert(QStringLiteral("historyRetentionDays"), 7);
        QCOMPARE(stored(), expected);
    }

    void resetsAllButWhatItDoesNotList()
    {
        QVERIFY(test::writeFile(path(), R"({"captureDelay":"x","jpegQuality":0.5,"frameStyle":"{}","later":1})"));
        Settings settings(path());
        QVERIFY(SettingTable::resetAll(settings));
        QCOMPARE(stored().keys(), QStringList({ "frameStyle", "later" }));
    }
};

QTEST_GUILESS_MAIN(SettingTableTest)
#include "SettingTableTest.moc"
