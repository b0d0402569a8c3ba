// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Welcome/HelpPage.h"

#include "ui/Menu/Commands.h"
#include "ui/Menu/MenuBar.h"
#include "ui/Menu/ToolTable.h"

#include <QCoreApplication>
#include <QStringList>

namespace tessaly {

namespace {

struct Section {
    const char *anchor;
    const char *title; ///< English; translated in the context "Help"
    const char *paragraphs; ///< one a line, translated as a whole
};

constexpr Section sections[] = {
    { "capture", QT_TRANSLATE_NOOP("Help", "Take a capture"),
        QT_TRANSLATE_NOOP("Help",
            "Press Ctrl+Alt+4 and drag over a region; Ctrl+Alt+5 takes a window, Ctrl+Alt+3 the whole screen. The "
            "settings record other keys, where the desktop lets programs have keys of their own.\n"
            "While you select: Space moves the selection, Esc cancels. The bar on the screen changes between region, "
            "window and screen.\n"
            "A timer, in the settings and in the menu of the tray, waits some seconds, so that you can open a menu "
            "first.") },
    { "edit", QT_TRANSLATE_NOOP("Help", "Mark it up"),
        QT_TRANSLATE_NOOP("Help",
            "A letter chooses a tool: A for arrows, T for texts, B to pixelate. Drag on the picture to draw, click a "
            "mark to change it.\n"
            "Everything can be undone with Ctrl+Z, and marks stay movable as long as the capture is kept as a Tessaly "
            "document.\n"
            "Pixelated, blurred and covered parts are gone from every picture that leaves Tessaly.") },
    { "share", QT_TRANSLATE_NOOP("Help", "Hand it on"),
        QT_TRANSLATE_NOOP("Help",
            "Ctrl+Shift+C copies the picture, Ctrl+S saves it, and the handle in the tool bar drags it into another "
            "program.\n"
            "Pin to Screen keeps it above all other windows.") },
    { "history", QT_TRANSLATE_NOOP("Help", "Find it again"),
        QT_TRANSLATE_NOOP("Help",
            "The start window shows your recent captures; type to search the texts in them. Delete removes one, and "
            "can be undone for ten seconds.\n"
            "Captures are kept only on this computer, for as long as the settings say.") },
    { "reach", QT_TRANSLATE_NOOP("Help", "Where Tessaly is"),
        QT_TRANSLATE_NOOP("Help",
            "Tessaly waits as an icon in the tray. On a desktop without a tray, start it again to see the start "
            "window. Ctrl+Q quits it.\n"
            "Ctrl+Shift+P finds any command, setting and tool by its name.") },
    { "automation", QT_TRANSLATE_NOOP("Help", "From scripts"),
        QT_TRANSLATE_NOOP(
            "Help", "The command tessaly does most of this without a window: tessaly --help lists what it can.") },
};

QString translated(const char *text) { return QCoreApplication::translate("Help", text); }

QString heading(const QString &anchor, const QString &title)
{
    return QStringLiteral("<a name=\"%1\"></a><h2>%2</h2>").arg(anchor, title.toHtmlEscaped());
}

QString row(const QString &name, const QString &key)
{
    return QStringLiteral("<tr><td>%1&nbsp;&nbsp;&nbsp;&nbsp;</td><td>%2</td></tr>")
        .arg(name.toHtmlEscaped(), key.toHtmlEscaped());
}

QString table(const QString &title, const QString &rows)
{
    return QStringLiteral("<h3>%1</h3><table cellspacing=\"0\" cellpadding=\"3\">%2</table>")
        .arg(title.toHtmlEscaped(), rows);
}

QString commandTables()
{
    QString tables;
    QString rows;
    const auto all = commandTable();
    for (std::size_t index = 0; index < all.size(); ++index) {
        rows += row(commandTitle(all[index]), commandKeyText(all[index]));
        const QString title = menuTitle(all[index].menu);
        if (index + 1 == all.size() || menuTitle(all[index + 1].menu) != title) {
            tables += table(title, rows);
            rows.clear();
        }
    }
    return tables;
}

QString toolRows()
{
    QString rows;
    for (const ToolRow &tool : toolTable())
        rows += row(toolLabel(tool), QString(QChar::fromLatin1(tool.letter)));
    return rows;
}

} // namespace

QString helpPage()
{
    QStringList links;
    QString body;
    const auto add = [&](const char *anchor, const QString &title) {
        links += QStringLiteral("<a href=\"#%1\">%2</a>").arg(QLatin1StringView(anchor), title.toHtmlEscaped());
        body += heading(QLatin1StringView(anchor), title);
    };
    for (const Section &section : sections) {
        add(section.anchor, translated(section.title));
        const QStringList paragraphs = translated(section.paragraphs).split(u'\n');
        for (const QString &paragraph : paragraphs)
            body += QStringLiteral("<p>%1</p>").arg(paragraph.toHtmlEscaped());
    }
    add("tools", translated(QT_TRANSLATE_NOOP("Help", "Tools and their letters")));
    body += QStringLiteral("<table cellspacing=\"0\" cellpadding=\"3\">%1</table>").arg(toolRows());
    add("commands", translated(QT_TRANSLATE_NOOP("Help", "Commands and their keys")));
    body += commandTables();
    return QStringLiteral("<h1>%1</h1><p>%2</p>%3")
        .arg(
            translated(QT_TRANSLATE_NOOP("Help", "Tessaly Help")), links.join(QStringLiteral(" &nbsp;·&nbsp; ")), body);
}

} // namespace tessaly
