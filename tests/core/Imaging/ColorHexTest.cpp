// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ColorHex.h"

#include <QTest>

using namespace tessaly;

class ColorHexTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("written");

        const QColor pink(0xff, 0x33, 0x66);
        QTest::newRow("three digits") << u"#f36"_qs << pink << u"#FF3366"_qs;
        QTest::newRow("blanks around") << u" \t#FF3366\r\n"_qs << pink << u"#FF3366"_qs;
        QTest::newRow("no sign") << u"FF3366"_qs << pink << u"#FF3366"_qs;
        QTest::newRow("alpha is not written") << u"#FF336680"_qs << QColor(0xff, 0x33, 0x66, 128) << u"#FF3366"_qs;
        QTest::newRow("clear") << u"#FF336600"_qs << QColor(0xff, 0x33, 0x66, 0) << u"#FF3366"_qs;
        QTest::newRow("nothing") << QString() << QColor(Qt::black) << u"#000000"_qs;
        QTest::newRow("a sign alone") << u"#"_qs << QColor(Qt::black) << u"#000000"_qs;
        QTest::newRow("a word") << u"red"_qs << QColor(Qt::black) << u"#000000"_qs;
        QTest::newRow("one sign is dropped") << u"##FF3366"_qs << QColor(Qt::black) << u"#000000"_qs;
        QTest::newRow("four digits are the low ones") << u"#ABCD"_qs << QColor(0x00, 0xab, 0xcd) << u"#00ABCD"_qs;
        QTest::newRow("stops at a stranger") << u"#12G456"_qs << QColor(0, 0, 0x12) << u"#000012"_qs;
        QTest::newRow("a stranger doubled") << u"#1G2"_qs << QColor(0, 0, 0x11) << u"#000011"_qs;
        QTest::newRow("eight with a stranger") << u"#FF33668G"_qs << QColor(0x0f, 0xf3, 0x36, 0x68) << u"#0FF336"_qs;
        QTest::newRow("nine digits") << u"#1FF336680"_qs << QColor(0x33, 0x66, 0x80) << u"#336680"_qs;
        QTest::newRow("full-width digits are none") << u"#\uff11\uff11\uff11"_qs << QColor(Qt::black) << u"#000000"_qs;
    }

    void readsText()
    {
        QFETCH(QString, text);
        QTEST(ColorHex::toColor(text), "color");
        QTEST(ColorHex::toHex(ColorHex::toColor(text)), "written");
    }

    void writesOtherColors_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("written");
        QTest::newRow("hue") << QColor::fromHsv(120, 255, 255) << u"#00FF00"_qs;
        QTest::newRow("rounds to the nearest") << QColor::fromRgbF(0.5f, 0.499f, 0.001f) << u"#807F00"_qs;
        QTest::newRow("beyond the gamut") << QColor::fromRgbF(1.5f, -0.5f, 1.0f) << u"#FF00FF"_qs;
    }

    void writesOtherColors()
    {
        QFETCH(QColor, color);
        QTEST(ColorHex::toHex(color), "written");
    }
};

QTEST_GUILESS_MAIN(ColorHexTest)
#include "ColorHexTest.moc"
