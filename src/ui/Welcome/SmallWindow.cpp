// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Welcome/SmallWindow.h"

#include "ui/Style/Appearance.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace tessaly {

namespace {

// Points.
constexpr int margin = 28;
constexpr int buttonMargin = 16;
constexpr double mostOfScreen = 0.9;

/// The buttons stand below a line.
class ButtonRow : public QWidget {
protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(0, 0, width(), 1, Colors::separator()); }
};

} // namespace

SmallWindow::SmallWindow(const QString &title, int widthInLetters) :
    m_widthInLetters(widthInLetters),
    m_content(new QVBoxLayout),
    m_buttons(new QHBoxLayout)
{
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
    auto *inner = new QWidget;
    inner->setLayout(m_content);
    m_content->setContentsMargins(margin, margin, margin, margin);
    m_content->setSpacing(20);
    auto *scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(inner);
    auto *row = new ButtonRow;
    row->setLayout(m_buttons);
    m_buttons->setContentsMargins(margin, buttonMargin, margin, buttonMargin);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(scroll, 1);
    column->addWidget(row);
}

QPushButton *SmallWindow::makeButton(const QString &text, const QString &toolTip)
{
    constexpr int air = 20;
    auto *button = new QPushButton(text);
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    button->setMinimumWidth(button->fontMetrics().horizontalAdvance(text) + 2 * air);
    return button;
}

void SmallWindow::showEvent(QShowEvent *event)
{
    if (!m_fitted)
        fit();
    m_fitted = true;
    QDialog::showEvent(event);
}

void SmallWindow::fit()
{
    const QSize room = screen()->availableSize() * mostOfScreen;
    const int least = std::max(m_buttons->minimumSize().width(), m_content->minimumSize().width());
    int width = std::max(fontMetrics().averageCharWidth() * m_widthInLetters + 2 * margin, least);
    width = std::min(width, room.width());
    const int buttons = m_buttons->sizeHint().height();
    int height = m_content->heightForWidth(width);
    if (height < 0)
        height = m_content->sizeHint().height();
    if (height + buttons > room.height())
        width += findChild<QScrollArea *>()->verticalScrollBar()->sizeHint().width();
    resize(QSize(width, height + buttons).boundedTo(room));
}

} // namespace tessaly
