// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Text/LiveTextModel.h"
#include "tests/support/FakeRecognition.h"

#include <QSignalSpy>
#include <QTest>

using namespace tessaly;
using namespace tessaly::test;
using namespace std::chrono_literals;

class LiveTextModelTest : public QObject {
    Q_OBJECT

    using Status = LiveTextModel::Status;
    using Ready = LiveTextModel::Ready;

    FakeRecognizer m_recognizer;

    static RasterImage picture(int side = 4)
    {
        QImage pixels(side, side, QImage::Format_RGB32);
        pixels.fill(Qt::white);
        return RasterImage::fromPixels(pixels);
    }

private Q_SLOTS:
    void init() { m_recognizer = {}; }

    void itEndsReady_data()
    {
        QTest::addColumn<std::optional<RecognizedContent>>("found"); // empty: recognising failed
        QTest::addColumn<bool>("hasText");
        using Found = std::optional<RecognizedContent>;
        QTest::newRow("with text") << Found({ { { "a", {} } }, {} }) << true;
        QTest::newRow("with a code only") << Found({ {}, { { "a", true, {} } } }) << false;
        QTest::newRow("with nothing") << Found(RecognizedContent()) << false;
        QTest::newRow("failed") << Found() << false;
    }

    void itEndsReady()
    {
        QFETCH(std::optional<RecognizedContent>, found);
        QFETCH(bool, hasText);
        LiveTextModel model(m_recognizer);
        QCOMPARE(model.status(), Status(LiveTextModel::Off {}));
        model.analyze(picture(), 0ms);
        QCOMPARE(model.status(), Status(LiveTextModel::Analyzing {}));
        QVERIFY(!model.analysis());
        QSignalSpy changed(&model, &LiveTextModel::changed);
        if (found)
            m_recognizer.answer(*found);
        else
            m_recognizer.answer(Failure { "broken" });
        QCOMPARE(model.status(), Status(Ready { hasText }));
        QCOMPARE(model.analysis(), found.value_or(RecognizedContent()));
        QCOMPARE(changed.size(), 1);
        model.stop();
        QCOMPARE(model.status(), Status(LiveTextModel::Off {}));
        QVERIFY(!model.analysis());
    }

    void itWaitsForTheDelay()
    {
        LiveTextModel model(m_recognizer);
        model.analyze(picture(), 5ms);
        QCOMPARE(model.status(), Status(LiveTextModel::Off {}));
        QVERIFY(m_recognizer.pending.isEmpty());
        QTRY_COMPARE(model.status(), Status(LiveTextModel::Analyzing {}));
        QCOMPARE(m_recognizer.pending.first()->request.image, picture());
    }

    void aNewerPictureTakesThePlaceOfTheOlder()
    {
        LiveTextModel model(m_recognizer);
        model.analyze(picture(4), 1h); // waits
        model.analyze(picture(5), 0ms);
        model.analyze(picture(6), 0ms); // while 5 is being read
        QCOMPARE(m_recognizer.cancelled, 1);
        QCOMPARE(m_recognizer.pending.size(), 1);
        QCOMPARE(m_recognizer.pending.first()->request.image, picture(6));
        m_recognizer.answer(RecognizedContent { { { "six", {} } }, {} });
        model.analyze(picture(7), 1h);
        QVERIFY2(!model.analysis(), "what stood on another picture does not stand on this one");
    }

    void stoppingCancels()
    {
        LiveTextModel model(m_recognizer);
        model.analyze(picture(), 0ms);
        model.stop();
        QCOMPARE(m_recognizer.cancelled, 1);
        QCOMPARE(model.status(), Status(LiveTextModel::Off {}));
    }

    void withoutARecognizerItIsUnsupported()
    {
        m_recognizer.supported = false;
        LiveTextModel model(m_recognizer);
        model.analyze(picture(), 0ms);
        QCOMPARE(model.status(), Status(LiveTextModel::Unsupported {}));
        QVERIFY(m_recognizer.pending.isEmpty());
    }
};

QTEST_GUILESS_MAIN(LiveTextModelTest)
#include "LiveTextModelTest.moc"
