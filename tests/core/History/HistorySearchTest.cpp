// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistorySearch.h"
#include "tests/support/Rows.h"

using namespace tessaly;

class HistorySearchTest : public QObject {
    Q_OBJECT

    static HistoryEntry entry(const QString &title, const std::optional<QString> &text = {},
        const QDateTime &created = QDateTime(QDate(2024, 5, 1), QTime(14, 3, 22)))
    {
        HistoryEntry entry;
        entry.id = QUuid::createUuid();
        entry.title = title;
        entry.created = created.toUTC();
        entry.recognizedText = text;
        return entry;
    }

    static QStringList titles(const QList<HistoryEntry> &entries)
    {
        QStringList titles;
        for (const HistoryEntry &each : entries)
            titles += each.title;
        return titles;
    }

private Q_SLOTS:
    void findsWords_data()
    {
        test::columns<QString, QString, QString, bool>("language", "text", "query", "found");

        const auto row
            = [](const char *name, const char *language, const char16_t *text, const char16_t *query, bool found) {
                  QTest::newRow(name) << QString::fromLatin1(language) << QString::fromUtf16(text)
                                      << QString::fromUtf16(query) << found;
              };
        row("part of a word", "en_GB", u"Invoice 2024-118", u"voic", true);
        row("other case", "en_GB", u"Invoice", u"iNVOICE", true);
        row("case beyond ASCII", "en_GB", u"ПРИВЕТ мир", u"привет МИР", true);
        row("accent in the text", "en_GB", u"Café Übersicht", u"cafe uber", true);
        row("accent in the query", "en_GB", u"Resume", u"résumé", true);
        row("composed and decomposed", "en_GB", u"Cafe\u0301 \u00c5ngstro\u0308m", u"caf\u00e9 a\u030angstr\u00f6m",
            true);
        row("sharp s", "de_DE", u"Straße", u"STRASSE", true);
        row("final sigma", "el_GR", u"ΟΔΥΣΣΕΥΣ", u"οδυσσευς", true);
        row("ligature and full width", "en_GB", u"ﬁle ＡＢＣ", u"file abc", true);
        row("Turkish dotted i", "tr_TR", u"İSTANBUL", u"istanbul", true);
        row("Turkish decomposed dot", "tr_TR", u"I\u0307STANBUL", u"istanbul", true);
        row("Turkish dotless i", "tr_TR", u"ISPARTA", u"ısparta", true);
        row("Turkish i are two letters", "tr_TR", u"ISPARTA", u"isparta", false);
        row("dotted i elsewhere", "en_GB", u"İstanbul", u"ISTANBUL", true);
        row("Chinese", "zh_CN", u"截图历史记录", u"历史", true);
        row("Japanese voicing is no accent", "ja_JP", u"ハス", u"バス", false);
        row("Hangul by whole syllables", "ko_KR", u"한국어", u"하", false);
        row("Hangul", "ko_KR", u"한국어 설정", u"설정 한국", true);
        row("Hebrew without points", "he_IL", u"שָׁלוֹם", u"שלום", true);
        row("Arabic without vowels", "ar_EG", u"مُحَمَّد", u"محمد", true);
        row("Indic vowel signs are letters", "hi_IN", u"कु", u"कि", false);
        row("invisible marks of direction", "en_GB", u"\u200ffile\u200e.png", u"file.png", true);
        row("characters that mean something elsewhere", "en_GB", u"100% [a.b]*(c)", u"% [a.b]*", true);
        row("all words, in any order", "en_GB", u"alpha beta gamma", u"gamma  \t alpha", true);
        row("one word is missing", "en_GB", u"alpha beta gamma", u"alpha delta", false);
        row("no word over two", "en_GB", u"alpha beta", u"habe", false);
        row("only blanks", "en_GB", u"anything", u" \t\n ", true);
        row("long date", "en_GB", u"", u"1 may 2024", true);
        row("short date", "en_GB", u"", u"01/05/2024", true);
        row("date in numbers", "en_GB", u"", u"2024-05-01", true);
        row("month of a year", "en_GB", u"", u"2024-05", true);
        row("weekday", "en_GB", u"", u"wednesday", true);
        row("weekday of the language", "de_DE", u"", u"mittwoch mai", true);
        row("time of day", "en_GB", u"", u"14:03", true);
        row("another day", "en_GB", u"", u"2 may 2023", false);
    }

