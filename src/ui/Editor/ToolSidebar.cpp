// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/ToolSidebar.h"

#include "core/Annotation/AnnotationStore.h"
#include "ui/Menu/ToolTable.h"
#include "ui/Style/Appearance.h"
#include "ui/Style/Icons.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QToolButton>

namespace tessaly {

namespace {

constexpr QSize cell { 36, 32 };
constexpr int gap = 2;
constexpr QMargins margins { 6, 8, 7, 8 }; // the line at the right included
constexpr int maxColumns = 4;

int heightOf(int columns)
{
    const auto rows = (int(toolTable().size()) + columns - 1) / columns;
    return margins.top() + rows * (cell.height() + gap) - gap + margins.bottom();
}

} // namespace

ToolSidebar::ToolSidebar(AnnotationStore &store, QWidget *parent) :
    QWidget(parent),
    m_store(store),
    m_group(new QButtonGroup(this)),
    m_grid(new QGridLayout(this))
{
    setAccessibleName(tr("Tools"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    m_grid->setContentsMargins(margins);
    m_grid->setSpacing(gap);
    m_grid->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_grid->setSizeConstraint(QLayout::SetNoConstraint); // else the column would not give way to two
    for (const ToolRow &row : toolTable()) {
        auto *button = new QToolButton(this);
        button->setIcon(Icons::icon(QLatin1StringView(row.icon)));
        button->setIconSize({ 20, 20 });
        button->setFixedSize(cell);
        button->setAutoRaise(true);
        button->setCheckable(true);
        button->setToolTip(toolToolTip(row));
        button->setAccessibleName(toolLabel(row));
        button->setFocusPolicy(Qt::TabFocus);
        button->installEventFilter(this);
        m_group->addButton(button, int(row.tool));
    }
    arrange(1);
    connect(m_group, &QButtonGroup::idClicked, this, [this](int id) { Q_EMIT chosen(Tool(id)); });
    connect(&store, &AnnotationStore::changed, this, &ToolSidebar::refresh);
    refresh();
}

QSize ToolSidebar::sizeHint() const
{
    const int width = margins.left() + m_columns * (cell.width() + gap) - gap + margins.right();
    return { width, heightOf(1) };
}

QSize ToolSidebar::minimumSizeHint() const { return { sizeHint().width(), heightOf(maxColumns) }; }

void ToolSidebar::arrange(int columns)
{
    if (columns == m_columns)
        return;
    m_columns = columns;
    const QList<QAbstractButton *> buttons = m_group->buttons();
    for (qsizetype index = 0; index < buttons.size(); ++index)
        m_grid->addWidget(buttons[index], int(index) / columns, int(index) % columns);
    updateGeometry();
}

void ToolSidebar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    int columns = 1;
    while (columns < maxColumns && heightOf(columns) > height())
        ++columns;
    arrange(columns);
}

void ToolSidebar::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(QRect(width() - 1, 0, 1, height()), Colors::separator());
}

void ToolSidebar::refresh() { m_group->button(int(m_store.tool()))->setChecked(true); }

void ToolSidebar::step(int direction)
{
    const auto count = int(toolTable().size());
    const int next = (m_group->checkedId() + direction + count) % count;
    m_group->button(next)->setFocus(Qt::OtherFocusReason);
    m_group->button(next)->click();
}

bool ToolSidebar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            step(key == Qt::Key_Up ? -1 : 1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace tessaly
