// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Document/RecentDocuments.h"

#include "core/Preferences/Settings.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace tessaly;

/// The list of files that were opened or saved last.
class RecentDocumentsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString made(const QString &name) const
    {
        const QString path = m_folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        return file.open(QIODevice::WriteOnly) ? path : QString();
    }

private Q_SLOTS:
    void theNewestComesFirstAndOnce()
    {
        const QString settingsPath = m_folder.filePath("settings.json");
        QStringList expected;
        {
            Settings settings(settingsPath);
            RecentDocuments recents(settings);
            const QSignalSpy changes(&recents, &RecentDocuments::changed);
            for (int i = 0; i < RecentDocuments::maxCount + 2; ++i) {
                expected.prepend(made(QStringLiteral("%1.png").arg(i)));
                recents.add(expected.first());
            }
            recents.add(expected[3] + "/"); // as shells complete a document's folder
            expected.move(3, 0);
            QCOMPARE(changes.size(), RecentDocuments::maxCount + 3);
        }
        expected = expected.mid(0, RecentDocuments::maxCount);
        Settings settings(settingsPath);
        RecentDocuments recents(settings);
        QCOMPARE(recents.paths(), expected);
        QVERIFY(QFile::remove(expected.takeFirst()));
        QCOMPARE(recents.paths(), expected);
        recents.clear();
        QVERIFY(recents.paths().isEmpty());
    }

    void aSharedNameIsToldApartByItsFolder()
    {
        Settings settings { {} };
        RecentDocuments recents(settings);
        const QStringList paths { made("one/shot.png"), made("two/shot.png"), made("two/other.png") };
        for (const QString &path : paths)
            recents.add(path);
        QCOMPARE(recents.title(paths[0]), "shot.png — one");
        QCOMPARE(recents.title(paths[1]), "shot.png — two");
        QCOMPARE(recents.title(paths[2]), "other.png");
    }

    void aListThatIsNoneIsEmpty_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::newRow("no JSON") << QByteArray("[");
        QTest::newRow("an object") << QByteArray("{\"a\":1}");
        QTest::newRow("of numbers") << QByteArray("[1,2]");
    }

    void aListThatIsNoneIsEmpty()
    {
        QFETCH(QByteArray, stored);
        Settings settings { {} };
        QVERIFY(settings.set(SettingKeys::recentDocuments, stored));
        RecentDocuments recents(settings);
        QVERIFY(recents.paths().isEmpty());
        recents.add(made("a.png"));
        QCOMPARE(recents.paths(), QStringList(m_folder.filePath("a.png")));
    }
};

QTEST_GUILESS_MAIN(RecentDocumentsTest)
#include "RecentDocumentsTest.moc"
