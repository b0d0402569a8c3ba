// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/CommandLine/CommandRun.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace tessaly;

namespace {

constexpr char blackCover[]
    = R"([{"kind":"rectangle","filled":true,"p1":[0,0],"p2":[40,20],"colorHex":"#000000","cornerRadius":0}])";

constexpr char lines[] = R"("lines":[{"text":"Grüße","boundingBox":[0.25,0,0.5,0.125]},)"
                         R"({"text":"two","boundingBox":[0,0.5,0.25,0.125]}])";
constexpr char codes[] = R"("codes":[{"payload":"https://tessaly.test","isQR":true,"boundingBox":[0.5,0.5,0.25,0.5]}])";
constexpr char noLines[] = R"("lines":[])";
constexpr char noCodes[] = R"("codes":[])";
constexpr char lightFile[] = R"("file":"light.png")";
constexpr char darkFile[] = R"("file":"dark.png")";

/// Two lines and a code in a light picture, nothing in a dark one; one of a single pixel cannot be read.
Result<RecognizedContent> contentOf(const TextRecognizer::Request &request)
{
    if (request.image.pixelSize() == QSize(1, 1))
        return Failure { "It is too small." };
    RecognizedContent content;
    if (request.image.pixels.pixelColor(20, 10).lightness() < 40)
        return content;
    content.lines = { { "Grüße", { 0.25, 0, 0.5, 0.125 } }, { "two", { 0, 0.5, 0.25, 0.125 } } };
    if (request.codes == TextRecognizer::Codes::Detect)
        content.codes = { { "https://tessaly.test", true, { 0.5, 0.5, 0.25, 0.5 } } };
    return content;
}

} // namespace

class TextCommandTest : public QObject {
    Q_OBJECT

    test::Program m_program;

    static test::Finished run(const QStringList &arguments, const test::ScriptedRecognizer::Answer &answer = contentOf)
    {
        return test::runCommand(QStringList { "text" } + arguments,
            { {}, [&answer] { return std::make_unique<test::ScriptedRecognizer>(answer); } });
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *name : { "XDG_CONFIG_HOME", "XDG_DATA_HOME" })
            qputenv(name, m_program.path(name).toLocal8Bit());
        QDir::setCurrent(m_program.path({}));
        m_program.putPicture("light.png", { 40, 20 });
        m_program.putPicture("tiny.png", { 1, 1 });
        QImage dark(40, 20, QImage::Format_RGB32);
        dark.fill(Qt::black);
        dark.save(m_program.path("dark.png"));
        m_program.put("cover.json", blackCover);
        QCOMPARE(m_program.run({ "document", "light.png", "-o", "seen.tessaly" }).status, 0);
        QCOMPARE(
            m_program.run({ "document", "light.png", "-o", "hidden.tessaly", "--annotations", "cover.json" }).status,
            0);
    }

    void textIsPrinted_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("output");
        const QString text = QStringLiteral("Grüße\ntwo\n"), code = QStringLiteral("https://tessaly.test\n");
        QTest::newRow("lines") << QStringList { "light.png" } << text;
        QTest::newRow("codes after them") << QStringList { "light.png", "--codes" } << text + code;
        QTest::newRow("nothing there") << QStringList { "dark.png", "--codes" } << QString();
        QTest::newRow("several, set apart")
            << QStringList { "light.png", "dark.png", "light.png" } << text + u'\n' + text;
        QTest::newRow("a document") << QStringList { "seen.tessaly" } << text;
        QTest::newRow("what a document hides") << QStringList { "hidden.tessaly" } << QString();
    }

    void textIsPrinted()
    {
        QFETCH(QStringList, arguments);
        const auto finished = run(arguments);
        QCOMPARE(finished.messages, QString());
        QCOMPARE(finished.status, 0);
        QTEST(QString::fromUtf8(finished.output), "output");
    }

    void jsonHasTheBoxes()
    {
        const auto parsed = [](const QByteArray &json) { return QJsonDocument::fromJson(json); };
        const QByteArray all = lines, none = noLines;
        QCOMPARE(parsed(run({ "light.png", "--json" }).output), parsed('{' + all + ',' + noCodes + '}'));
        QCOMPARE(parsed(run({ "light.png", "--json", "--codes" }).output), parsed('{' + all + ',' + codes + '}'));
        QCOMPARE(parsed(run({ "dark.png", "--json" }).output), parsed('{' + none + ',' + noCodes + '}'));
        QCOMPARE(parsed(run({ "dark.png", "light.png", "--json" }).output),
            parsed(QByteArray("[{") + darkFile + ',' + none + ',' + noCodes + "},{" + lightFile + ',' + all + ','
                + noCodes + "}]"));
    }

    void whatCannotBeReadIsNamed()
    {
        const auto finished = run({ "tiny.png", "light.png", "gone.png" });
        QCOMPARE(finished.status, 1);
        QCOMPARE(finished.output, QByteArray("Grüße\ntwo\n"));
        QCOMPARE(finished.messageLines().size(), 2);
        QCOMPARE(finished.messageLines().first(), "tessaly: tiny.png: It is too small.");
        QVERIFY(finished.messageLines().last().contains("gone.png"));
    }

    void withoutARecognizer()
    {
        const auto finished = test::runCommand({ "text", "light.png" }, { {}, [] { return nullptr; } });
        QCOMPARE(finished.status, 1);
        QVERIFY(finished.output.isEmpty());
        QCOMPARE(finished.messageLines().size(), 1);
    }
};

QTEST_GUILESS_MAIN(TextCommandTest)
#include "TextCommandTest.moc"
