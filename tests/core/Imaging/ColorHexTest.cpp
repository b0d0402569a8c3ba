// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ColorHex.h"
#include "tests/support/Rows.h"

using namespace tessaly;

class ColorHexTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsText_data()
    {
        test::columns<QString, QColor, QString>("text", "color", "written");

        const QColor pink(0xff, 0x33, 0x66);
        test::row("three digits", u"#f36"_qs, pink, u"#FF3366"_qs);
        test::row("blanks around", u" \t#FF3366\r\n"_qs, pink, u"#FF3366"_qs);
        test::row("no sign", u"FF3366"_qs, pink, u"#FF3366"_qs);
        test::row("alpha is not written", u"#FF336680"_qs, QColor(0xff, 0x33, 0x66, 128), u"#FF3366"_qs);
        test::row("clear", u"#FF336600"_qs, QColor(0xff, 0x33, 0x66, 0), u"#FF3366"_qs);
        test::row("nothing", QString(), QColor(Qt::black), u"#000000"_qs);
        test::row("a sign alone", u"#"_qs, QColor(Qt::black), u"#000000"_qs);
        test::row("a word", u"red"_qs, QColor(Qt::black), u"#000000"_qs);
        test::row("one sign is dropped", u"##FF3366"_qs, QColor(Qt::black), u"#000000"_qs);
        test::row("four digits are the low ones", u"#ABCD"_qs, QColor(0x00, 0xab, 0xcd), u"#00ABCD"_qs);
        test::row("stops at a stranger", u"#12G456"_qs, QColor(0, 0, 0x12), u"#000012"_qs);
        test::row("a stranger doubled", u"#1G2"_qs, QColor(0, 0, 0x11), u"#000011"_qs);
        test::row("eight with a stranger", u"#FF33668G"_qs, QColor(0x0f, 0xf3, 0x36, 0x68), u"#0FF336"_qs);
        test::row("nine digits", u"#1FF336680"_qs, QColor(0x33, 0x66, 0x80), u"#336680"_qs);
        test::row("full-width digits are none", u"#\uff11\uff11\uff11"_qs, QColor(Qt::black), u"#000000"_qs);
    }

    void readsText()
    {
        QFETCH(QString, text);
        QTEST(ColorHex::toColor(text), "color");
        QTEST(ColorHex::toHex(ColorHex::toColor(text)), "written");
    }

    void writesOtherColors_data()
    {
        test::columns<QColor, QString>("color", "written");
        test::row("hue", QColor::fromHsv(120, 255, 255), u"#00FF00"_qs);
        test::row("rounds to the nearest", QColor::fromRgbF(0.5f, 0.499f, 0.001f), u"#807F00"_qs);
        test::row("beyond the gamut", QColor::fromRgbF(1.5f, -0.5f, 1.0f), u"#FF00FF"_qs);
    }

    void writesOtherColors()
    {
        QFETCH(QColor, color);
        QTEST(ColorHex::toHex(color), "written");
    }
};

QTEST_GUILESS_MAIN(ColorHexTest)
#include "ColorHexTest.moc"
