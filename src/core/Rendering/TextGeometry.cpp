// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/TextGeometry.h"

#include "core/Annotation/MarkLimits.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

namespace {

using Line = TextLines::Line;

/// The place of a caret in a line; a position within a character is the one before it.
double caretIn(const Line &line, qsizetype position)
{
    double x = line.characters.empty() ? 0 : line.characters.front().leading;
    for (const TextLines::Character &character : line.characters) {
        if (character.position > position)
            return x;
        x = character.leading;
    }
    const bool isBehind = position >= line.end;
    return isBehind || line.characters.empty() ? line.endX : x;
}

const Line &lineOf(const TextLines &text, qsizetype position)
{
    const auto after = std::find_if(
        text.lines.begin() + 1, text.lines.end(), [&](const Line &line) { return line.start > position; });
    return *(after - 1);
}

} // namespace

const TextLines &TextGeometry::layoutOf(const Annotation &text)
{
    const QString shown = text.text.left(MarkLimits::maxTextLength);
    const TextFace face { text.fontName, text.bold ? QFont::Bold : QFont::Normal, text.italic };
    if (m_layout.lines.empty() || m_text != shown || m_face != face) {
        m_layout = m_shaper.lines(shown, face);
        m_text = shown;
        m_face = face;
    }
    return m_layout;
}

double TextGeometry::fontSizeOf(const Annotation &text)
{
    const auto drawable = MarkLimits::drawable(text);
    return drawable ? drawable->fontSize : 1;
}

QRectF TextGeometry::box(const Annotation &text)
{
    const TextLines &layout = layoutOf(text);
    const double size = fontSizeOf(text);
    return { text.p1,
        QSizeF(std::max(layout.width * size, 1.0), double(layout.lines.size()) * layout.lineHeight * size) };
}

QLineF TextGeometry::caret(const Annotation &text, qsizetype position)
{
    const TextLines &layout = layoutOf(text);
    const double size = fontSizeOf(text), height = layout.lineHeight * size;
    const Line &line = lineOf(layout, position);
    const double index = double(&line - layout.lines.data());
    const QPointF top = text.p1 + QPointF(caretIn(line, position) * size, index * height);
    return { top, top + QPointF(0, height) };
}

QList<QRectF> TextGeometry::selection(const Annotation &text, qsizetype first, qsizetype end)
{
    constexpr double lineBreakWidth = 0.25; // of the font size: a selected line break shows, too
    const TextLines &layout = layoutOf(text);
    const double size = fontSizeOf(text), height = layout.lineHeight * size;
    QList<QRectF> boxes;
    for (size_t index = 0; index < layout.lines.size(); ++index) {
        const Line &line = layout.lines[index];
        double left = HUGE_VAL, right = -HUGE_VAL;
        const auto add = [&](double one, double other) {
            left = std::min({ left, one, other });
            right = std::max({ right, one, other });
        };
        for (const TextLines::Character &character : line.characters) {
            if (character.position >= first && character.position < end)
                add(character.leading, character.trailing);
        }
        const bool isLast = index + 1 == layout.lines.size();
        if (!isLast && first <= line.end && end > line.end)
            add(line.endX, line.endX + lineBreakWidth);
        if (right > left)
            boxes += QRectF(
                text.p1.x() + left * size, text.p1.y() + double(index) * height, (right - left) * size, height);
    }
    return boxes;
}

qsizetype TextGeometry::positionAt(const Annotation &text, QPointF point)
{
    const TextLines &layout = layoutOf(text);
    const double size = fontSizeOf(text);
    const double row = std::floor((point.y() - text.p1.y()) / (layout.lineHeight * size));
    const Line &line = layout.lines[size_t(std::clamp(row, 0.0, double(layout.lines.size() - 1)))];
    const double x = (point.x() - text.p1.x()) / size;
    qsizetype nearest = line.end;
    double distance = std::abs(line.endX - x);
    for (const TextLines::Character &character : line.characters) {
        if (std::abs(character.leading - x) < distance) {
            distance = std::abs(character.leading - x);
            nearest = character.position;
        }
    }
    return nearest;
}

} // namespace tessaly
