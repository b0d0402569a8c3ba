// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/ShortcutsSheet.h"

#include "ui/Menu/Commands.h"
#include "ui/Menu/KeyCaps.h"
#include "ui/Menu/ToolTable.h"
#include "ui/Style/Appearance.h"
#include "ui/Style/Icons.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace tessaly {

namespace {

constexpr CommandId general[] = { CommandId::Undo, CommandId::Redo, CommandId::Delete, CommandId::Copy, CommandId::Save,
    CommandId::ZoomIn, CommandId::ZoomOut, CommandId::ActualSize, CommandId::ZoomToFit,
    CommandId::RotateCounterclockwise, CommandId::RotateClockwise, CommandId::ResizeImage };

constexpr int columnGap = 36;
constexpr int pairsPerLine = 2;

/// What a line says: an icon where there is one, a name, its keys.
struct Entry {
    const char *icon;
    QString name;
    QStringList keys;
};

QList<Entry> generalEntries()
{
    QList<Entry> entries;
    for (const CommandId id : general) {
        const CommandRow &row = command(id);
        entries += { "", commandTitle(row), keyNames(commandKeys(row).value(0)) };
    }
    return entries;
}

QList<Entry> toolEntries()
{
    QList<Entry> entries;
    for (const ToolRow &row : toolTable())
        entries += { row.icon, toolLabel(row), { QString(QChar::fromLatin1(row.letter)) } };
    return entries;
}

QLabel *heading(const QString &text)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

/// Reads down the first column of pairs, then down the second.
QGridLayout *gridOf(const QList<Entry> &entries)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(7);
    const int lines = int(entries.size() + pairsPerLine - 1) / pairsPerLine;
    for (int index = 0; index < entries.size(); ++index) {
        const Entry &entry = entries[index];
        const int line = index % lines;
        const int column = index / lines * 4;
        if (*entry.icon) {
            auto *icon = new QLabel;
            const int side = icon->fontMetrics().height() + 2;
            icon->setPixmap(
                Icons::icon(QLatin1StringView(entry.icon)).pixmap({ side, side }, icon->devicePixelRatio()));
            grid->addWidget(icon, line, column);
        }
        auto *caps = new KeyCaps(entry.keys);
        auto *name = new QLabel(entry.name);
        name->setBuddy(caps);
        grid->addWidget(name, line, column + 1);
        grid->addWidget(caps, line, column + 2, Qt::AlignRight | Qt::AlignVCenter);
        grid->setColumnStretch(column + 1, 1);
    }
    grid->setColumnMinimumWidth(3, columnGap);
    return grid;
}

QFrame *separator()
{
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    QPalette palette = line->palette();
    palette.setColor(QPalette::WindowText, Colors::separator());
    line->setPalette(palette);
    return line;
}

QLabel *note(const QString &text)
{
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, Colors::quietText());
    label->setPalette(palette);
    return label;
}

} // namespace

void ShortcutsSheet::showAbove(QWidget &window)
{
    auto *sheet = new ShortcutsSheet(&window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

ShortcutsSheet::ShortcutsSheet(QWidget *parent) : QDialog(parent)
{
    setWindowTitle(tr("Keyboard Shortcuts"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 16);
    column->setSpacing(0);

    auto *scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    QWidget *inner = content();
    scroll->setWidget(inner);
    column->addWidget(scroll, 1);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    buttons->setContentsMargins(24, 12, 24, 0);
    column->addWidget(buttons);

    // Whole where the screen has the room, scrolled where it has not.
    const QSize wanted = inner->sizeHint() + QSize(2, buttons->sizeHint().height() + 32);
    const QSize room = screen()->availableSize() * 0.9;
    const int bar = wanted.height() > room.height() ? scroll->verticalScrollBar()->sizeHint().width() : 0;
    resize((wanted + QSize(bar, 0)).boundedTo(room));
}

QWidget *ShortcutsSheet::content()
{
    auto *inner = new QWidget;
    auto *column = new QVBoxLayout(inner);
    column->setContentsMargins(24, 20, 24, 8);
    column->setSpacing(12);
    column->addWidget(heading(tr("General")));
    column->addLayout(gridOf(generalEntries()));
    column->addSpacing(4);
    column->addWidget(separator());
    column->addSpacing(4);
    column->addWidget(heading(tr("Tools")));
    column->addLayout(gridOf(toolEntries()));
    column->addSpacing(4);
    column->addWidget(
        note(tr("Press a letter on the canvas to switch tools. The ⌥⌘ shortcuts in the Tools menu still work.")));
    column->addStretch();
    return inner;
}

} // namespace tessaly
