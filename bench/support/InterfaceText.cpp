// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/InterfaceText.h"

#include <QFontMetricsF>
#include <QPainter>

#include <array>
#include <random>

namespace tessaly::bench {

namespace {

using Theme = InterfaceLook::Theme;

constexpr std::array menus { "File", "Edit", "View", "Insert", "Format", "Tools", "Window", "Help", "Image", "Layer" };
constexpr std::array rows { "All captures", "Illustrations", "Downloads (12)", "Screenshots", "Invoices 2024",
    "Inbox: 118 unread", "Trash", "Q1 & Q2 budget", "I/O statistics", "Wi-Fi 6E", "eth0: 1 Gbit/s", "Llama-3.1",
    "Notes.md", "Release 0.10.1", "Village list", "Oslo 1:1", "Archive [old]", "#general", "@colin", "50% done" };
constexpr std::array sentences {
    "The file could not be saved because the disk is full.",
    "Press Ctrl+Shift+S to save a copy; press Esc to cancel.",
    "Illegal instruction at 0x7ffe01b4, pid 1101 (core dumped).",
    "You have 3 unread messages and 1 invitation from Lily Hill.",
    "Are you sure that you want to delete \"Untitled-1.png\"?",
    "Last backup: today, 10:41 PM. Next: Monday at 8:00 AM.",
    "Total: $1,249.99 (incl. 19% VAT), paid on 2024-11-30.",
    "Download speed: 11.4 MB/s, 2 min 15 s remaining.",
    "See https://example.org/docs/index.html?id=42#install for details.",
    "Warning: unused variable 'll1' in function init_tables().",
    "Set the opacity to 75 %, the radius to 1.5 px and the angle to 90\xC2\xB0.",
    "Only I will tell Bill; all 11 pills are still in the lab.",
    "Zoom in, zoom out, fit to width, actual size, full screen.",
    "x = (a + b) * 2; if (x >= 10 && !done) return -1;",
    "Copyright 1998-2026 by the authors. All rights reserved.",
    "Version 6.4.2 is available; 12 packages can be upgraded.",
};
constexpr std::array keys { "Width", "Height", "Size", "Modified", "Path", "Colour", "Owner", "Kernel", "Address",
    "Signal", "Battery", "Serial no.", "Checksum", "Mode", "Locale" };
constexpr std::array values { "1920 px", "1,080", "34.7 KB", "12 May 2025, 09:15", "/usr/share/doc/README.gz",
    "#FF8800", "root:wheel", "6.1.0-18-amd64", "192.168.0.101", "-61 dBm", "87% (2 h 10 min)", "C02-XL1I0",
    "9f86d081884c7d65", "-rw-r--r--", "en_US.UTF-8", "~/Pictures/shot 01.png", "C:\\Temp\\log.txt", "3.14159", "$5",
    "1/250 s, f/2.8", "0x1F600" };
constexpr std::array buttons { "OK", "Cancel", "Apply", "Don't save", "Save as...", "Open Link", "Retry", "More >>" };

struct Palette {
    QColor window, text, muted, panel, panelText, selection, selectionText;
};

Palette paletteOf(Theme theme)
{
    switch (theme) {
    case Theme::Light:
        return { "#ffffff", "#1f1f1f", "#6e6e6e", "#f0f0f2", "#2c2c2c", "#2f6fde", "#ffffff" };
    case Theme::Dark:
        return { "#1e1e1e", "#dcdcdc", "#9a9a9a", "#2a2a2e", "#c8c8c8", "#264f78", "#f4f4f4" };
    case Theme::LightWithDarkPanels:
        return { "#fafafa", "#222222", "#707070", "#2b303b", "#c0c5ce", "#4c8bf5", "#ffffff" };
    }
    return {};
}

/// Paints texts and remembers them.
class Page {
public:
    Page(const InterfaceLook &look, QSize pointSize) :
        m_look(look),
        m_random(look.seed),
        m_colors(paletteOf(look.theme))
    {
        QImage pixels(pointSize * look.scale, QImage::Format_RGB32);
        pixels.setDevicePixelRatio(look.scale);
        pixels.fill(m_colors.window);
        m_shot.image = { pixels, pointSize };
    }

