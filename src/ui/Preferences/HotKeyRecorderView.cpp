// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/HotKeyRecorderView.h"

#include "core/Preferences/Settings.h"

#include <QKeyEvent>
#include <QStyleOptionButton>

namespace tessaly {

namespace {

/// On X11 as on Wayland the native codes of keys are the kernel's, moved by this.
constexpr quint32 firstKernelKey = 8;

PressedKey pressOf(const QKeyEvent &event)
{
    const quint32 native = event.nativeScanCode();
    return { native > firstKernelKey ? native - firstKernelKey : 0, event.key(), event.modifiers() };
}

QString usedBy(CaptureAction action)
{
    return HotKeyRecorderView::tr("Already used by %1").arg(captureActionLabel(action));
}

} // namespace

HotKeyRecorderView::HotKeyRecorderView(Settings &settings, CaptureAction action, QWidget *parent) :
    QPushButton(parent),
    m_settings(settings),
    m_action(action)
{
    setAutoDefault(false);
    setFocusPolicy(Qt::StrongFocus);
    setToolTip(tr("Click and press the new shortcut"));
    connect(this, &QPushButton::clicked, this, &HotKeyRecorderView::start);
    refresh();
}

/// Whoever has let go the hot keys meanwhile is to take them again.
HotKeyRecorderView::~HotKeyRecorderView() { stop(); }

void HotKeyRecorderView::refresh()
{
    m_hotKey = CaptureHotKey::load(m_settings, m_action);
    m_conflict.reset();
    showState();
}

void HotKeyRecorderView::start()
{
    if (m_recording)
        return;
    m_conflict.reset();
    m_recording = true;
    setFocus();
    grabKeyboard(); // also what other programs and the window manager would take
    showState();
    Q_EMIT recordingChanged(true);
}

void HotKeyRecorderView::stop()
{
    if (!std::exchange(m_recording, false))
        return;
    releaseKeyboard();
    showState();
    Q_EMIT recordingChanged(false);
}

void HotKeyRecorderView::take(const QKeyEvent &event)
{
    if (event.key() == Qt::Key_Escape)
        return stop();
    const auto pressed = CaptureHotKey::from(pressOf(event));
    if (!pressed)
        return;
    m_conflict = pressed->conflict(m_settings, m_action);
    if (!m_conflict)
        record(*pressed);
    stop();
}

void HotKeyRecorderView::record(const CaptureHotKey &hotKey)
{
    m_hotKey = hotKey;
    // A setting that cannot be written holds for this run.
    static_cast<void>(hotKey.save(m_settings, m_action));
    Q_EMIT hotKeyChanged(hotKey);
}

void HotKeyRecorderView::showState()
{
    const QString text = m_recording ? tr("Press shortcut…") : m_conflict ? usedBy(*m_conflict) : m_hotKey.keyText();
    setText(text);
    setAccessibleName(tr("%1: %2", "an action and its shortcut").arg(captureActionLabel(m_action), text));
}

QSize HotKeyRecorderView::sizeHint() const
{
    QStringList texts { text(), tr("Press shortcut…") };
    for (const CaptureActionRow &row : captureActions())
        texts += usedBy(row.action);
    QSize contents(0, fontMetrics().height());
    for (const QString &each : texts)
        contents.setWidth(std::max(contents.width(), fontMetrics().horizontalAdvance(each)));
    QStyleOptionButton option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, contents, this);
}

/// Before shortcuts, the change of focus by Tab, and what a dialog does with Escape and Return.
bool HotKeyRecorderView::event(QEvent *event)
{
    const auto type = event->type();
    const bool isKey = type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::ShortcutOverride;
    if (!m_recording || !isKey)
        return QPushButton::event(event);
    event->accept();
    if (type == QEvent::KeyPress)
        take(*static_cast<QKeyEvent *>(event));
    return true;
}

void HotKeyRecorderView::focusOutEvent(QFocusEvent *event)
{
    stop();
    m_conflict.reset();
    showState();
    QPushButton::focusOutEvent(event);
}

void HotKeyRecorderView::hideEvent(QHideEvent *event)
{
    stop();
    QPushButton::hideEvent(event);
}

} // namespace tessaly
