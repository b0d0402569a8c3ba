// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/EmojiClusters.h"
#include "tests/support/DrawnMarks.h"
#include "tests/support/Rows.h"

using namespace tessaly;

namespace {

Annotation stamp(StampKind kind, double side, bool disc, const QString &text = {})
{
    Annotation mark(AnnotationKind::Stamp, { 10, 10 }, { 10 + side, 10 + side });
    mark.stamp = kind;
    mark.disc = disc;
    mark.text = text;
    mark.colorHex = QStringLiteral("#2E7DF6");
    return mark;
}

/// The box around all pixels of about this colour.
QRectF boxOf(const QImage &picture, const QColor &color)
{
    QRect box;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            if (std::abs(pixel.red() - color.red()) + std::abs(pixel.blue() - color.blue()) < 120)
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

} // namespace

/// The pictures inside stamps and stickers, measured.
class StampsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void glyphsSitInTheMiddle_data()
    {
        test::columns<StampKind, QString, bool>("kind", "text", "disc");
        for (const bool disc : { true, false }) {
            const char *where = disc ? "on a disc" : "alone";
            for (const auto &kind : enumNames<StampKind>) {
                if (kind.value != StampKind::Number)
                    QTest::addRow("%s %s", kind.raw.data(), where) << kind.value << QString() << disc;
            }
            for (const char *number : { "7", "42", "128", "1000" })
                QTest::addRow("%s %s", number, where) << StampKind::Number << QString::fromLatin1(number) << disc;
        }
    }

    void glyphsSitInTheMiddle()
    {
        QFETCH(StampKind, kind);
        QFETCH(QString, text);
        QFETCH(bool, disc);
        for (const int side : { 12, 24, 60, 400 }) {
            const int canvas = side + 20;
            const Annotation mark = stamp(kind, side, disc, text);
            const QImage picture = test::drawn(test::plainCapture({ canvas, canvas }, Qt::black, 2), { mark }, 2);
            const QRectF ink = boxOf(picture, disc ? QColor(Qt::white) : QColor(0x2e, 0x7d, 0xf6));
            const double pixelSide = side * 2;
            QVERIFY(!ink.isEmpty());
            const QPointF off = ink.center() - QPointF(canvas, canvas);
            QVERIFY2(std::hypot(off.x(), off.y()) < pixelSide * 0.035 + 1,
                qPrintable(QString::asprintf("%d: %g %g", side, off.x(), off.y())));
            const double reach = std::hypot(ink.width(), ink.height()) / pixelSide;
            QVERIFY2(reach < (disc ? 0.95 : 1.4), qPrintable(QString::number(reach)));
            QVERIFY2(std::max(ink.width(), ink.height()) > pixelSide * 0.3,
                qPrintable(QString::number(ink.height() / pixelSide)));
        }
    }

    void readsOnEveryBackground_data()
    {
        test::columns<QColor, QString, bool>("background", "color", "disc");
        test::row("pink on pink", QColor(0xff, 0x33, 0x66), "#FF3366", false);
        test::row("black on black", QColor(0, 0, 0), "#000000", false);
        test::row("white on white", QColor(255, 255, 255), "#FFFFFF", false);
        test::row("yellow on yellow", QColor(255, 214, 10), "#FFD60A", false);
        test::row("a white disc", QColor(0, 0, 0), "#FFFFFF", true);
    }

    void readsOnEveryBackground()
    {
        QFETCH(QColor, background);
        QFETCH(QString, color);
        QFETCH(bool, disc);
        Annotation mark = stamp(StampKind::Check, 32, disc);
        mark.colorHex = color;
        const QImage picture = test::drawn(test::plainCapture({ 52, 52 }, background), { mark });
        int strong = 0;
        for (int y = 10; y < 42; ++y) {
            for (int x = 10; x < 42; ++x)
                strong += std::abs(qGray(picture.pixel(x, y)) - qGray(disc ? 0xffffffff : background.rgb())) > 90;
        }
        QVERIFY2(strong > 40, qPrintable(QString::number(strong)));
    }