    InterfaceScreenshot painted()
    {
        QPainter painter(&m_shot.image.pixels);
        m_painter = &painter;
        setFont(m_look.pixelHeight, false);
        const QSizeF size = m_shot.image.pointSize;
        const double line = m_lineHeight, panelWidth = 15 * m_look.pixelHeight;
        const QRectF bar(0, 0, size.width(), 2 * line), status(0, size.height() - 1.6 * line, size.width(), 1.6 * line);
        paintMenus(bar);
        paintPanel({ 0, bar.bottom(), panelWidth, status.top() - bar.bottom() });
        const QRectF content(panelWidth + line, bar.bottom() + line, size.width() - panelWidth - 2 * line,
            status.top() - bar.bottom() - 2 * line);
        paintContent(content);
        paintStatus(status);
        painter.end();
        m_shot.image.pixels.setDevicePixelRatio(1);
        return m_shot;
    }

private:
    template <std::size_t count>
    QString pick(const std::array<const char *, count> &from)
    {
        return QString::fromUtf8(from[m_random() % count]);
    }

    /// One that fits in the width, so that nothing is painted over its neighbour.
    template <std::size_t count>
    QString pickFitting(const std::array<const char *, count> &from, double width)
    {
        const QFontMetricsF metrics(m_painter->font());
        while (true) {
            const QString text = pick(from);
            if (metrics.horizontalAdvance(text) <= width)
                return text;
        }
    }

    void setFont(double pixelHeight, bool bold)
    {
        QFont font(m_look.family);
        font.setPixelSize(int(pixelHeight));
        font.setBold(bold);
        font.setHintingPreference(m_look.hinting);
        m_painter->setFont(font);
        m_lineHeight = QFontMetricsF(font).height();
    }

    /// Paints the text with its line's top at `at` and gives its width.
    double write(const QString &text, QPointF at, const QColor &color)
    {
        const QFontMetricsF metrics(m_painter->font());
        m_painter->setPen(color);
        m_painter->drawText(QPointF(at.x(), at.y() + metrics.ascent()), text);
        const double width = metrics.horizontalAdvance(text);
        m_shot.texts += { text,
            QRectF(
                at.x() * m_look.scale, at.y() * m_look.scale, width * m_look.scale, metrics.height() * m_look.scale) };
        return width;
    }

    void paintMenus(const QRectF &bar)
    {
        m_painter->fillRect(bar, m_colors.panel);
        double x = m_lineHeight;
        for (const char *menu : menus)
            x += write(QString::fromUtf8(menu), { x, bar.top() + 0.5 * m_lineHeight }, m_colors.panelText)
                + 1.2 * m_lineHeight;
    }

    void paintPanel(const QRectF &panel)
    {
        m_painter->fillRect(panel, m_colors.panel);
        const double step = 1.6 * m_lineHeight;
        const int count = int(panel.height() / step) - 1, selected = int(m_random() % unsigned(count));
        for (int i = 0; i < count; ++i) {
            const double y = panel.top() + step * (i + 0.5);
            const QRectF row(panel.left() + 4, y, panel.width() - 8, step - 2);
            if (i == selected)
                m_painter->fillRect(row, m_colors.selection);
            write(pick(rows), { row.left() + m_lineHeight, y + 0.25 * m_lineHeight },
                i == selected ? m_colors.selectionText : m_colors.panelText);
        }
    }

    void paintContent(const QRectF &area)
    {
        double y = area.top();
        setFont(1.5 * m_look.pixelHeight, true);
        write(pick(rows), { area.left(), y }, m_colors.text);
        y += 1.5 * m_lineHeight;
        setFont(m_look.pixelHeight, false);
        y = paintParagraphs({ area.left(), y, area.width(), 0.35 * area.height() });
        y = paintTable({ area.left(), y + m_lineHeight, area.width(), area.bottom() - y - 4 * m_lineHeight });
        double x = area.left();
        for (int i = 0; i < 4; ++i) {
            const QString label = pick(buttons);
            const double width = QFontMetricsF(m_painter->font()).horizontalAdvance(label) + 2 * m_lineHeight;
            m_painter->setPen(m_colors.muted);
            m_painter->drawRoundedRect(QRectF(x, y + m_lineHeight, width, 1.7 * m_lineHeight), 4, 4);
            write(label, { x + m_lineHeight, y + 1.35 * m_lineHeight }, m_colors.text);
            x += width + m_lineHeight;
        }
    }

