// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/Command.h"
#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/CommandOptions.h"
#include "app/CommandLine/ScreenTaking.h"
#include "app/CommandLine/Text.h"

#include <QJsonDocument>

namespace tessaly {

namespace {

QJsonArray array(QSizeF size) { return { size.width(), size.height() }; }
QJsonArray array(const QRectF &rect) { return { rect.x(), rect.y(), rect.width(), rect.height() }; }

QString times(QSizeF size)
{
    return QStringLiteral("%1×%2").arg(QString::number(size.width()), QString::number(size.height()));
}

QString placeOf(QPointF point)
{
    return QStringLiteral("%1,%2").arg(QString::number(point.x()), QString::number(point.y()));
}

/// The cells under each other, two blanks between them.
QByteArray table(const QList<QStringList> &rows)
{
    QList<qsizetype> widths;
    for (const QStringList &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    QString text;
    for (const QStringList &row : rows) {
        QString line;
        for (qsizetype column = 0; column < row.size(); ++column)
            line += row[column].leftJustified(widths[column] + 2);
        while (line.endsWith(u' '))
            line.chop(1);
        text += line + u'\n';
    }
    return text.toUtf8();
}

QByteArray displayTable(const QList<Display> &displays)
{
    QList<QStringList> rows;
    for (const Display &display : displays)
        rows += QStringList { QString::number(rows.size() + 1), Console::printable(display.name),
            Text::tr("%1 pixels").arg(times(display.pixelSize)), QStringLiteral("@%1").arg(display.scale),
            Text::tr("at %1").arg(placeOf(display.layoutRect.topLeft())),
            display.primary ? Text::tr("primary") : QString() };
    return table(rows);
}

QJsonArray displayObjects(const QList<Display> &displays)
{
    QJsonArray objects;
    for (const Display &display : displays)
        objects.append(QJsonObject { { "number", objects.size() + 1 }, { "name", display.name },
            { "primary", display.primary }, { "scale", display.scale }, { "pixelSize", array(display.pixelSize) },
            { "pointSize", array(display.pointSize()) }, { "layoutRect", array(QRectF(display.layoutRect)) } });
    return objects;
}

QByteArray windowTable(const QList<ScreenWindow> &windows)
{
    QList<QStringList> rows;
    for (const ScreenWindow &window : windows)
        rows += QStringList { QString::number(window.id), Console::printable(window.applicationName),
            times(window.layoutRect.size()), Text::tr("at %1").arg(placeOf(window.layoutRect.topLeft())),
            Console::printable(window.title) };
    return table(rows);
}

QJsonArray windowObjects(const QList<ScreenWindow> &windows)
{
    QJsonArray objects;
    for (const ScreenWindow &window : windows)
        objects.append(QJsonObject { { "id", static_cast<qint64>(window.id) }, { "title", window.title },
            { "application", window.applicationName }, { "processId", window.processId },
            { "layoutRect", array(window.layoutRect) } });
    return objects;
}

/// Prints one list of the desktop's, as a table or as JSON.
template <class Item>
ExitStatus print(Result<QList<Item>> (ScreenTaking::*list)(), QByteArray (*asTable)(const QList<Item> &),
    QJsonArray (*asObjects)(const QList<Item> &), bool json, CommandContext &context)
{
    auto taking = ScreenTaking::create(context);
    if (!taking)
        return context.report(taking.failure());
    const auto items = ((*taking).*list)();
    if (!items)
        return context.report(items.failure());
    return context.print(json ? QJsonDocument(asObjects(*items)).toJson() : asTable(*items));
}

} // namespace

CommandBody setUpDisplays(CommandOptions &options)
{
    auto json = std::make_shared<bool>(false);
    options.flag(*json, "--json", "Print JSON; layoutRect is the place on the desktop, in its own units");
    options.closing("The numbers are those of tessaly capture full-screen --display.");
    return [json](CommandContext &context) {
        return print(&ScreenTaking::displays, displayTable, displayObjects, *json, context);
    };
}

CommandBody setUpWindows(CommandOptions &options)
{
    auto json = std::make_shared<bool>(false);
    options.flag(*json, "--json", "Print JSON; layoutRect is the place on the desktop, in its own units");
    options.closing("Front to back. The numbers are those of tessaly capture window --window.");
    return [json](CommandContext &context) {
        return print(&ScreenTaking::windows, windowTable, windowObjects, *json, context);
    };
}

} // namespace tessaly
