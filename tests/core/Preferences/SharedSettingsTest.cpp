// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Preferences/Settings.h"

#include "tests/support/TestFiles.h"

#include <QJsonDocument>
#include <QLockFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

using namespace tessaly;
using test::fileContent;
using test::writeFile;

/// Two programs with one file of settings.
class SharedSettingsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString path() const { return m_folder->filePath(QStringLiteral("config/settings.json")); }
    QJsonObject stored() const { return QJsonDocument::fromJson(fileContent(path())).object(); }
    static QStringList keysOf(const QSignalSpy &spy)
    {
        QStringList keys;
        for (const auto &arguments : spy)
            keys += arguments.first().toString();
        keys.sort();
        return keys;
    }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void neitherLosesTheOthersKeys()
    {
        Settings resident(path()), command(path());
        QVERIFY(resident.set(SettingKeys::jpegQuality, 0.5));
        QVERIFY(command.set(SettingKeys::captureSound, true));
        QSignalSpy changes(&resident, &Settings::changed);
        QVERIFY(resident.set(SettingKeys::exportFormat, QStringLiteral("gif")));
        QCOMPARE(keysOf(changes), QStringList({ "captureSound", "exportFormat" }));
        QVERIFY(command.set(SettingKeys::jpegQuality, 0.9)); // takes the other's value back
        QCOMPARE(stored(), QJsonDocument::fromJson(R"({"captureSound":true,"exportFormat":"gif"})").object());
        QVERIFY(resident.value(SettingKeys::captureSound));
    }

    void aChangeFromOutsideIsTold_data()
    {
        QTest::addColumn<bool>("isThere");
        QTest::addColumn<bool>("isInPlace");
        QTest::newRow("of a file that appears") << false << false;
        QTest::newRow("of a file that is replaced") << true << false;
        QTest::newRow("of a file that is written in place") << true << true;
    }

    void aChangeFromOutsideIsTold()
    {
        QFETCH(bool, isThere);
        QFETCH(bool, isInPlace);
        if (isThere)
            QVERIFY(Settings(path()).set(SettingKeys::webpQuality, 0.5));
        Settings resident(path());
        resident.followOthers();
        QSignalSpy changes(&resident, &Settings::changed);
        for (const int days : { 7, 90 }) { // the second time is that of a file that was watched anew
            changes.clear();
            const QByteArray json = "{\"historyRetentionDays\":" + QByteArray::number(days) + ",\"webpQuality\":0.5}";
            if (isInPlace)
                QVERIFY(writeFile(path(), json));
            else
                QVERIFY(Settings(path()).set(SettingKeys::historyRetentionDays, days));
            QTRY_COMPARE(resident.value(SettingKeys::historyRetentionDays), days);
            QCOMPARE(keysOf(changes), QStringList({ "historyRetentionDays" }));
        }
        QVERIFY(QFile::remove(path()));
        QTRY_COMPARE(resident.value(SettingKeys::historyRetentionDays), 30);
    }

    void ownWritingIsNoChangeFromOutside()
    {
        Settings resident(path());
        resident.followOthers();
        QSignalSpy changes(&resident, &Settings::changed);
        QVERIFY(resident.set(SettingKeys::captureDelay, 5));
        QVERIFY(Settings(path()).set(SettingKeys::captureSound, true)); // comes after what that set off
        QTRY_COMPARE(changes.size(), 2);
        QCOMPARE(keysOf(changes), QStringList({ "captureDelay", "captureSound" }));
    }

    void whatIsHalfWrittenChangesNothing()
    {
        QVERIFY(Settings(path()).set(SettingKeys::captureDelay, 5));
        Settings resident(path());
        resident.followOthers();
        QSignalSpy changes(&resident, &Settings::changed);
        QVERIFY(writeFile(path(), "{\"captureDelay\":1"));
        QVERIFY(writeFile(path(), "{\"captureDelay\":10}"));
        QTRY_COMPARE(resident.value(SettingKeys::captureDelay), 10);
        QCOMPARE(changes.size(), 1);
    }

    void manyWritersLoseNothing()
    {
        constexpr int rounds = 15;
        QVERIFY(QDir().mkpath(m_folder->filePath(QStringLiteral("config"))));
        const auto writes = [this](const SettingKey<int> &key) {
            return [this, key] {
                Settings settings(path());
                for (int round = 1; round <= rounds; ++round) {
                    while (!settings.set(key, round)) { } // until the others have finished
                }
                return 0;
            };
        };
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(writes(SettingKeys::captureDelay)());
        writes(SettingKeys::newsletterCaptureCount)();
        int status = -1;
        ::waitpid(child, &status, 0);
        QCOMPARE(status, 0);
        QCOMPARE(stored(), QJsonDocument::fromJson(R"({"captureDelay":15,"newsletterCaptureCount":15})").object());
    }

    void aWriterThatWasKilledHoldsNobodyUp()
    {
        QVERIFY(Settings(path()).set(SettingKeys::captureDelay, 5));
        const int status = test::inChild([this] {
            QLockFile lock(path() + QStringLiteral(".lock"));
            if (!lock.lock())
                return 1;
            writeFile(m_folder->filePath(QStringLiteral("config/.tessaly-1")), "{\"captureDelay\":"); // not renamed yet
            ::raise(SIGKILL);
            return 2;
        });
        QCOMPARE(status, -1);
        QVERIFY(Settings(path()).set(SettingKeys::captureSound, true));
        QCOMPARE(stored(), QJsonDocument::fromJson(R"({"captureDelay":5,"captureSound":true})").object());
    }

    void aWriterThatHangsIsNotWaitedForLong()
    {
        Settings settings(path());
        QVERIFY(settings.set(SettingKeys::captureDelay, 5));
        {
            QLockFile lock(path() + QStringLiteral(".lock"));
            QVERIFY(lock.lock());
            const Outcome outcome = settings.set(SettingKeys::captureSound, true);
            QVERIFY(!outcome);
            QVERIFY(outcome.failure().message.contains(path()));
            QVERIFY(settings.value(SettingKeys::captureSound));
        }
        QVERIFY(settings.set(SettingKeys::captureDelay, 3)); // brings along what was not written
        QCOMPARE(stored(), QJsonDocument::fromJson(R"({"captureDelay":3,"captureSound":true})").object());
    }
};

QTEST_GUILESS_MAIN(SharedSettingsTest)
#include "SharedSettingsTest.moc"
