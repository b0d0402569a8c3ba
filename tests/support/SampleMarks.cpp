// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/SampleMarks.h"

#include <QBuffer>
#include <QImage>
#include <QRandomGenerator>

#include <cmath>

namespace tessaly::test {

namespace {

/// Hands out places from left to right, row by row, and identities in order.
class Sheet {
public:
    explicit Sheet(double rowHeight) : m_rowHeight(rowHeight) { }

    Annotation &add(AnnotationKind kind, QSizeF size)
    {
        if (m_x + size.width() > sampleCanvas.width() - 16) {
            m_x = 24;
            m_y += m_rowHeight;
        }
        const QPointF corner(m_x, m_y);
        m_x += size.width() + 28;
        Annotation &mark = m_marks.emplace_back(kind, corner, corner + QPointF(size.width(), size.height()));
        mark.id = QUuid::createUuidV5(QUuid(), QString::number(m_marks.size()));
        return mark;
    }

    void nextRow() { m_x = sampleCanvas.width(); }
    QList<Annotation> take() { return std::move(m_marks); }

private:
    double m_rowHeight;
    double m_x = 24;
    double m_y = 24;
    QList<Annotation> m_marks;
};

void addArrows(Sheet &sheet)
{
    for (const auto &head : enumNames<ArrowHeadStyle>) {
        for (const bool doubleHeaded : { false, true }) {
            for (const bool curved : { false, true }) {
                Annotation &arrow = sheet.add(AnnotationKind::Arrow, { 84, 44 });
                arrow.arrowHead = head.value;
                arrow.doubleHeaded = doubleHeaded;
                arrow.curved = curved;
            }
        }
    }
    sheet.add(AnnotationKind::Line, { 80, 40 }).colorHex = QStringLiteral("#2E7DF6");
}

void addBoxes(Sheet &sheet)
{
    for (const auto kind : { AnnotationKind::Rectangle, AnnotationKind::Ellipse }) {
        for (const bool filled : { false, true })
            sheet.add(kind, { 72, 48 }).filled = filled;
    }
    sheet.add(AnnotationKind::Highlight, { 90, 40 }).colorHex = QStringLiteral("#FFD60A");
    Annotation &pen = sheet.add(AnnotationKind::Pen, { 90, 40 });
    for (int step = 0; step <= 24; ++step)
        pen.points += pen.p1 + QPointF(step * 3.75, 20 + 18 * std::sin(step * 0.6));
    for (const bool styled : { false, true }) {
        Annotation &text = sheet.add(AnnotationKind::Text, { 110, 24 });
        text.text = styled ? QStringLiteral("Grüße — bold") : QStringLiteral("Plain text");
        text.bold = text.italic = styled;
        text.fontName = styled ? QStringLiteral("Noto Serif") : QString();
    }
}

void addStamps(Sheet &sheet)
{
    for (const auto &stamp : enumNames<StampKind>) {
        for (const bool disc : { false, true }) {
            Annotation &mark = sheet.add(AnnotationKind::Stamp, { 40, 40 });
            mark.stamp = stamp.value;
            mark.disc = disc;
            mark.text = stamp.value == StampKind::Number ? QString::number(disc ? 128 : 7) : QString();
        }
    }
    Annotation &tailed = sheet.add(AnnotationKind::Stamp, { 40, 40 });
    tailed.stamp = StampKind::Number;
    tailed.text = QStringLiteral("42");
    tailed.tailAngle = 0.8;
    sheet.add(AnnotationKind::Stamp, { 40, 40 }).stampLabel = QStringLiteral("Done");
}

void addOthers(Sheet &sheet)
{
    for (const auto &style : enumNames<ObscureStyle>)
        sheet.add(AnnotationKind::Pixelate, { 96, 48 }).obscure = style.value;
    sheet.add(AnnotationKind::Sticker, { 48, 48 }).text = QStringLiteral("🎉");
    sheet.add(AnnotationKind::ImageOverlay, { 72, 48 }).imageData = samplePng();
    sheet.nextRow();
    for (const bool round : { true, false }) {
        sheet.add(AnnotationKind::Magnifier, { 80, 60 }).magnifierRound = round;
        Annotation &spotlight = sheet.add(AnnotationKind::Spotlight, { 200, 60 });
        spotlight.spotEllipse = round;
        spotlight.spotDim = 0.3;
    }
}

QString randomText(QRandomGenerator &random)
{
    static const QStringList texts { QString(), QStringLiteral("plain"), QStringLiteral("two\nlines\t\"quoted\" \\"),
        QStringLiteral("Grüße, мир, 世界"), QStringLiteral("👩‍👩‍👧 e\u0301"), QString(QChar(0)),
        QStringLiteral("</\u2028>\x7f\x01"), QString(QChar(0xd83d)), QStringLiteral("\uffff\ufeff") };
    return texts[random.bounded(static_cast<int>(texts.size()))];
}

double randomNumber(QRandomGenerator &random)
{
    static constexpr std::array odd { 0.0, -0.0, 1.0, -1.0, 0.1, 1e300, -1e300, 3e17, 9007199254740993.0, 5e-324, 1e-7,
        1e21 };
    if (random.bounded(4) == 0)
        return odd[random.bounded(static_cast<quint32>(odd.size()))];
    return std::ldexp(random.generateDouble() - 0.5, static_cast<int>(random.bounded(-20, 40)));
}

QPointF randomPoint(QRandomGenerator &random) { return { randomNumber(random), randomNumber(random) }; }
bool randomBool(QRandomGenerator &random) { return random.bounded(2) == 1; }

template <class Enum>
Enum randomCase(QRandomGenerator &random)
{
    return enumNames<Enum>[random.bounded(static_cast<quint32>(enumNames<Enum>.size()))].value;
}

QByteArray randomBytes(QRandomGenerator &random)
{
    QByteArray bytes(random.bounded(200), Qt::Uninitialized);
    for (char &byte : bytes)
        byte = static_cast<char>(random.bounded(256));
    return bytes;
}

FrameStyle randomFrame(QRandomGenerator &random)
{
    return { .background = randomCase<FrameBackgroundKind>(random),
        .gradientColors = QStringList(random.bounded(4), randomText(random)),
        .solidHex = randomText(random),
        .padding = randomNumber(random),
        .cornerRadius = randomNumber(random),
        .shadow = randomNumber(random),
        .aspect = randomCase<CropAspect>(random) };
}

Watermark randomWatermark(QRandomGenerator &random)
{
    Watermark watermark { .kind = randomCase<WatermarkKind>(random),
        .text = randomText(random),
        .colorHex = randomText(random),
        .position = randomCase<WatermarkPosition>(random),
        .opacity = randomNumber(random),
        .size = randomNumber(random) };
    if (randomBool(random))
        watermark.imageData = randomBytes(random);
    return watermark;
}

} // namespace

QList<Annotation> oneOfEachKind()
{
    Sheet sheet(72);
    addArrows(sheet);
    sheet.nextRow();
    addBoxes(sheet);
    sheet.nextRow();
    addStamps(sheet);
    sheet.nextRow();
    addOthers(sheet);
    return sheet.take();
}

QList<Annotation> manyMarks(int count)
{
    const QList<Annotation> kinds = oneOfEachKind();
    QList<Annotation> marks;
    marks.reserve(count);
    for (int index = 0; index < count; ++index) {
        Annotation mark = kinds[index % kinds.size()];
        const QPointF place(
            std::fmod(index * 37.25, sampleCanvas.width() - 200), std::fmod(index * 23.5, sampleCanvas.height() - 60));
        const QPointF offset = place - mark.p1;
        mark.p1 += offset;
        mark.p2 += offset;
        for (QPointF &point : mark.points)
            point += offset;
        mark.id = QUuid::createUuidV5(QUuid(), QStringLiteral("many %1").arg(index));
        marks += mark;
    }
    return marks;
}

QByteArray samplePng(QSize pixelSize)
{
    QImage image(pixelSize, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * 255 / image.width(), y * 255 / image.height(), (x / 4 + y / 4) % 2 * 200));
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes;
}

