// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/TextShaper.h"

#include "core/Rendering/EmojiClusters.h"
#include "core/Rendering/SourceLines.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>

namespace tessaly {

namespace {

/// Texts are laid out at this size in pixels and then scaled. It is the size at which the emoji font's pictures are
/// stored, so that they come out as they are.
constexpr int layoutSize = 109;

const QString emojiFamily = QStringLiteral("Noto Color Emoji");

QList<QTextLayout::FormatRange> emojiFormats(const QString &line, const QFont &font)
{
    QList<QTextLayout::FormatRange> formats;
    for (const TextSpan &span : emojiSpans(line)) {
        QTextLayout::FormatRange &range = formats.emplace_back();
        range.start = static_cast<int>(span.start);
        range.length = static_cast<int>(span.length);
        range.format.setFontFamilies(QStringList { emojiFamily } + font.families());
        range.format.setFontWeight(QFont::Normal);
        range.format.setFontItalic(false);
    }
    return formats;
}

/// The box of all pixels that are not transparent.
QRect inkOf(const QImage &picture)
{
    const int width = picture.width(), height = picture.height();
    int left = width, right = -1, top = height, bottom = -1;
    for (int y = 0; y < height; ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        const auto *end = row + width;
        const auto *first = std::find_if(row, end, [](QRgb pixel) { return qAlpha(pixel) != 0; });
        if (first == end)
            continue;
        const auto *last = end;
        while (qAlpha(*--last) == 0) { }
        left = std::min(left, int(first - row));
        right = std::max(right, int(last - row));
        top = std::min(top, y);
        bottom = y;
    }
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

} // namespace

size_t qHash(const TextFace &face, size_t seed) { return qHashMulti(seed, face.family, int(face.weight), face.italic); }

const QString &TextShaper::systemFamily()
{
    if (m_systemFamily.isEmpty()) {
        for (const char *family : { "Noto Sans", "DejaVu Sans" }) {
            if (m_systemFamily.isEmpty() && QFontDatabase::hasFamily(QLatin1StringView(family)))
                m_systemFamily = QLatin1StringView(family);
        }
        if (m_systemFamily.isEmpty())
            m_systemFamily = QStringLiteral("Sans Serif");
    }
    return m_systemFamily;
}

QFont TextShaper::fontOf(const TextFace &face)
{
    QStringList families;
    if (!face.family.isEmpty() && QFontDatabase::hasFamily(face.family))
        families += face.family;
    families += { systemFamily(), emojiFamily };
    QFont font;
    font.setFamilies(families);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(layoutSize);
    font.setWeight(face.weight);
    font.setItalic(face.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

const TextShape &TextShaper::shape(const QString &text, const TextFace &face)
{
    const std::pair key { text, face };
    if (const auto known = m_shapes.constFind(key); known != m_shapes.constEnd())
        return *known;
    TextShape shape;
    if (text.trimmed().isEmpty()) // nothing to draw, and perhaps no application that could open a font
        return *m_shapes.insert(key, shape);
    const QFont font = fontOf(face);
    const QFontMetricsF metrics(font);
    shape.ascent = metrics.ascent() / layoutSize;
    shape.capHeight = metrics.capHeight() / layoutSize;
    shape.lineHeight = metrics.height() / layoutSize;
    shape.outline.setFillRule(Qt::WindingFill);
    const QList<SourceLine> lines = sourceLines(text);
    for (qsizetype index = 0; index < lines.size(); ++index)
        addLine(lines[index].shown, font, { 0, double(index) * metrics.height() }, shape);
    shape.outline = QTransform::fromScale(1.0 / layoutSize, 1.0 / layoutSize).map(shape.outline);
    shape.size.setHeight(double(lines.size()) * shape.lineHeight);
    shape.ink = shape.outline.boundingRect();
    for (const TextShape::Picture &picture : std::as_const(shape.pictures))
        shape.ink |= picture.target;
    return *m_shapes.insert(key, shape);
}

QTextLine TextShaper::layOut(QTextLayout &layout)
{
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setUseDesignMetrics(true);
    option.setWrapMode(QTextOption::NoWrap);
    option.setTabStopDistance(layoutSize * 2);
    layout.setTextOption(option);
    layout.setFormats(emojiFormats(layout.text(), layout.font()));
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid())
        line.setLineWidth(1e6);
    layout.endLayout();
    return line;
}

void TextShaper::addLine(const QString &line, const QFont &font, QPointF origin, TextShape &shape)
{
    QTextLayout layout(line, font);
    const QTextLine set = layOut(layout);
    if (!set.isValid())
        return;
    shape.size.setWidth(std::max(shape.size.width(), set.naturalTextWidth() / layoutSize));
    // The emoji's own metrics may move a line's baseline; all lines keep the text font's.
    const QPointF baseline(0, shape.ascent * layoutSize - set.ascent());
    const auto runs = layout.glyphRuns();
    for (const QGlyphRun &run : runs)
        addRun(run, origin + baseline, shape);
}

namespace {

/// The edges of a line's characters, in units of the layout.
void addCharacters(const SourceLine &source, const QTextLine &set, TextLines::Line &line)
{
    const auto edge
        = [&](qsizetype position, QTextLine::Edge side) { return set.cursorToX(int(position), side) / layoutSize; };
    for (const CharacterSpan &span : charactersOf(source.shown)) {
        line.characters.push_back({ source.positionOf(span.start), edge(span.start, QTextLine::Leading),
            edge(span.lastPart, QTextLine::Trailing) });
    }
    line.endX = edge(source.shown.size(), QTextLine::Leading);
}

} // namespace

TextLines TextShaper::lines(const QString &text, const TextFace &face)
{
    const QFont font = fontOf(face);
    TextLines result { .lines = {}, .lineHeight = QFontMetricsF(font).height() / layoutSize };
    for (const SourceLine &source : sourceLines(text)) {
        TextLines::Line &line = result.lines.emplace_back(TextLines::Line { source.start, source.end });
        QTextLayout layout(source.shown, font);
        const QTextLine set = layOut(layout);
        if (!set.isValid())
            continue;
        addCharacters(source, set, line);
        result.width = std::max({ result.width, set.naturalTextWidth() / layoutSize, line.endX });
        for (const TextLines::Character &character : line.characters)
            result.width = std::max({ result.width, character.leading, character.trailing });
    }
    return result;
}

void TextShaper::dropIfLarge()
{
    constexpr qsizetype manyTexts = 2000, manyGlyphs = 4000;
    if (m_shapes.size() > manyTexts)
        m_shapes.clear();
    if (m_glyphOutlines.size() + m_colorGlyphs.size() > manyGlyphs) {
        m_glyphOutlines.clear();
        m_colorGlyphs.clear();
    }
}

void TextShaper::addRun(const QGlyphRun &run, QPointF origin, TextShape &shape)
{
    const QRawFont font = run.rawFont();
    const auto glyphs = run.glyphIndexes();
    const auto positions = run.positions();
    const bool inColor = font.familyName() == emojiFamily;
    for (qsizetype index = 0; index < glyphs.size(); ++index) {
        const QPointF position = origin + positions[index];
        if (!inColor) {
            shape.outline.addPath(glyphOutline(font, glyphs[index]).translated(position));
            continue;
        }
        const TextShape::Picture &glyph = colorGlyph(font, glyphs[index]);
        if (!glyph.picture.isNull())
            shape.pictures += { glyph.picture, glyph.target.translated(position / layoutSize) };
    }
}

const QPainterPath &TextShaper::glyphOutline(const QRawFont &font, quint32 glyph)
{
    const std::pair key { font, glyph };
    if (const auto known = m_glyphOutlines.constFind(key); known != m_glyphOutlines.constEnd())
        return *known;
    return *m_glyphOutlines.insert(key, font.pathForGlyph(glyph));
}

const TextShape::Picture &TextShaper::colorGlyph(const QRawFont &font, quint32 glyph)
{
    if (const auto known = m_colorGlyphs.constFind(glyph); known != m_colorGlyphs.constEnd())
        return *known;
    // Colour glyphs are squares a little larger than the font size.
    constexpr int border = layoutSize / 4;
    const QPoint origin(border, border + layoutSize);
    QImage page(2 * border + layoutSize * 5 / 4, 2 * border + layoutSize * 5 / 4, QImage::Format_ARGB32_Premultiplied);
    page.fill(Qt::transparent);
    QGlyphRun run;
    run.setRawFont(font);
    run.setGlyphIndexes({ glyph });
    run.setPositions({ QPointF() });
    QPainter painter(&page);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawGlyphRun(origin, run);
    painter.end();
    const QRect ink = inkOf(page);
    const QRectF target(ink.translated(-origin));
    TextShape::Picture picture { ink.isEmpty() ? QImage() : page.copy(ink),
        { target.topLeft() / layoutSize, target.size() / layoutSize } };
    return *m_colorGlyphs.insert(glyph, picture);
}

} // namespace tessaly
