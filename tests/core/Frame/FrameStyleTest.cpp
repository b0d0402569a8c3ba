// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Frame/FrameStyle.h"
#include "core/Frame/Watermark.h"

#include <QTest>

using namespace tessaly;

/// Frame and watermark as records.
class FrameStyleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsDefaultsForWhatIsMissing()
    {
        QCOMPARE(*FrameStyle::fromJson({}), FrameStyle());
        QCOMPARE(*Watermark::fromJson({}), Watermark());
        const auto some = FrameStyle::fromJson({ { QStringLiteral("aspect"), QStringLiteral("r9x16") } });
        QCOMPARE(some->aspect, CropAspect::R9x16);
        QCOMPARE(some->gradientColors, (QStringList { "#FF4D6D", "#D6174F" }));
    }

    void namesGradients()
    {
        QCOMPARE(FrameStyle::gradientName(u"graphite"), QStringLiteral("Graphite"));
        QCOMPARE(FrameStyle::gradientName(u"neon"), QStringLiteral("Mist"));
    }

    void showsOnlyWhatCanBeSeen_data()
    {
        QTest::addColumn<Watermark>("watermark");
        QTest::addColumn<bool>("visible");
        const QByteArray logo("logo");
        QTest::newRow("text") << Watermark { .text = QStringLiteral(" © ") } << true;
        QTest::newRow("blank text") << Watermark { .text = QStringLiteral(" \n\t ") } << false;
        QTest::newRow("text is not shown for its logo") << Watermark { .imageData = logo } << false;
        QTest::newRow("logo") << Watermark { .kind = WatermarkKind::Image, .imageData = logo } << true;
        QTest::newRow("no logo") << Watermark { .kind = WatermarkKind::Image, .text = QStringLiteral("x") } << false;
    }

    void showsOnlyWhatCanBeSeen()
    {
        QFETCH(Watermark, watermark);
        QTEST(watermark.isVisible(), "visible");
    }

    void anchorsTheNinePlaces()
    {
        QCOMPARE(anchor(WatermarkPosition::TopLeft), QPointF(0, 0));
        QCOMPARE(anchor(WatermarkPosition::TopRight), QPointF(1, 0));
        QCOMPARE(anchor(WatermarkPosition::Left), QPointF(0, 0.5));
        QCOMPARE(anchor(WatermarkPosition::Bottom), QPointF(0.5, 1));
        QCOMPARE(anchor(WatermarkPosition::BottomRight), QPointF(1, 1));
        QCOMPARE(anchor(WatermarkPosition::Tile), QPointF(0.5, 0.5));
    }

    void bringsNumbersIntoRange()
    {
        const FrameStyle wild { .padding = -1, .cornerRadius = qInf(), .shadow = qQNaN() };
        QCOMPARE(wild.drawable(), (FrameStyle { .padding = 0, .cornerRadius = 1e5, .shadow = 0.5 }));
        QCOMPARE((Watermark { .opacity = 7, .size = -qInf() }.drawable()), (Watermark { .opacity = 1, .size = 0 }));
        QCOMPARE(FrameStyle().drawable(), FrameStyle());
    }
};

QTEST_GUILESS_MAIN(FrameStyleTest)
#include "FrameStyleTest.moc"
