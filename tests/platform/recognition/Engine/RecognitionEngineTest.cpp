// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/Engine/RecognitionEngine.h"
#include "platform/recognition/Engine/RecognitionServer.h"
#include "platform/recognition/GrayPicture.h"
#include "tests/support/Rows.h"

#include <QPainter>

#include <sys/socket.h>

using namespace tessaly;
using Level = TextRecognizer::Level;

class RecognitionEngineTest : public QObject {
    Q_OBJECT

    static QImage pictureOf(const QStringList &rows, int pixelHeight, QColor text, QColor background)
    {
        QImage picture(420, 26 * int(rows.size()) + 20, QImage::Format_RGB32);
        picture.fill(background);
        QPainter painter(&picture);
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(pixelHeight);
        painter.setFont(font);
        painter.setPen(text);
        for (int row = 0; row < rows.size(); ++row)
            painter.drawText(20, 30 + 26 * row, rows[row]);
        return picture;
    }

    static RecognizedContent read(const QImage &picture, const QStringList &models, Level level = Level::Accurate)
    {
        RecognitionEngine engine(2);
        auto content = engine.read(grayPicture(picture), { { models, level }, TextRecognizer::Codes::Skip }, {});
        return content ? *std::move(content) : RecognizedContent();
    }

private Q_SLOTS:
    void reads_data()
    {
        test::columns<int, QColor, QColor, Level>("pixelHeight", "text", "background", "level");
        test::row("dark on light", 14, QColor(Qt::black), QColor(Qt::white), Level::Accurate);
        test::row("light on dark", 14, QColor(Qt::lightGray), QColor("#202020"), Level::Accurate);
        test::row("small gray hints", 11, QColor("#808080"), QColor("#ececec"), Level::Accurate);
        test::row("large", 22, QColor(Qt::black), QColor(Qt::white), Level::Accurate);
        test::row("without dictionaries", 14, QColor(Qt::black), QColor(Qt::white), Level::Fast);
    }

    void reads()
    {
        QFETCH(int, pixelHeight);
        QFETCH(QColor, text);
        QFETCH(QColor, background);
        QFETCH(Level, level);
        const QStringList rows { QStringLiteral("Save the changes"), QStringLiteral("Last opened yesterday") };
        const auto content = read(pictureOf(rows, pixelHeight, text, background), { QStringLiteral("eng") }, level);
        QCOMPARE(content.text(), rows.join(u'\n'));
    }

    void readsTwoLanguages_data()
    {
        test::columns<QStringList, QString>("models", "foreign");
        const QString eng = QStringLiteral("eng"), spa = QStringLiteral("spa"), deu = QStringLiteral("deu");
        const QString spanish = QString::fromUtf8("Mañana será otro día"),
                      german = QString::fromUtf8("Größe ändern für");
        test::row("Spanish first", QStringList { spa, eng }, spanish);
        test::row("Spanish second", QStringList { eng, spa }, spanish);
        test::row("German second", QStringList { eng, deu }, german);
    }

    void readsTwoLanguages()
    {
        QFETCH(QStringList, models);
        QFETCH(QString, foreign);
        const QStringList rows { QStringLiteral("The window was closed"), foreign };
        QCOMPARE(read(pictureOf(rows, 16, Qt::black, Qt::white), models).text(), rows.join(u'\n'));
    }

    void saysWhereWordsAre()
    {
        const auto content = read(
            pictureOf({ QStringLiteral("Left middle right") }, 16, Qt::black, Qt::white), { QStringLiteral("eng") });
        QCOMPARE(content.lines.size(), 1);
        const auto &line = content.lines.first();
        QCOMPARE(line.words.size(), 3);
        QVERIFY(QRectF(0, 0, 1, 1).contains(line.boundingBox));
        QVERIFY(std::abs(line.boundingBox.left() - 20 / 420.0) < 0.01);
        double right = 0;
        for (const auto &word : line.words) {
            QVERIFY(word.boundingBox.left() >= right);
            right = word.boundingBox.right();
        }
        QVERIFY(std::abs(right - line.boundingBox.right()) < 0.02);
    }

    void failsWithoutItsModels()
    {
        RecognitionEngine engine(1);
        QVERIFY(!engine.load({ { QStringLiteral("nosuchlanguage") } }));
        QVERIFY(!engine.load({}));
        QVERIFY(engine.load({ { QStringLiteral("eng") } }));
    }

    void doesNothingOnceCancelled()
    {
        RecognitionEngine engine(1);
        Cancellation cancellation;
        cancellation.cancel();
        const auto content = engine.read(grayPicture(pictureOf({ QStringLiteral("Words") }, 16, Qt::black, Qt::white)),
            { { { QStringLiteral("eng") } } }, cancellation);
        QVERIFY(content && content->isEmpty());
    }

    void servesUntilItIsToldNonsense_data()
    {
        test::columns<QByteArray, bool>("bytes", "ended");
        test::row("the other side went away", QByteArray(), true);
        test::row("in the middle of a message", QByteArray("\x10\x00\x00\x00\x01", 5), false);
        test::row("a message too long", QByteArray("\xff\xff\xff\x7f", 4), false);
        test::row("no order", WorkerMessages::framed("nonsense"), false);
    }

    void servesUntilItIsToldNonsense()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, ended);
        int ends[2];
        QCOMPARE(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
        WorkerMessages::Descriptor own(ends[0]);
        const WorkerMessages::Descriptor other(ends[1]);
        QVERIFY(WorkerMessages::send(own.get(), bytes));
        own.reset();
        RecognitionServer server(other.get());
        QCOMPARE(server.run(), ended);
    }
};

QTEST_MAIN(RecognitionEngineTest)
#include "RecognitionEngineTest.moc"
