// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Preferences/Settings.h"

#include "tests/support/Rows.h"
#include "tests/support/TestFiles.h"

#include <QJsonDocument>
#include <QTemporaryDir>

using namespace tessaly;
using test::fileContent;
using test::namesIn;
using test::writeFile;

/// Settings as their file shows them.
class SettingsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    QString m_path;

    QJsonObject stored() const { return QJsonDocument::fromJson(fileContent(m_path)).object(); }
    QStringList files() const { return namesIn(m_folder.path()); }

private Q_SLOTS:
    void init()
    {
        m_path = m_folder.filePath(QStringLiteral("settings.json"));
        for (const QString &name : files())
            QVERIFY(QFile::remove(m_folder.filePath(name)) || QDir(m_folder.filePath(name)).removeRecursively());
    }

    void readsTheDefaultForAnotherType_data()
    {
        test::columns<QByteArray, QString, double, bool>("json", "format", "quality", "copies");
        test::row("no file", QByteArray(), "png", 0.9, false);
        QTest::newRow("set") << QByteArray(R"({"exportFormat":"gif","jpegQuality":0.5,"autoCopyAfterSave":true})")
                             << "gif" << 0.5 << true;
        QTest::newRow("whole number") << QByteArray(R"({"jpegQuality":1})") << "png" << 1.0 << false;
        QTest::newRow("other types") << QByteArray(R"({"exportFormat":4,"jpegQuality":"0.5","autoCopyAfterSave":1})")
                                     << "png" << 0.9 << false;
        QTest::newRow("null") << QByteArray(R"({"exportFormat":null,"jpegQuality":null})") << "png" << 0.9 << false;
    }

    void readsTheDefaultForAnotherType()
    {
        QFETCH(QByteArray, json);
        if (!json.isNull())
            QVERIFY(writeFile(m_path, json));
        const Settings settings(m_path);
        QVERIFY(!settings.problem());
        QTEST(settings.value(SettingKeys::exportFormat), "format");
        QTEST(settings.value(SettingKeys::jpegQuality), "quality");
        QTEST(settings.value(SettingKeys::autoCopyAfterSave), "copies");
    }

    void storesOnlyWhatDiffers()
    {
        QVERIFY(writeFile(m_path, R"({"future":[1,{"a":2}],"jpegQuality":0.5})"));
        Settings settings(m_path);
        QVERIFY(settings.set(SettingKeys::exportFormat, QStringLiteral("webp")));
        QVERIFY(settings.set(SettingKeys::copyAtFullSize, true));
        QCOMPARE(stored().keys(), QStringList({ "copyAtFullSize", "exportFormat", "future", "jpegQuality" }));
        QVERIFY(settings.set(SettingKeys::jpegQuality, 0.9));
        QVERIFY(settings.set(SettingKeys::copyAtFullSize, false));
        QVERIFY(settings.set(SettingKeys::exportFormat, QStringLiteral("png")));
        QCOMPARE(stored(), QJsonDocument::fromJson(R"({"future":[1,{"a":2}]})").object());
    }

    void bytesComeBackAsWritten()
    {
        const QByteArray json = "{\n  \"text\" : \"\xc3\xa9 \xf0\x9f\x98\x80\"\n}";
        Settings settings(m_path);
        QVERIFY(!settings.value(SettingKeys::frameStyle));
        QVERIFY(settings.set(SettingKeys::frameStyle, json));
        QCOMPARE(Settings(m_path).value(SettingKeys::frameStyle), json);
    }

    void putsAnUnreadableFileAside_data()
    {
        QTest::addColumn<QByteArray>("content");
        test::row("not JSON", QByteArray("exportFormat=gif"));
        test::row("cut off", QByteArray("{\"exportFormat\":\"gi"));
        test::row("a list", QByteArray("[1]"));
        test::row("empty", QByteArray(""));
    }

    void putsAnUnreadableFileAside()
    {
        QFETCH(QByteArray, content);
        for (int round = 1; round <= 2; ++round) {
            QVERIFY(writeFile(m_path, content));
            Settings settings(m_path);
            QVERIFY(settings.problem());
            QVERIFY(settings.problem()->message.contains(m_path));
            QCOMPARE(settings.value(SettingKeys::exportFormat), QStringLiteral("png"));
            QCOMPARE(fileContent(m_path), content); // reading alone touches nothing
            QVERIFY(settings.set(SettingKeys::exportFormat, QStringLiteral("bmp")));
            QVERIFY(!settings.problem());
            QVERIFY(settings.set(SettingKeys::exportFormat, QStringLiteral("gif")));
            QCOMPARE(files().size(), round + 1);
        }
        m_path += QStringLiteral(".unreadable-2");
        QCOMPARE(fileContent(m_path), content);
    }

    void createsTheFolder()
    {
        const QString path = m_folder.filePath(QStringLiteral("new/er/settings.json"));
        QVERIFY(Settings(path).set(SettingKeys::webpQuality, 0.25));
        QCOMPARE(Settings(path).value(SettingKeys::webpQuality), 0.25);
    }

    void keepsTheValueWhereWritingFails()
    {
        QVERIFY(writeFile(m_path, "a file where the folder must go"));
        Settings settings(m_path + QStringLiteral("/settings.json"));
        const auto outcome = settings.set(SettingKeys::webpQuality, 0.25);
        QVERIFY(!outcome);
        QVERIFY(outcome.failure().message.contains(m_path));
        QCOMPARE(settings.value(SettingKeys::webpQuality), 0.25);
        init();
        QVERIFY(QDir().mkpath(m_path));
        QVERIFY(settings.set(SettingKeys::webpQuality, 0.25)); // not yet written, so the same value is written now
        QCOMPARE(Settings(m_path + QStringLiteral("/settings.json")).value(SettingKeys::webpQuality), 0.25);
    }

    void changesTogetherAreWrittenOnce()
    {
        Settings settings(m_path);
        const auto outcome = settings.changeTogether([&] {
            QVERIFY(settings.set(SettingKeys::webpQuality, 0.25));
            QVERIFY(settings.set(SettingKeys::copyAtFullSize, true));
            QCOMPARE(files(), QStringList());
        });
        QVERIFY(outcome);
        QCOMPARE(stored().size(), 2);
        QVERIFY(QFile::remove(m_path));
        QVERIFY(settings.changeTogether([] {}));
        QCOMPARE(files(), QStringList());
    }

    void refusesWhatIsNoNumber() { QVERIFY(!Settings(m_path).set(SettingKeys::jpegQuality, qQNaN())); }

    void livesInMemoryWithoutAPath()
    {
        Settings settings { QString() };
        QVERIFY(settings.set(SettingKeys::jpegQuality, 0.1));
        QCOMPARE(settings.value(SettingKeys::jpegQuality), 0.1);
        QCOMPARE(files(), QStringList());
    }

    void followsTheDesktopsConfigurationFolder()
    {
        const QByteArray before = qgetenv("XDG_CONFIG_HOME");
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.path()));
        QCOMPARE(Settings::defaultPath(), m_folder.filePath(QStringLiteral("tessaly/settings.json")));
        before.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", before);
    }
};

QTEST_GUILESS_MAIN(SettingsTest)
#include "SettingsTest.moc"
