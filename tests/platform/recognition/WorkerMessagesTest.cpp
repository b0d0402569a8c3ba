// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/WorkerMessages.h"

#include "platform/recognition/GrayPicture.h"

#include <QCborValue>
#include <QImage>
#include <QTest>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/socket.h>

using namespace tessaly;
using namespace WorkerMessages;

class WorkerMessagesTest : public QObject {
    Q_OBJECT

    static Order anOrder()
    {
        return { Kind::Recognize, 7, { QStringLiteral("eng"), QStringLiteral("spa") }, TextRecognizer::Level::Fast,
            TextRecognizer::Codes::Skip, TextRecognizer::Urgency::Background, { 640, 480 } };
    }

private Q_SLOTS:
    void comeThroughUnchanged()
    {
        QCOMPARE(decodedOrder(encoded(anOrder())), anOrder());
        RecognizedContent content;
        content.lines += { QStringLiteral("Größe: 3 px"), { 0.1, 0.2, 0.3, 0.4 },
            { { QStringLiteral("Größe:"), { 0.1, 0.2, 0.1, 0.4 } } } };
        content.codes += { QStringLiteral("https://example.org"), true, { 0.5, 0.5, 0.25, 0.25 } };
        const Answer answer { Kind::Finished, 7, QStringLiteral("message"), content };
        QCOMPARE(decodedAnswer(encoded(answer)), answer);
    }

    void refuseWhatIsNotOne_data()
    {
        QTest::addColumn<QByteArray>("body");
        const auto changed = [](auto change) {
            Order order = anOrder();
            change(order);
            return encoded(order);
        };
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("no CBOR") << QByteArray("\xff\xff\xff\xff");
        QTest::newRow("no map") << QCborValue(5).toCbor();
        QTest::newRow("an empty map") << QCborValue(QCborMap()).toCbor();
        QTest::newRow("cut off") << encoded(anOrder()).chopped(3);
        QTest::newRow("an unknown kind") << changed([](Order &order) { order.kind = Kind(99); });
        QTest::newRow("an answer's kind") << changed([](Order &order) { order.kind = Kind::Finished; });
        QTest::newRow("an unknown level") << changed([](Order &order) { order.level = TextRecognizer::Level(9); });
        QTest::newRow("no width") << changed([](Order &order) { order.pixelSize = { 0, 10 }; });
        QTest::newRow("a negative height") << changed([](Order &order) { order.pixelSize = { 10, -10 }; });
        QTest::newRow("more pixels than fit") << changed([](Order &order) { order.pixelSize = { 1 << 20, 1 << 20 }; });
    }

    void refuseWhatIsNotOne()
    {
        QFETCH(QByteArray, body);
        QVERIFY(!decodedOrder(body));
    }

    void areTakenOutOfAStreamWhole()
    {
        const QByteArray stream = framed("one") + framed("") + framed("three");
        QByteArray received;
        QList<QByteArray> bodies;
        for (const char byte : stream) {
            received += byte;
            for (auto frame = takeFrame(received, 5); frame && *frame; frame = takeFrame(received, 5))
                bodies += **frame;
        }
        QCOMPARE(bodies, QList<QByteArray>({ "one", "", "three" }));
        QByteArray tooLong = framed("123456");
        QVERIFY(!takeFrame(tooLong, 5));
    }

    void carryAPicture()
    {
        QImage gray(7, 3, QImage::Format_Grayscale8); // its rows have a gap at their end
        gray.fill(40);
        gray.setPixelColor(6, 2, Qt::white);
        int ends[2];
        QCOMPARE(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
        const Descriptor sender(ends[0]), receiver(ends[1]);
        QVERIFY(send(sender.get(), "order", sealedPicture(gray).get()));
        QByteArray received;
        Descriptor picture;
        QVERIFY(receive(receiver.get(), received, &picture));
        QCOMPARE(received, QByteArray("order"));
        QCOMPARE(mappedPicture(picture, gray.size()), gray);
        QVERIFY(mappedPicture(picture, { 8, 3 }).isNull());
        QVERIFY(mappedPicture(picture, { 0, 3 }).isNull());
        QVERIFY(mappedPicture(Descriptor(), gray.size()).isNull());
        const Descriptor unsealed(::memfd_create("unsealed", MFD_CLOEXEC | MFD_ALLOW_SEALING));
        QCOMPARE(::ftruncate(unsealed.get(), 21), 0);
        QVERIFY(mappedPicture(unsealed, gray.size()).isNull()); // it could shrink while it is read
    }

    void grayPicturesLieOnWhite()
    {
        QImage picture(3, 1, QImage::Format_ARGB32_Premultiplied);
        picture.setPixelColor(0, 0, Qt::transparent);
        picture.setPixelColor(1, 0, Qt::black);
        picture.setPixelColor(2, 0, QColor(0, 255, 0));
        const QImage gray = grayPicture(picture);
        QCOMPARE(int(gray.constScanLine(0)[0]), 255);
        QCOMPARE(int(gray.constScanLine(0)[1]), 0);
        QVERIFY(std::abs(gray.constScanLine(0)[2] - 183) <= 1); // green is most of what is seen
        QVERIFY(grayPicture({}).isNull());
    }
};

QTEST_GUILESS_MAIN(WorkerMessagesTest)
#include "WorkerMessagesTest.moc"