    void findsWords()
    {
        QFETCH(QString, language);
        QFETCH(QString, text);
        QFETCH(QString, query);
        QFETCH(bool, found);
        HistorySearch search { QLocale(language) };
        QCOMPARE(search.matches(query, { entry({}, text) }).size(), found ? 1 : 0); // in the text
        QCOMPARE(search.matches(query, { entry(text) }).size(), found ? 1 : 0); // in the title
    }

    void noWordIsFoundAcrossTitleAndText()
    {
        HistorySearch search { QLocale::c() };
        QVERIFY(search.matches(QStringLiteral("fire2024"), { entry(QStringLiteral("Fire")) }).isEmpty());
        QCOMPARE(
            search.matches(QStringLiteral("fire fox"), { entry(QStringLiteral("Fire"), QStringLiteral("fox")) }).size(),
            1);
    }

    /// Typing and taking back letter by letter finds what each query finds by itself, in the order of the list.
    void typingFindsWhatAFreshSearchFinds()
    {
        const QStringList names { QStringLiteral("Mailbox settings"), QStringLiteral("settings"),
            QStringLiteral("Mail"), QStringLiteral("Set of mail"), QStringLiteral("Terminal") };
        QList<HistoryEntry> entries;
        for (const QString &name : names)
            entries += entry(name);
        HistorySearch typed { QLocale::c() };
        QStringList queries;
        for (const QString &whole : { QStringLiteral("mail set"), QStringLiteral("ailb"), QStringLiteral("zzz") }) {
            for (int length = 1; length <= whole.size(); ++length)
                queries += whole.left(length);
            for (int length = int(whole.size()); length >= 0; --length)
                queries += whole.left(length);
        }
        for (const QString &query : std::as_const(queries)) {
            HistorySearch fresh { QLocale::c() };
            QCOMPARE(titles(typed.matches(query, entries)), titles(fresh.matches(query, entries)));
        }
        QCOMPARE(titles(typed.matches(QStringLiteral("set mail"), entries)), QStringList({ names.at(0), names.at(3) }));
    }

    void followsChangesOfTheEntries()
    {
        const QString query = QStringLiteral("budget");
        HistorySearch search { QLocale::c() };
        QList<HistoryEntry> entries { entry(QStringLiteral("a")), entry(QStringLiteral("b")) };
        QVERIFY(search.matches(query, entries).isEmpty());
        entries[1].recognizedText = QStringLiteral("The Budget");
        QCOMPARE(titles(search.matches(query, entries)), QStringList { QStringLiteral("b") });
        entries[0].title = QStringLiteral("budget");
        QCOMPARE(search.matches(query, entries).size(), 2);
        entries.removeLast();
        QCOMPARE(search.matches(query, entries).size(), 1);
        entries[0].created = entries[0].created.addYears(10);
        QCOMPARE(search.matches(QStringLiteral("2034"), entries).size(), 1);
    }

    void adoptsOnlyWhatStillHolds()
    {
        const QList<HistoryEntry> entries { entry(QStringLiteral("a")), entry(QStringLiteral("b")) };
        HistorySearch search { QLocale::c() };
        const SearchKey same { entries.at(0).title, entries.at(0).created, {} };
        const SearchKey older { QStringLiteral("was b"), entries.at(1).created, {} };
        search.adopt({ { entries.at(0).id, { same, "adopted" } }, { entries.at(1).id, { older, "adopted" } } });
        QCOMPARE(titles(search.matches(QStringLiteral("adopted"), entries)), QStringList { QStringLiteral("a") });
        // What is adopted later counts for the same list, too.
        const SearchKey now { entries.at(1).title, entries.at(1).created, {} };
        search.adopt({ { entries.at(1).id, { now, "adopted" } } });
        QCOMPARE(search.matches(QStringLiteral("adopted"), entries).size(), 2);
    }
};

QTEST_GUILESS_MAIN(HistorySearchTest)
#include "HistorySearchTest.moc"
