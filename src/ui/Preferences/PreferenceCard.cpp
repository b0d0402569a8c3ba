// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/PreferenceCard.h"

#include "ui/Style/Appearance.h"
#include "ui/Style/ControlShapes.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

namespace tessaly {

namespace {

constexpr int sideMargin = 16, rowMargin = 10, noteGap = 4;

} // namespace

QuietLabel::QuietLabel(const QString &text, QWidget *parent) : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    dress();
}

void QuietLabel::dress()
{
    QPalette quiet = palette();
    if (quiet.color(QPalette::WindowText) == Colors::quietText())
        return;
    quiet.setColor(QPalette::WindowText, Colors::quietText());
    setPalette(quiet);
}

void QuietLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        dress();
}

PreferenceCard::PreferenceCard(QWidget *parent) : QWidget(parent), m_rows(new QVBoxLayout(this))
{
    m_rows->setContentsMargins(0, 1, 0, 1);
    m_rows->setSpacing(0);
}

void PreferenceCard::addRow(QWidget *row)
{
    row->setContentsMargins(sideMargin, rowMargin, sideMargin, rowMargin);
    m_rows->addWidget(row);
}

void PreferenceCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    ControlShapes::box(painter, rect(), palette().color(QPalette::Base), Colors::separator(), 8);
    for (int index = 1; index < m_rows->count(); ++index) {
        const int top = m_rows->itemAt(index)->geometry().top();
        painter.fillRect(QRect(sideMargin, top, width() - 2 * sideMargin, 1), Colors::separator());
    }
}

namespace PreferenceLayout {

QWidget *checkRow(QWidget *box, QuietLabel *note)
{
    auto *row = new QWidget;
    auto *layout = new QVBoxLayout(row);
    layout->setContentsMargins({});
    layout->setSpacing(noteGap);
    layout->addWidget(box);
    if (note) {
        const QStyle *style = box->style();
        note->setIndent(style->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, box)
            + style->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, box));
        layout->addWidget(note);
    }
    return row;
}

QWidget *controlRow(const QString &label, QWidget *control, QuietLabel *note)
{
    auto *row = new QWidget;
    auto *layout = new QVBoxLayout(row);
    layout->setContentsMargins({});
    layout->setSpacing(noteGap);
    auto *line = new QHBoxLayout;
    line->setSpacing(16);
    auto *name = new QLabel(label);
    if (QWidget *focused = control->focusProxy() ? control->focusProxy() : control;
        focused->focusPolicy() != Qt::NoFocus) {
        name->setBuddy(focused);
        focused->setAccessibleName(label);
    }
    line->addWidget(name);
    line->addStretch(1);
    line->addWidget(control);
    layout->addLayout(line);
    if (note)
        layout->addWidget(note);
    return row;
}

} // namespace PreferenceLayout

} // namespace tessaly
