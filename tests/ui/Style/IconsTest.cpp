// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/Icons.h"
#include "tests/support/Rows.h"
#include "ui/Style/Appearance.h"
#include "ui/Style/Palettes.h"

#include <QApplication>
#include <QPainter>

using namespace tessaly;

/// Looks at the pixels that come out, as the SVG reader leaves out in silence what it does not understand.
class IconsTest : public QObject {
    Q_OBJECT

    static QImage imageOf(
        const QIcon &icon, int points, qreal scale, QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off)
    {
        QImage image(QSize(points, points) * scale, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        icon.paint(&painter, QRect(0, 0, points, points), Qt::AlignCenter, mode, state);
        painter.end();
        image.setDevicePixelRatio(1);
        return image;
    }

    /// The box of everything that is not transparent.
    static QRect inkOf(const QImage &image)
    {
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) > 24)
                    ink |= QRect(x, y, 1, 1);
            }
        }
        return ink;
    }

    /// The colours of the pixels that are covered wholly.
    static QSet<QRgb> solidColorsOf(const QImage &image)
    {
        QSet<QRgb> colors;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) == 255)
                    colors.insert(image.pixel(x, y));
            }
        }
        return colors;
    }

private Q_SLOTS:
    void cleanup() { QApplication::setPalette(Palettes::light()); }

    void drawsInItsBox_data()
    {
        QTest::addColumn<QString>("name");
        QVERIFY(Icons::names().size() > 60);
        for (const QString &name : Icons::names())
            QTest::newRow(qPrintable(name)) << name;
    }

    /// Ink on every icon, nothing cut off at the edge, nothing lost in a corner, and the same shape at every scale.
    void drawsInItsBox()
    {
        QFETCH(QString, name);
        const QIcon icon = Icons::icon(QLatin1StringView(name.toLatin1()));
        for (const int scale : { 1, 2 }) {
            const int side = 24 * scale;
            const QRect ink = inkOf(imageOf(icon, 24, scale));
            QVERIFY2(QRect(scale, scale, side - 2 * scale, side - 2 * scale).contains(ink), "cut off or at the edge");
            QVERIFY2(std::max(ink.width(), ink.height()) >= side / 2, "too small");
            const QPoint offset
                = QPoint(ink.left() + ink.right() + 1, ink.top() + ink.bottom() + 1) - QPoint(side, side);
            QVERIFY2(std::max(std::abs(offset.x()), std::abs(offset.y())) <= 3 * scale, "off its centre");
        }
    }

    void takesThePalettesColor_data()
    {
        test::columns<bool, QIcon::Mode, QIcon::State, QColor>("dark", "mode", "state", "color");
        for (const bool dark : { false, true }) {
            const QPalette palette = dark ? Palettes::dark() : Palettes::light();
            const char *name = dark ? "dark" : "light";
            QTest::addRow("%s, normal", name)
                << dark << QIcon::Normal << QIcon::Off << palette.color(QPalette::Active, QPalette::WindowText);
            QTest::addRow("%s, disabled", name)
                << dark << QIcon::Disabled << QIcon::On << palette.color(QPalette::Disabled, QPalette::WindowText);
            QTest::addRow("%s, selected", name)
                << dark << QIcon::Selected << QIcon::Off << palette.color(QPalette::HighlightedText);
            QTest::addRow("%s, on", name) << dark << QIcon::Normal << QIcon::On << QColor(dark ? 0x6ea8ff : 0x1a6ae0);
        }
    }

    void takesThePalettesColor()
    {
        QFETCH(bool, dark);
        QFETCH(QIcon::Mode, mode);
        QFETCH(QIcon::State, state);
        QFETCH(QColor, color);
        const QIcon icon = Icons::icon(QLatin1StringView("circle.fill")); // made before the palette changes
        QApplication::setPalette(dark ? Palettes::dark() : Palettes::light());
        QCOMPARE(solidColorsOf(imageOf(icon, 24, 1, mode, state)), QSet<QRgb> { color.rgb() });
    }

    /// Legible even in a title bar: its own ground, with light and yellow lines on it.
    void theProgramsIconShowsItsParts_data()
    {
        QTest::addColumn<int>("side");
        for (const int side : { 16, 32, 128 })
            QTest::addRow("%d pixels", side) << side;
    }

    void theProgramsIconShowsItsParts()
    {
        QFETCH(int, side);
        const QImage image = Icons::application().pixmap(QSize(side, side), 1.0).toImage();
        QCOMPARE(image.size(), QSize(side, side));
        int ground = 0, light = 0, yellow = 0, clear = 0;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                const QColor color = image.pixelColor(x, y);
                clear += color.alpha() < 32;
                ground += color.alpha() > 224 && color.hue() > 200 && color.hue() < 240 && color.saturation() > 150;
                light += color.lightness() > 215 && color.saturation() < 70;
                yellow += color.hue() > 35 && color.hue() < 60 && color.saturation() > 120;
            }
        }
        const int area = side * side;
        QVERIFY2(ground > area * 2 / 5, qPrintable(QString::number(ground)));
        QVERIFY2(light > area / 40, qPrintable(QString::number(light)));
        QVERIFY2(yellow > area / 40, qPrintable(QString::number(yellow)));
        QVERIFY(clear > 0 && clear < area / 5);
    }

    /// A pixmap of one scale stretched to another would have blurred edges: few pixels covered wholly or not at all.
    void isSharpAtEveryScale()
    {
        const QIcon icon = Icons::icon(QLatin1StringView("plus"));
        QCOMPARE(icon.pixmap(QSize(16, 16), 2.0).size(), QSize(32, 32));
        const QImage twice = imageOf(icon, 24, 2);
        QCOMPARE(twice, imageOf(icon, 48, 1));
        QVERIFY(qAlpha(twice.pixel(24, 24)) == 255);
        QVERIFY(qAlpha(twice.pixel(24, 27)) == 255 && qAlpha(twice.pixel(20, 20)) == 0);
    }
};

QTEST_MAIN(IconsTest)
#include "IconsTest.moc"
