// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/OverflowRow.h"

#include "ui/Style/Icons.h"

#include <QEvent>
#include <QFrame>
#include <QScreen>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace tessaly {

namespace {
constexpr int gap = 16; // between controls
constexpr int inset = 12; // at the sides

/// What a layout would give it.
QSize wanted(const QWidget *control) { return control->sizeHint().expandedTo(control->minimumSize()); }

} // namespace

OverflowRow::OverflowRow(QWidget *parent) : QWidget(parent), m_more(new QToolButton(this)), m_panel(new QFrame(this))
{
    m_panel->setWindowFlags(Qt::Popup);
    m_panel->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    m_panel->setAccessibleName(tr("More Options"));
    m_panelLayout = new QVBoxLayout(m_panel);
    m_panelLayout->setContentsMargins(12, 12, 12, 12);
    m_panelLayout->setSpacing(8);
    m_more->setText(QStringLiteral("»"));
    m_more->setAutoRaise(true);
    m_more->setFocusPolicy(Qt::TabFocus);
    m_more->setToolTip(tr("More Options"));
    m_more->setAccessibleName(tr("More Options"));
    m_more->hide();
    connect(m_more, &QToolButton::clicked, this, &OverflowRow::openPanel);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void OverflowRow::add(QWidget *control)
{
    control->setParent(this);
    control->hide();
    m_controls += control;
}

void OverflowRow::setShown(const QList<QWidget *> &controls)
{
    if (m_shown == controls)
        return;
    m_shown = controls;
    m_panel->hide();
    for (QWidget *control : std::as_const(m_controls)) {
        if (!m_shown.contains(control)) {
            control->hide();
            control->setParent(this);
        }
    }
    updateGeometry();
    arrange();
}

bool OverflowRow::isInPanel(const QWidget *control) const { return control->parentWidget() == m_panel; }

QSize OverflowRow::sizeHint() const
{
    QSize size(2 * inset, 0);
    for (const QWidget *control : m_shown) {
        size.rwidth() += wanted(control).width() + gap;
        size.setHeight(std::max(size.height(), wanted(control).height()));
    }
    return size;
}

QSize OverflowRow::minimumSizeHint() const
{
    int height = m_more->sizeHint().height();
    for (const QWidget *control : m_controls)
        height = std::max(height, wanted(control).height());
    return { 2 * inset + m_more->sizeHint().width(), height };
}

/// How many of the shown controls fit into the width.
int OverflowRow::fitting() const
{
    const int room = width() - 2 * inset;
    const int forMore = gap + m_more->sizeHint().width();
    int used = 0, fits = 0;
    for (qsizetype index = 0; index < m_shown.size(); ++index) {
        used += (index ? gap : 0) + wanted(m_shown[index]).width();
        const bool last = index + 1 == m_shown.size();
        if (used + (last ? 0 : forMore) <= room)
            fits = int(index) + 1;
    }
    return fits;
}

void OverflowRow::arrange()
{
    if (m_arranging)
        return;
    m_arranging = true;
    const int count = m_panel->isVisible() ? int(m_shown.size() - m_panelLayout->count()) : fitting();
    placeInline(count);
    placeInPanel(count);
    m_arranging = false;
}

void OverflowRow::placeInline(qsizetype count)
{
    int x = inset;
    QWidget *previous = nullptr;
    for (QWidget *control : m_shown.first(count)) {
        if (control->parentWidget() != this)
            control->setParent(this);
        const QSize size = wanted(control).boundedTo({ width() - 2 * inset, height() });
        control->setGeometry(QStyle::visualRect(
            layoutDirection(), rect(), QRect(x, (height() - size.height()) / 2, size.width(), size.height())));
        control->show();
        x += size.width() + gap;
        if (previous)
            setTabOrder(previous, control);
        previous = control;
    }
    const QSize more = m_more->sizeHint();
    m_more->setGeometry(QStyle::visualRect(layoutDirection(), rect(),
        QRect(width() - inset - more.width(), (height() - more.height()) / 2, more.width(), more.height())));
    m_more->setVisible(count < m_shown.size());
}

void OverflowRow::placeInPanel(qsizetype first)
{
    while (QLayoutItem *item = m_panelLayout->takeAt(0))
        delete item;
    for (QWidget *control : m_shown.sliced(first)) {
        if (control->parentWidget() != m_panel)
            control->setParent(m_panel);
        m_panelLayout->addWidget(control);
        control->show();
    }
}

void OverflowRow::openPanel()
{
    m_panel->adjustSize();
    const QRect button(m_more->mapToGlobal(QPoint()), m_more->size());
    const QRect screen = m_more->screen()->availableGeometry();
    QPoint corner(button.right() - m_panel->width(), button.bottom() + 4);
    corner.setX(std::clamp(corner.x(), screen.left(), std::max(screen.left(), screen.right() - m_panel->width())));
    m_panel->move(corner);
    m_panel->show();
}

void OverflowRow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

bool OverflowRow::event(QEvent *event)
{
    // A control's size hint has changed, as when a font or a text did.
    if (event->type() == QEvent::LayoutRequest && !m_arranging) {
        updateGeometry();
        arrange();
    }
    return QWidget::event(event);
}

} // namespace tessaly