    void tailsPointAndLabelsFit()
    {
        Annotation mark = stamp(StampKind::Number, 40, true, QStringLiteral("7"));
        mark.tailAngle = 0;
        const QImage tailed = test::drawn(test::plainCapture({ 80, 60 }, Qt::black, 2), { mark }, 2);
        QCOMPARE(tailed.pixelColor(122, 60), QColor(0x2e, 0x7d, 0xf6)); // just short of the tip at 64
        QCOMPARE(tailed.pixelColor(122, 76), QColor(Qt::black)); // and beside it

        mark.stampLabel = QStringLiteral("WWWWWW");
        const QImage picture = test::drawn(test::plainCapture({ 260, 80 }, Qt::black, 2), { mark }, 2);
        const QRectF label = *mark.stampLabelRect();
        const QImage lettering
            = picture.copy(int(label.left() * 2), 0, picture.width() - int(label.left() * 2), picture.height());
        const QRectF ink = boxOf(lettering, Qt::white);
        QVERIFY(ink.left() > 2 && ink.right() < label.width() * 2 - 2);
        QVERIFY(std::abs(ink.center().y() - label.center().y() * 2) < 1.5);
    }

    void stickersFillTheirBoxInColour_data()
    {
        QTest::addColumn<QString>("text");
        test::row("one character", QStringLiteral("🎉"));
        test::row("joined", QStringLiteral("👩‍🚀"));
        test::row("keycap", QStringLiteral("1️⃣"));
        test::row("skin tone", QStringLiteral("👍🏽"));
        test::row("flag", QStringLiteral("🇩🇪"));
        test::row("made emoji by a selector", QStringLiteral("❤️"));
    }

    void stickersFillTheirBoxInColour()
    {
        QFETCH(QString, text);
        Annotation mark(AnnotationKind::Sticker, { 10, 10 }, { 58, 58 });
        mark.text = text;
        const QImage picture = test::drawn(test::plainCapture({ 68, 68 }, Qt::white, 2), { mark }, 2);
        QRect ink;
        int colourful = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor pixel = picture.pixelColor(x, y);
                if (pixel.lightness() < 235)
                    ink |= QRect(x, y, 1, 1);
                colourful += pixel.saturation() > 80 && pixel.value() > 120;
            }
        }
        QVERIFY2(colourful > 500, qPrintable(QString::number(colourful)));
        QVERIFY(QRect(18, 18, 100, 100).contains(ink));
        QVERIFY2(std::max(ink.width(), ink.height()) > 84, qPrintable(QString::number(ink.width())));
        QVERIFY(std::abs(ink.center().x() - 68) <= 2 && std::abs(ink.center().y() - 68) <= 2);
    }

    void findsEmojiInTexts_data()
    {
        test::columns<QString, QList<TextSpan>>("text", "spans");
        using Spans = QList<TextSpan>;
        test::row("none", QStringLiteral("Grüße 123 世界 ✓"), Spans {});
        test::row("between letters", QStringLiteral("a👍🏽b"), Spans { { 1, 4 } });
        test::row("neighbours are one", QStringLiteral("🎉🇩🇪"), Spans { { 0, 6 } });
        test::row("a keycap takes its digit along", QStringLiteral("11️⃣"), Spans { { 1, 3 } });
        test::row("a heart is text until asked", QStringLiteral("❤ ❤️"), Spans { { 2, 2 } });
        test::row("an emoji asked to be text", QStringLiteral("⚡\uFE0E"), Spans {});
        test::row("half a pair", QString(QChar(0xd83d)), Spans {});
    }

    void findsEmojiInTexts()
    {
        QFETCH(QString, text);
        QTEST(emojiSpans(text), "spans");
    }

    void textStartsAtItsCornerAndKeepsItsLayout()
    {
        Annotation mark(AnnotationKind::Text, { 20, 10 }, { 20, 10 });
        mark.text = QStringLiteral("HHH\nHH");
        mark.fontSize = 20;
        mark.colorHex = QStringLiteral("#000000");
        mark.fontName = QStringLiteral("No Such Family");
        QList<QRectF> boxes;
        for (const int scale : { 1, 4 }) {
            const QImage picture = test::drawn(test::plainCapture({ 120, 80 }, Qt::white, scale), { mark }, scale);
            const QRectF box = boxOf(picture, Qt::black);
            boxes += QRectF(box.topLeft() / scale, box.size() / scale);
        }
        QVERIFY2(boxes[1].left() > 20 && boxes[1].left() < 23 && boxes[1].top() > 12 && boxes[1].top() < 20,
            qPrintable(QString::number(boxes[1].top())));
        QVERIFY(boxes[1].height() > 35 && boxes[1].height() < 48); // two lines of capitals
        for (const auto edge : { &QRectF::left, &QRectF::top, &QRectF::right, &QRectF::bottom })
            QVERIFY(std::abs((boxes[0].*edge)() - (boxes[1].*edge)()) <= 1);
    }
};

QTEST_MAIN(StampsTest)
#include "StampsTest.moc"
