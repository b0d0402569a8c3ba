// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryEntry.h"
#include "core/History/HistoryIndexScanner.h"

#include "HistorySamples.h"
#include "tests/support/Rows.h"

#include <QJsonDocument>
#include <QTimeZone>

using namespace tessaly;

class HistoryEntryTest : public QObject {
    Q_OBJECT

    static QJsonObject sampleJson()
    {
        return { { "id", QStringLiteral("6f1c2d3e-0000-4000-8000-000000000007") },
            { "title", QStringLiteral("Größe \"1\"") }, { "created", QStringLiteral("2026-01-31T08:15:00.250Z") },
            { "modified", QStringLiteral("2026-02-01T00:00:00.000Z") }, { "pixelWidth", 3840 }, { "pixelHeight", 2160 },
            { "recognizedText", QStringLiteral("one\ntwo") } };
    }

private Q_SLOTS:
    void standsInJsonAsItIsRead()
    {
        const auto entry = HistoryEntry::fromJson(sampleJson());
        QVERIFY(entry);
        QCOMPARE(entry->id, test::sampleId(7));
        QCOMPARE(entry->title, QStringLiteral("Größe \"1\""));
        QCOMPARE(entry->created, QDateTime(QDate(2026, 1, 31), QTime(8, 15, 0, 250), Qt::UTC));
        QCOMPARE(entry->modified, QDateTime(QDate(2026, 2, 1), QTime(0, 0), Qt::UTC));
        QCOMPARE(QSize(entry->pixelWidth, entry->pixelHeight), QSize(3840, 2160));
        QCOMPARE(entry->recognizedText, QStringLiteral("one\ntwo"));
        QCOMPARE(entry->toJson(), sampleJson());
        HistoryEntry unread = *entry;
        unread.recognizedText.reset();
        QVERIFY(!unread.toJson().contains(u"recognizedText"));
        QCOMPARE(*HistoryEntry::fromJson(unread.toJson()), unread);
    }

    void writesInstantsInUtc()
    {
        HistoryEntry entry = test::sampleEntry(1);
        entry.created = QDateTime(QDate(2026, 7, 1), QTime(1, 30), Qt::OffsetFromUTC, 7200);
        QCOMPARE(entry.toJson().value(u"created").toString(), QStringLiteral("2026-06-30T23:30:00.000Z"));
    }

    void readsEntries_data()
    {
        // reason: empty: it is read
        test::columns<QString, QJsonValue, QString>("key", "value", "reason");
        const QString missing = QStringLiteral("The capture has no “%1”.");
        const QString wrong = QStringLiteral("The “%1” of the capture cannot be read.");
        for (const char *key : { "id", "title", "created", "modified", "pixelWidth", "pixelHeight" }) {
            const QString name = QString::fromLatin1(key);
            QTest::addRow("no %s", key) << name << QJsonValue(QJsonValue::Undefined) << missing.arg(name);
            QTest::addRow("null as %s", key) << name << QJsonValue() << wrong.arg(name);
        }
        test::row("no text", "recognizedText", QJsonValue(QJsonValue::Undefined), QString());
        test::row("null as text", "recognizedText", QJsonValue(), QString());
        test::row("number as text", "recognizedText", QJsonValue(3), wrong.arg(u"recognizedText"));
        test::row("half a pixel", "pixelWidth", QJsonValue(1.5), wrong.arg(u"pixelWidth"));
        test::row("no identifier", "id", QJsonValue(QStringLiteral("7")), wrong.arg(u"id"));
        test::row("whole seconds", "created", QJsonValue(QStringLiteral("2026-01-31T08:15:00Z")), QString());
        test::row("another zone", "created", QJsonValue(QStringLiteral("2026-01-31T08:15:00.250+02:00")), QString());
        for (const char *date :
            { "2026-02-30T08:15:00.250Z", "2026-01-31T25:15:00.250Z", "2x26-01-31T08:15:00.250Z", "31.1.2026", "" })
            QTest::newRow(date) << "created" << QJsonValue(QString::fromLatin1(date)) << wrong.arg(u"created");
        test::row("an unknown key", "colour", QJsonValue(QStringLiteral("red")), QString());
    }

    void readsEntries()
    {
        QFETCH(QString, key);
        QFETCH(QJsonValue, value);
        QFETCH(QString, reason);
        QJsonObject json = sampleJson();
        json.insert(key, value);
        const auto entry = HistoryEntry::fromJson(json);
        QCOMPARE(entry ? QString() : entry.failure().message, reason);
        if (entry && key == u"created")
            QCOMPARE(entry->created, QDateTime::fromString(value.toString(), Qt::ISODateWithMs));
    }

