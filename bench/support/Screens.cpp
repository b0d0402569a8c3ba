// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/Screens.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>

namespace tessaly::bench {

namespace {

using Random = std::minstd_rand;

int between(Random &random, int low, int high)
{
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
}

QColor anyColor(Random &random)
{
    return QColor::fromHsv(between(random, 0, 359), between(random, 60, 220), between(random, 90, 240));
}

/// Antialiased strokes in the rhythm of words; fonts would differ from machine to machine.
void textRows(QPainter &painter, Random &random, const QRect &area, int lineHeight, const QColor &ink)
{
    if (area.isEmpty())
        return;
    painter.setPen(QPen(ink, std::max(1.0, lineHeight / 11.0)));
    const double glyph = lineHeight * 0.42;
    for (int y = area.top() + lineHeight; y < area.bottom(); y += lineHeight) {
        const int end = area.left() + between(random, area.width() / 3, area.width());
        double x = area.left();
        while (x + glyph < end) {
            for (int letters = between(random, 2, 9); letters > 0 && x + glyph < end; --letters, x += glyph) {
                const double top = y - lineHeight * (random() % 3 ? 0.45 : 0.65);
                painter.drawLine(QPointF(x, top), QPointF(x + (random() % 2) * glyph * 0.3, y - lineHeight * 0.1));
                if (random() % 2)
                    painter.drawArc(
                        QRectF(x, top, glyph * 0.75, y - lineHeight * 0.1 - top), between(random, 0, 5000), 3600);
            }
            x += glyph * 0.8;
        }
    }
}

void window(QPainter &painter, Random &random, const QRect &frame)
{
    const bool dark = random() % 3 == 0;
    painter.fillRect(frame, dark ? QColor(30, 31, 36) : QColor(252, 252, 253));
    QLinearGradient title(frame.topLeft(), frame.topLeft() + QPoint(0, 40));
    title.setColorAt(0, dark ? QColor(62, 63, 70) : QColor(236, 236, 240));
    title.setColorAt(1, dark ? QColor(48, 49, 55) : QColor(220, 220, 226));
    painter.fillRect(QRect(frame.topLeft(), QSize(frame.width(), 40)), title);
    for (int icon = 0; icon < 12; ++icon) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(anyColor(random));
        painter.drawEllipse(QRectF(frame.left() + 12 + icon * 34, frame.top() + 9, 22, 22));
    }
    painter.setBrush(Qt::NoBrush);
    textRows(painter, random, frame.adjusted(24, 52, -24, -12), between(random, 15, 30),
        dark ? QColor(210, 212, 218) : QColor(40, 42, 48));
}

double hash(int x, int y)
{
    uint32_t value = static_cast<uint32_t>(x) * 374761393u + static_cast<uint32_t>(y) * 668265263u;
    value = (value ^ (value >> 13)) * 1274126177u;
    return static_cast<double>((value ^ (value >> 16)) & 0xffff) / 65535.0;
}

void addNoise(QImage &image, int amplitude, const QRect &area)
{
    Random random(99);
    for (int y = area.top(); y <= area.bottom(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = area.left(); x <= area.right(); ++x) {
            const int shift = between(random, -amplitude, amplitude);
            const auto moved = [shift](int value) { return std::clamp(value + shift, 0, 255); };
            row[x] = qRgb(moved(qRed(row[x])), moved(qGreen(row[x])), moved(qBlue(row[x])));
        }
    }
}

} // namespace

QImage photoLike(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const double u = x * 0.0031, v = y * 0.0043;
            const double soft = std::sin(u + 1.7 * std::sin(v)) + std::sin(2.3 * v - 0.8 * std::cos(1.9 * u))
                + 0.5 * std::sin(7 * u) * std::cos(5 * v);
            const double grain = (hash(x, y) + hash(x + 7919, y)) * 9 - 9;
            const auto level = [&](double mean, double swing) {
                return std::clamp(static_cast<int>(mean + swing * soft + grain), 0, 255);
            };
            row[x] = qRgb(level(128, 40), level(120, 34), level(104, 28));
        }
    }
    return image;
}

QImage busyDesktop(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    Random random(7);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient wallpaper(0, 0, size.width(), size.height());
    wallpaper.setColorAt(0, QColor(36, 60, 110));
    wallpaper.setColorAt(0.6, QColor(150, 90, 140));
    wallpaper.setColorAt(1, QColor(240, 170, 110));
    painter.fillRect(image.rect(), wallpaper);
    painter.end();
    addNoise(image, 3, QRect(0, 0, size.width(), size.height() / 3));

    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const int unit = size.width() / 12;
    for (int index = 0; index < 9; ++index) {
        const QPoint corner(between(random, 0, size.width() - 4 * unit), between(random, 0, size.height() - 2 * unit));
        window(painter, random, QRect(corner, QSize(between(random, 3, 5) * unit, between(random, 2, 4) * unit)));
    }
    const QRect picture(size.width() / 2, size.height() / 2, 3 * unit, 2 * unit);
    painter.drawImage(picture.topLeft(), photoLike(picture.size()));
    return image;
}

QImage flatInterface(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor(247, 247, 249));
    Random random(11);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const int side = size.width() / 6;
    painter.fillRect(0, 0, side, size.height(), QColor(232, 233, 237));
    painter.fillRect(0, 0, size.width(), 88, QColor(255, 255, 255));
    painter.fillRect(0, 88, size.width(), 2, QColor(214, 215, 220));
    for (int row = 0; row < 12; ++row)
        textRows(painter, random, QRect(40, 140 + row * 90, side - 80, 40), 30, QColor(60, 62, 70));
    for (int card = 0; card < 12; ++card) {
        const QRectF box(side + 60 + card % 4 * (side * 1.2), 160 + card / 4 * 560, side * 1.1, 480);
        painter.setPen(QPen(QColor(220, 221, 226), 2));
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(box, 16, 16);
        painter.fillRect(QRectF(box.x() + 32, box.y() + 32, 160, 100), anyColor(random));
        textRows(painter, random, QRect(int(box.x()) + 32, int(box.y()) + 170, side - 80, 110), 32, QColor(44, 46, 54));
    }
    return image;
}

} // namespace tessaly::bench
