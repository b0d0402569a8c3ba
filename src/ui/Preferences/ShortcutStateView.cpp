// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/ShortcutStateView.h"

#include "ui/Style/Appearance.h"
#include "ui/Style/Icons.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

namespace tessaly {

namespace {

QString sentence(HotkeyService::State state, const std::optional<QString> &given, const QString &doubledBy)
{
    switch (state) {
    case HotkeyService::State::Active:
        return given ? QCoreApplication::translate("ShortcutStateView", "On this desktop: %1").arg(*given) : QString();
    case HotkeyService::State::Refused:
        return given
            ? QCoreApplication::translate("ShortcutStateView", "The desktop has given it no keys.")
            : QCoreApplication::translate("ShortcutStateView", "Not heard: another program uses this shortcut.");
    case HotkeyService::State::Doubled:
        return QCoreApplication::translate("ShortcutStateView", "Not heard: already used by %1.").arg(doubledBy);
    case HotkeyService::State::NotOffered:
        break;
    }
    return {};
}

} // namespace

ShortcutStateView::ShortcutStateView(QWidget *parent) :
    QWidget(parent),
    m_icon(new QLabel(this)),
    m_text(new QLabel(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(5);
    row->addWidget(m_icon);
    row->addWidget(m_text, 1);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setObjectName(QStringLiteral("state"));
    dress();
}

QString ShortcutStateView::text() const { return m_text->text(); }

void ShortcutStateView::setState(
    HotkeyService::State state, const std::optional<QString> &given, const QString &doubledBy)
{
    m_text->setText(sentence(state, given, doubledBy));
    m_isWarning = state == HotkeyService::State::Refused || state == HotkeyService::State::Doubled;
    m_icon->setVisible(m_isWarning);
    setVisible(!m_text->text().isEmpty());
}

void ShortcutStateView::dress()
{
    const int side = fontMetrics().height();
    m_icon->setPixmap(Icons::icon(QLatin1StringView("alert-warning")).pixmap(QSize(side, side), devicePixelRatioF()));
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, Colors::quietText());
    m_text->setPalette(quiet);
}

void ShortcutStateView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        dress();
}

} // namespace tessaly