Annotation randomMark(QRandomGenerator &random)
{
    Annotation mark(randomCase<AnnotationKind>(random), randomPoint(random), randomPoint(random));
    mark.id = QUuid::createUuidV5(QUuid(), QString::number(random.generate64()));
    for (QString *text : { &mark.colorHex, &mark.text, &mark.fontName, &mark.stampLabel })
        *text = randomText(random);
    for (double *number : { &mark.lineWidth, &mark.fontSize, &mark.obscureStrength, &mark.highlightOpacity,
             &mark.spotDim, &mark.tailLength, &mark.magnification })
        *number = randomNumber(random);
    for (bool *flag : { &mark.bold, &mark.italic, &mark.filled, &mark.doubleHeaded, &mark.spotEllipse, &mark.curved,
             &mark.magnifierRound })
        *flag = randomBool(random);
    mark.arrowHead = randomCase<ArrowHeadStyle>(random);
    mark.stamp = randomCase<StampKind>(random);
    mark.obscure = randomCase<ObscureStyle>(random);
    mark.curveHandle = randomPoint(random);
    for (int count = random.bounded(6); count > 0; --count)
        mark.points += randomPoint(random);
    if (randomBool(random))
        mark.imageData = randomBytes(random);
    if (randomBool(random))
        mark.disc = randomBool(random);
    if (randomBool(random))
        mark.tailAngle = randomNumber(random);
    return mark;
}

AnnotationDocument randomDocument(QRandomGenerator &random, int maxMarks)
{
    AnnotationDocument document;
    document.version = random.bounded(1, 9);
    document.canvasSize = { randomNumber(random), randomNumber(random) };
    for (int count = random.bounded(maxMarks + 1); count > 0; --count)
        document.annotations += randomMark(random);
    document.nextStampNumber = random.bounded(-5, 1000);
    if (randomBool(random))
        document.pixelSize = QSizeF(randomNumber(random), randomNumber(random));
    if (randomBool(random))
        document.generator = randomText(random);
    if (randomBool(random))
        document.frame = randomFrame(random);
    if (randomBool(random))
        document.watermark = randomWatermark(random);
    return document;
}

} // namespace tessaly::test
