// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/StartActions.h"

#include "ui/Style/Appearance.h"
#include "ui/Style/Icons.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace tessaly {

namespace {

// Points.
constexpr int iconSide = 20;
constexpr int iconGap = 8;
constexpr int sidePadding = 18;
constexpr int linePadding = 11;
constexpr int buttonGap = 8;
constexpr int groupGap = 24;

} // namespace

StartButton::StartButton(const StartAction &action, QWidget *parent) :
    QPushButton(action.title, parent),
    m_icon(Icons::icon(action.systemImage)),
    m_isProminent(action.prominent)
{
    setObjectName(action.systemImage);
    setAccessibleName(action.title);
    setToolTip(action.toolTip);
    setAutoDefault(true); // Return presses it, too
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QPushButton::clicked, this, action.action);
}

QSize StartButton::sizeHint() const
{
    const QSize texts = fontMetrics().size(Qt::TextSingleLine, text());
    const int width = 2 * sidePadding + iconSide + iconGap + texts.width();
    return { std::max(width, 132), std::max(texts.height(), iconSide) + 2 * linePadding };
}

void StartButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    // Not the state of a default button, which wanders with the focus.
    option.features.setFlag(QStyleOptionButton::DefaultButton, m_isProminent);
    style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter, this);
    const int textWidth = fontMetrics().horizontalAdvance(text());
    const int start = (width() - iconSide - iconGap - textWidth) / 2;
    const QRect iconPlace(start, (height() - iconSide) / 2, iconSide, iconSide);
    const QRect textPlace(start + iconSide + iconGap, 0, textWidth + 2, height());
    const bool accented = m_isProminent && isEnabled();
    const QIcon::Mode mode = !isEnabled() ? QIcon::Disabled : accented ? QIcon::Selected : QIcon::Normal;
    m_icon.paint(&painter, QStyle::visualRect(layoutDirection(), rect(), iconPlace), Qt::AlignCenter, mode);
    painter.setPen(option.palette.color(accented ? QPalette::HighlightedText : QPalette::ButtonText));
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), textPlace),
        int(Qt::AlignVCenter | Qt::AlignLeading) | Qt::TextSingleLine, text());
}

QList<StartAction> StartActions::actionsFor(Requests requests)
{
    const std::pair<CommandId, QString> captures[] = {
        { CommandId::CaptureRegion, tr("Capture Region") },
        { CommandId::CaptureWindow, tr("Capture Window") },
        { CommandId::CaptureFullScreen, tr("Full Screen") },
    };
    QList<StartAction> actions;
    CommandTarget *program = requests.program;
    for (const auto &[command, title] : captures) {
        if (!program || !program->knows(command))
            continue;
        const CommandRow &row = tessaly::command(command);
        actions += { title, QLatin1StringView(row.icon), actions.isEmpty(), commandToolTip(row),
            [program, command = command] { program->perform(command); } };
    }
    const bool first = actions.isEmpty();
    const int group = first ? 0 : 1;
    actions += { tr("Open…"), QLatin1StringView("open"), first, tr("Open a picture or a document (Ctrl+O)"),
        std::move(requests.openFile), group };
    actions += { tr("Paste"), QLatin1StringView("paste"), false, {}, std::move(requests.paste), group };
    return actions;
}

StartActions::StartActions(Requests requests, QWidget *parent) :
    QWidget(parent),
    m_groupsLayout(new QBoxLayout(QBoxLayout::LeftToRight, this))
{
    const QList<StartAction> actions = actionsFor(std::move(requests));
    m_groupsLayout->setContentsMargins({});
    m_groupsLayout->setSpacing(groupGap);
    for (const StartAction &action : actions) {
        if (action.group >= m_groups.size()) {
            m_groups += new QBoxLayout(QBoxLayout::LeftToRight);
            m_groups.last()->setSpacing(buttonGap);
            m_groupsLayout->addLayout(m_groups.last());
            m_groupsLayout->setAlignment(m_groups.last(), Qt::AlignLeft); // not spread where they are stacked
        }
        m_paste = new StartButton(action);
        m_groups.last()->addWidget(m_paste);
    }
    m_groupsLayout->addStretch();
    setFocusProxy(findChild<StartButton *>());
    setClipboardHasImage(false);
}

void StartActions::setClipboardHasImage(bool has)
{
    m_paste->setEnabled(has);
    m_paste->setToolTip(
        has ? tr("Open the picture on the clipboard (Ctrl+V)") : tr("There is no picture on the clipboard"));
    m_paste->setAccessibleDescription(m_paste->toolTip());
}

int StartActions::rowWidth(int gapBetweenGroups) const
{
    int width = gapBetweenGroups * int(m_groups.size() - 1);
    for (const QBoxLayout *group : m_groups)
        width += group->sizeHint().width();
    return width;
}

QSize StartActions::minimumSizeHint() const
{
    QSize size = QWidget::minimumSizeHint();
    size.setWidth(0);
    for (const QBoxLayout *group : m_groups)
        size = size.expandedTo({ group->sizeHint().width(), 0 });
    return size;
}

void StartActions::resizeEvent(QResizeEvent *event)
{
    const bool isStacked = width() < rowWidth(buttonGap);
    m_groupsLayout->setDirection(isStacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_groupsLayout->setSpacing(width() < rowWidth(groupGap) ? buttonGap : groupGap);
    QWidget::resizeEvent(event);
}

} // namespace tessaly
