// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/MixedMarks.h"

#include "bench/support/Screens.h"

#include <QBuffer>

#include <cmath>
#include <random>

namespace tessaly::bench {

namespace {

using Random = std::minstd_rand;

double between(Random &random, double low, double high) { return low + (high - low) * double(random() % 10000) / 9999; }

template <class Enum>
Enum anyOf(Random &random)
{
    return enumNames<Enum>[random() % enumNames<Enum>.size()].value;
}

struct SizeRange {
    AnnotationKind kind;
    QSizeF least, most; ///< points
};

constexpr SizeRange sizes[] {
    { AnnotationKind::Arrow, { 60, 20 }, { 320, 200 } },
    { AnnotationKind::Text, { 100, 24 }, { 200, 40 } },
    { AnnotationKind::Rectangle, { 60, 30 }, { 420, 260 } },
    { AnnotationKind::Ellipse, { 60, 40 }, { 320, 200 } },
    { AnnotationKind::Line, { 80, 0 }, { 400, 120 } },
    { AnnotationKind::Highlight, { 120, 18 }, { 420, 48 } },
    { AnnotationKind::Pixelate, { 60, 18 }, { 260, 90 } },
    { AnnotationKind::Stamp, { 24, 24 }, { 24, 24 } },
    { AnnotationKind::Pen, { 120, 40 }, { 360, 160 } },
    { AnnotationKind::Spotlight, { 160, 90 }, { 420, 260 } },
    { AnnotationKind::Sticker, { 40, 40 }, { 40, 40 } },
    { AnnotationKind::ImageOverlay, { 60, 40 }, { 140, 90 } },
    { AnnotationKind::Magnifier, { 120, 120 }, { 200, 200 } },
};

/// A cut-out of a screen.
QByteArray pictureBytes(const QRectF &points)
{
    static const QImage screen = busyDesktop();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    screen.copy(QRect((points.topLeft() * 2).toPoint(), (points.size() * 2).toSize())).save(&buffer, "PNG");
    return bytes;
}

/// A hand-drawn wave, a point every few points as a mouse reports them.
QList<QPointF> wave(const QRectF &box)
{
    QList<QPointF> points;
    for (double x = 0; x <= box.width(); x += 4)
        points += box.topLeft() + QPointF(x, box.height() * (0.5 + 0.45 * std::sin(x * 0.04) * std::cos(x * 0.013)));
    return points;
}

Annotation styled(Annotation mark, Random &random)
{
    static constexpr std::array colors { "#FF3366", "#2E7DF6", "#FFD60A", "#34C759", "#1C1C1E" };
    static const QStringList texts { QStringLiteral("Check this first"), QStringLiteral("Why?\nSee the second tab"),
        QStringLiteral("Größe: 1 280 × 720"), QStringLiteral("Done 🎉") };
    static const QStringList stickers { QStringLiteral("🎉"), QStringLiteral("👍🏽"), QStringLiteral("❤️") };
    mark.colorHex = QLatin1StringView(colors[random() % colors.size()]);
    mark.lineWidth = between(random, 3, 8);
    mark.arrowHead = anyOf<ArrowHeadStyle>(random);
    mark.curved = random() % 2;
    mark.doubleHeaded = random() % 4 == 0;
    mark.filled = random() % 3 == 0;
    mark.stamp = anyOf<StampKind>(random);
    mark.obscure = anyOf<ObscureStyle>(random);
    mark.spotEllipse = mark.magnifierRound = random() % 2;
    mark.fontSize = between(random, 14, 32);
    mark.bold = random() % 2;
    if (mark.kind == AnnotationKind::Text)
        mark.text = texts[qsizetype(random() % size_t(texts.size()))];
    if (mark.kind == AnnotationKind::Sticker)
        mark.text = stickers[qsizetype(random() % size_t(stickers.size()))];
    if (mark.kind == AnnotationKind::Stamp) {
        mark.text = QString::number(random() % 40);
        if (random() % 2)
            mark.tailAngle = between(random, 0, 6);
    }
    if (mark.kind == AnnotationKind::Pen)
        mark.points = wave(mark.rect());
    if (mark.kind == AnnotationKind::ImageOverlay)
        mark.imageData = pictureBytes(mark.rect());
    return mark;
}

} // namespace

QList<Annotation> mixedMarks(int count, QSizeF canvas)
{
    Random random(5);
    QList<Annotation> marks;
    for (int index = 0; index < count; ++index) {
        const SizeRange &range = sizes[size_t(index) % std::size(sizes)];
        const QSizeF size(between(random, range.least.width(), range.most.width()),
            between(random, range.least.height(), range.most.height()));
        const QPointF corner(between(random, 20, canvas.width() - size.width() - 20),
            between(random, 20, canvas.height() - size.height() - 20));
        marks += styled(Annotation(range.kind, corner, corner + QPointF(size.width(), size.height())), random);
    }
    return marks;
}

} // namespace tessaly::bench