    /// Two columns of sentences; gives where they end.
    double paintParagraphs(const QRectF &area)
    {
        const double columnWidth = area.width() / 2 - m_lineHeight;
        for (int column = 0; column < 2; ++column) {
            QString words;
            for (int i = 0; i < 4; ++i)
                words += pick(sentences) + u' ';
            paintWrapped(words.trimmed(),
                { area.left() + column * (area.width() / 2), area.top(), columnWidth, area.height() },
                column == 0 ? m_colors.text : m_colors.muted);
        }
        return area.bottom();
    }

    void paintWrapped(const QString &text, const QRectF &area, const QColor &color)
    {
        const QFontMetricsF metrics(m_painter->font());
        QString line;
        double y = area.top();
        const auto flush = [&] {
            if (!line.isEmpty() && y + m_lineHeight <= area.bottom())
                write(line, { area.left(), y }, color);
            y += 1.15 * m_lineHeight;
        };
        for (const QString &word : text.split(u' ')) {
            if (metrics.horizontalAdvance(word) > area.width())
                continue; // would be painted over the next column
            const QString longer = line.isEmpty() ? word : line + u' ' + word;
            if (metrics.horizontalAdvance(longer) <= area.width()) {
                line = longer;
                continue;
            }
            flush();
            line = word;
        }
        flush();
    }

    double paintTable(const QRectF &area)
    {
        const double step = 1.5 * m_lineHeight;
        double y = area.top();
        for (int row = 0; y + step < area.bottom(); ++row, y += step) {
            if (row % 2 == 0)
                m_painter->fillRect(QRectF(area.left(), y, area.width(), step), m_colors.window.darker(104));
            for (int column = 0; column < 2; ++column) {
                const double x = area.left() + 4 + column * (area.width() / 2);
                write(pick(keys), { x, y + 0.25 * m_lineHeight }, m_colors.muted);
                const double start = 8 * m_look.pixelHeight;
                write(pickFitting(values, area.width() / 2 - start - m_lineHeight),
                    { x + start, y + 0.25 * m_lineHeight }, m_colors.text);
            }
            m_painter->setPen(QPen(m_colors.muted, 0));
            m_painter->drawLine(QPointF(area.left(), y + step), QPointF(area.right(), y + step));
        }
        return y;
    }

    void paintStatus(const QRectF &bar)
    {
        m_painter->fillRect(bar, m_colors.panel);
        const double y = bar.top() + 0.3 * m_lineHeight;
        write(QStringLiteral("Ln 11, Col %1").arg(m_random() % 200), { m_lineHeight, y }, m_colors.panelText);
        write(QStringLiteral("%1 items, %2 selected").arg(m_random() % 2000).arg(m_random() % 30),
            { bar.center().x(), y }, m_colors.panelText);
    }

    InterfaceLook m_look;
    std::mt19937 m_random;
    Palette m_colors;
    InterfaceScreenshot m_shot;
    QPainter *m_painter = nullptr;
    double m_lineHeight = 0;
};

} // namespace

InterfaceScreenshot interfaceScreenshot(const InterfaceLook &look, QSize pointSize)
{
    return Page(look, pointSize).painted();
}

QList<InterfaceLook> interfaceLooks()
{
    static constexpr std::array families { "DejaVu Sans", "Noto Serif", "DejaVu Sans Mono", "Noto Sans", "DejaVu Serif",
        "Noto Sans Mono" };
    static constexpr std::array hintings { QFont::PreferDefaultHinting, QFont::PreferNoHinting,
        QFont::PreferFullHinting };
    QList<InterfaceLook> looks;
    for (unsigned i = 0; i < 40; ++i) {
        looks += { 10 + int(i % 7), Theme((i + i / 6) % 3), QString::fromLatin1(families[i % families.size()]),
            hintings[i / 2 % hintings.size()], i < 20 ? 1.0 : 2.0, i + 1 };
    }
    return looks;
}

} // namespace tessaly::bench
