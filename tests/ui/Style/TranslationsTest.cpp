// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/Translations.h"

#include "core/Preferences/AppLanguages.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTest>

using namespace tessaly;

class TranslationsTest : public QObject {
    Q_OBJECT

    static QString shown(const char *context, const char *text) { return QCoreApplication::translate(context, text); }

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::system()); }

    void showsTheLanguage_data()
    {
        QTest::addColumn<QString>("copy");
        QTest::addColumn<QString>("finder");
        QTest::newRow("en") << "Copy"
                            << "Show in File Manager";
        QTest::newRow("es") << "Copiar"
                            << "Mostrar en el gestor de archivos";
        QTest::newRow("de") << "Kopieren"
                            << "In der Dateiverwaltung zeigen";
        QTest::newRow("fr") << "Copier"
                            << "Afficher dans le gestionnaire de fichiers";
    }
    void showsTheLanguage()
    {
        const QString language = QString::fromLatin1(QTest::currentDataTag());
        const Translations translations(language);
        QTEST(shown("Commands", "Copy"), "copy");
        QTEST(shown("EntryCommands", "Show in Finder"), "finder");
        QCOMPARE(shown("Commands", "A text that nobody has translated"), QString("A text that nobody has translated"));
        QCOMPARE(shown("AnotherContext", "Show in Finder"), QString("Show in File Manager"));
        QCOMPARE(QLocale().language(), QLocale(language).language());
    }

    /// What is alike in both languages is no text that was forgotten.
    void tellsTextsOfOneSpellingApart()
    {
        const Translations german(QStringLiteral("de"));
        QCOMPARE(shown("EntryCommands", "Open"), QString("Öffnen"));
        QCOMPARE(QCoreApplication::translate("Options", "Open", "arrowhead.open"), QString("Offen"));
        QCOMPARE(shown("MarkNames", "Text"), QString("Text"));
    }

    void endsWithItsObject()
    {
        {
            const Translations german(QStringLiteral("de"));
        }
        QCOMPARE(shown("Commands", "Copy"), QString("Copy"));
        QCOMPARE(shown("EntryCommands", "Show in Finder"), QString("Show in Finder"));
    }

    void everyOfferedLanguageIsThere()
    {
        for (const AppLanguage &language : appLanguages) {
            const QLatin1StringView code(language.code);
            if (code == u"system")
                continue;
            QTest::failOnWarning(QRegularExpression(QStringLiteral("no texts")));
            const Translations translations { QString(code) };
        }
    }
};

QTEST_GUILESS_MAIN(TranslationsTest)
#include "TranslationsTest.moc"