    void sortsTheNewestFirst()
    {
        auto late = test::sampleEntry(3), early = test::sampleEntry(1);
        auto same = test::sampleEntry(2);
        same.created = early.created.toTimeZone(QTimeZone(7200)); // the same instant
        for (const QList<HistoryEntry> &entries :
            { QList { early, same, late }, QList { late, same, early }, QList { same, late, early } })
            QCOMPARE(sorted(entries), QList({ late, early, same }));
    }

    void readsItsIndexAgain()
    {
        HistoryIndex index { .entries = { test::sampleEntry(2), test::sampleEntry(1, QStringLiteral("\u00e9\n")) } };
        index.entries.last().recognizedText = QString(5000, u'ß');
        const auto read = HistoryIndex::decoded(index.encoded());
        QVERIFY(read);
        QCOMPARE(read->entries, index.entries);
        const QJsonObject object = QJsonDocument::fromJson(index.encoded()).object();
        QCOMPARE(object.keys(), QStringList({ "entries", "version" }));
        QCOMPARE(object.value(u"version"), QJsonValue(1));
    }

    /// Whatever form the text has: the fast reader takes it as the general one does, or leaves it.
    void readsAllFormsOfItsIndex_data()
    {
        test::columns<QByteArray, bool>("json", "isFast");
        HistoryEntry entry = test::sampleEntry(1, QStringLiteral("a\"\\/\b\f\n\r\t–😀"));
        HistoryEntry text = test::sampleEntry(2);
        text.recognizedText = QStringLiteral("\\n\n\"");
        const QByteArray plain = HistoryIndex { .entries = { text, entry } }.encoded();
        test::row("as written", plain, true);
        test::row("indented", QJsonDocument::fromJson(plain).toJson(), true);
        test::row("null as text", QByteArray(plain).replace("\"\\\\n\\n\\\"\"", "null"), false);
        test::row("an unknown key", QByteArray(plain).replace("\"version\"", "\"later\":[],\"version\""), false);
        test::row("a key twice", QByteArray(plain).replace("\"title\"", "\"title\":\"x\",\"title\""), false);
        test::row("other numbers", QByteArray(plain).replace(":64", ":64.0"), false);
        test::row("a zero before a number", QByteArray(plain).replace(":64", ":064"), false);
        test::row("control letters", QByteArray(plain).replace("\\t", "\\u0009"), false);
        test::row("a byte order mark", QByteArray(plain).replace("Screenshot", "\xef\xbb\xbfx"), false);
        test::row("garbage behind", plain + "x", false);
        test::row("no entries", HistoryIndex {}.encoded(), true);
        test::row("no UTF-8", QByteArray(plain).replace("Screenshot", "\xc3"), false);
    }

    void readsAllFormsOfItsIndex()
    {
        QFETCH(QByteArray, json);
        QFETCH(bool, isFast);
        const auto fast = HistoryIndexScanner(json).entries();
        QCOMPARE(fast.has_value(), isFast);
        QList<HistoryEntry> general;
        const QJsonArray elements = QJsonDocument::fromJson(json).object().value(u"entries").toArray();
        for (const QJsonValue &element : elements)
            general += *HistoryEntry::fromJson(element.toObject());
        const auto index = HistoryIndex::decoded(json);
        QCOMPARE(static_cast<bool>(index), !QJsonDocument::fromJson(json).isNull());
        QCOMPARE(index ? index->entries : general, general);
    }

    void refusesWhatIsNoIndex_data()
    {
        test::columns<QByteArray, QString>("json", "word");
        test::row("empty", QByteArray(), "illegal value");
        test::row(
            "cut off", HistoryIndex { .entries = { test::sampleEntry(1) } }.encoded().chopped(40), "unterminated");
        QTest::newRow("newer") << QByteArray(R"({"version":2,"entries":[]})") << "version 2";
        test::row("a list", QByteArray("[]"), "no version");
        QTest::newRow("no entries") << QByteArray(R"({"version":1,"entries":{}})") << "no entries";
        QTest::newRow("a bad entry") << QByteArray(R"({"version":1,"entries":[7]})") << "has no";
    }

    void refusesWhatIsNoIndex()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, word);
        const auto index = HistoryIndex::decoded(json);
        QVERIFY(!index);
        QVERIFY2(index.failure().message.contains(word), qPrintable(index.failure().message));
    }
};

QTEST_GUILESS_MAIN(HistoryEntryTest)
#include "HistoryEntryTest.moc"
