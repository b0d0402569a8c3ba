// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Preferences/LanguageChoice.h"

#include "core/Preferences/Settings.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace tessaly;

class LanguageChoiceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void findsTheShownLanguage_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QStringList>("ofSystem");
        QTest::addColumn<QString>("shown");
        const QStringList austrian { "de-AT", "de", "en-US" };
        QTest::newRow("chosen") << "fr" << austrian << "fr";
        QTest::newRow("English is a choice too") << "en" << austrian << "en";
        QTest::newRow("that of the system") << "system" << austrian << "de";
        QTest::newRow("with a script") << "system" << QStringList("es-Latn-MX") << "es";
        QTest::newRow("the first that there is") << "system" << QStringList { "nl-NL", "fr-BE", "de" } << "fr";
        QTest::newRow("English before another") << "system" << QStringList { "en-GB", "fr" } << "en";
        QTest::newRow("none that there is") << "system" << QStringList { "ja-JP", "pt_BR" } << "en";
        QTest::newRow("no locale") << "system" << QStringList { "C" } << "en";
        QTest::newRow("unknown choice") << "tlh" << austrian << "de";
    }
    void findsTheShownLanguage()
    {
        QFETCH(QString, chosen);
        QFETCH(QStringList, ofSystem);
        QTEST(LanguageChoice::shown(chosen, ofSystem), "shown");
    }

    void migratesOlderSpellings_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("then");
        for (const char *kept : { "de", "system", "nl", "Klingon" })
            QTest::newRow(kept) << kept << kept;
        QTest::newRow("locale") << "de_DE.UTF-8"
                                << "de";
        QTest::newRow("tag") << "fr-CA"
                             << "fr";
        QTest::newRow("English name") << "german"
                                      << "de";
        QTest::newRow("own name") << "Español"
                                  << "es";
        QTest::newRow("three letters") << "eng"
                                       << "en";
        QTest::newRow("spaces") << " fr "
                                << "fr";
        QTest::newRow("empty") << ""
                               << "";
    }
    void migratesOlderSpellings()
    {
        QFETCH(QString, stored);
        QFETCH(QString, then);
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("settings.json")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{\"appLanguage\": \"" + stored.toUtf8() + "\", \"otherKey\": 1}");
        file.close();

        Settings settings(file.fileName());
        QVERIFY(LanguageChoice::migrate(settings));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray now = file.readAll();
        QCOMPARE(now.contains('"' + then.toUtf8() + '"'), !then.isEmpty());
        QVERIFY(now.contains("otherKey"));
        QCOMPARE(now.contains("appLanguage"), !then.isEmpty());
    }
};

QTEST_GUILESS_MAIN(LanguageChoiceTest)
#include "LanguageChoiceTest.moc"
