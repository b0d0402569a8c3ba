// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Base/JsonFields.h"

#include <QJsonDocument>
#include <QTest>

using namespace tessaly;

namespace {

struct Record {
    int count = 3;
    double size = 0.5;
    QList<double> list;
    std::optional<QByteArray> bytes;

    bool operator==(const Record &) const = default;
};

constexpr std::tuple fields {
    json::Field { "bytes", &Record::bytes },
    json::Field { "count", &Record::count },
    json::Field { "list", &Record::list },
    json::Field { "size", &Record::size },
};
static_assert(json::areSorted(fields));
static_assert(!json::areSorted(std::tuple { std::get<1>(fields), std::get<0>(fields) }));

} // namespace

/// A record read and written by its table.
class JsonFieldsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesTheFirstKeyOfAnotherType_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QByteArray>("wrongKey");
        QTest::newRow("nothing") << QByteArray("{}") << QByteArray();
        QTest::newRow("whole number with a point") << QByteArray(R"({"count":1.0})") << QByteArray();
        QTest::newRow("half a number") << QByteArray(R"({"count":1.5})") << QByteArray("count");
        QTest::newRow("beyond the type") << QByteArray(R"({"count":2147483648})") << QByteArray("count");
        QTest::newRow("text") << QByteArray(R"({"count":"1"})") << QByteArray("count");
        QTest::newRow("the least") << QByteArray(R"({"count":-2147483648})") << QByteArray();
        QTest::newRow("one of a list") << QByteArray(R"({"list":[1,"2"]})") << QByteArray("list");
        QTest::newRow("no list") << QByteArray(R"({"list":{}})") << QByteArray("list");
        QTest::newRow("Base64") << QByteArray(R"({"bytes":"AAEC/w=="})") << QByteArray();
        QTest::newRow("Base64 without padding") << QByteArray(R"({"bytes":"AAEC/w"})") << QByteArray("bytes");
        QTest::newRow("Base64 of padding alone") << QByteArray(R"({"bytes":"===="})") << QByteArray("bytes");
        QTest::newRow("padding in the middle") << QByteArray(R"({"bytes":"AA==AAAA"})") << QByteArray("bytes");
        QTest::newRow("unknown keys around")
            << QByteArray(R"({"a":1,"bytez":2,"c":3,"count":4,"zz":5,"\u00e9":6})") << QByteArray();
        QTest::newRow("wrong behind unknown keys")
            << QByteArray(R"({"a":1,"lisa":2,"size":"3"})") << QByteArray("size");
        QTest::newRow("Base64 with a blank") << QByteArray(R"({"bytes":"AAEC /w=="})") << QByteArray("bytes");
        QTest::newRow("Base64 of other letters") << QByteArray("{\"bytes\":\"AAE\xc3\xa9\"}") << QByteArray("bytes");
    }

    void namesTheFirstKeyOfAnotherType()
    {
        QFETCH(QByteArray, json);
        Record record;
        QTEST(QByteArray(json::readOver(record, QJsonDocument::fromJson(json).object(), fields)), "wrongKey");
    }

    void comesBackAsWritten()
    {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte) {
            all += static_cast<char>(byte);
            const Record record { byte, byte / 7.0, { 0.1, -1e-300 }, all };
            Record read;
            QCOMPARE(json::readOver(read, json::write(record, fields), fields), nullptr);
            QCOMPARE(read, record);
        }
    }

    void leavesOutWhatIsAbsent() { QVERIFY(!json::write(Record(), fields).contains(u"bytes")); }

    void namesWhatCannotBeWritten()
    {
        QCOMPARE(json::firstUnwritable(Record(), fields), nullptr);
        QCOMPARE(QByteArray(json::firstUnwritable(Record { .list = { 1, qInf() } }, fields)), QByteArray("list"));
        QCOMPARE(QByteArray(json::firstUnwritable(Record { .size = qQNaN() }, fields)), QByteArray("size"));
    }
};

QTEST_GUILESS_MAIN(JsonFieldsTest)
#include "JsonFieldsTest.moc"
