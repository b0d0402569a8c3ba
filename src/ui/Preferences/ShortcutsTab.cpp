// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/ShortcutsTab.h"

#include "core/Hotkey/HotkeyService.h"
#include "core/Preferences/Settings.h"
#include "ui/Preferences/HotKeyRecorderView.h"
#include "ui/Preferences/ShortcutStateView.h"
#include "ui/Style/Appearance.h"
#include "ui/Style/Icons.h"

#include <QClipboard>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace tessaly {

namespace {

enum Column { IconColumn, LabelColumn, KeysColumn, ButtonColumn };

/// With the whole path where the desktop would not find the program, as in a folder that it was only unpacked to.
QString commandLineOf(CaptureAction action)
{
    const QString commandLine = QString::fromLatin1(captureAction(action).commandLine);
    const QString program = commandLine.section(u' ', 0, 0);
    const QString beside = QCoreApplication::applicationDirPath() + u'/' + program;
    if (!QStandardPaths::findExecutable(program).isEmpty() || !QFileInfo(beside).isExecutable())
        return commandLine;
    const QString path = beside.contains(u' ') ? u'"' + beside + u'"' : beside;
    return path + commandLine.mid(program.size());
}

} // namespace

ShortcutsTab::ShortcutsTab(Settings &settings, HotkeyService &hotkeys, QWidget *parent) :
    QWidget(parent),
    m_settings(settings),
    m_hotkeys(hotkeys)
{
    m_shortcuts = shortcutsPage();
    m_commands = commandsPage();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_shortcuts);
    column->addWidget(m_commands);
    column->addStretch();
    dress();
    connect(&m_hotkeys, &HotkeyService::reloaded, this, &ShortcutsTab::refresh);
    refresh();
}

/// The recorders go after it; one that records then has the hot keys taken again.
ShortcutsTab::~ShortcutsTab() { disconnect(&m_hotkeys, nullptr, this, nullptr); }

QLabel *ShortcutsTab::note(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    m_notes += label;
    return label;
}

QWidget *ShortcutsTab::shortcutsPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(LabelColumn, 1);
    for (const CaptureActionRow &row : captureActions())
        addShortcut(*grid, row.action);
    m_askedNote = note(tr("Your desktop decides which keys these become. They can be changed in its own settings."));
    const QList<QLabel *> notes {
        note(tr("Click the shortcut and press a new key combination (must include a modifier).")),
        note(tr("Region and Window open a bar at the bottom of the screen to switch between region, window and full "
                "screen, so one shortcut is enough.")),
        m_askedNote,
    };
    for (QLabel *each : notes)
        grid->addWidget(each, grid->rowCount(), 0, 1, -1);
    return page;
}

void ShortcutsTab::addAction(QGridLayout &grid, int line, CaptureAction action)
{
    auto *icon = new QLabel;
    m_icons.emplace_back(icon, action);
    grid.addWidget(icon, line, IconColumn);
    grid.addWidget(new QLabel(captureActionLabel(action)), line, LabelColumn);
}

void ShortcutsTab::addShortcut(QGridLayout &grid, CaptureAction action)
{
    const int line = grid.rowCount();
    addAction(grid, line, action);
    const Row row { action, new HotKeyRecorderView(m_settings, action), new QPushButton(tr("Reset")),
        new ShortcutStateView };
    row.recorder->setObjectName(QStringLiteral("recorder ") + rawValue(action));
    row.reset->setObjectName(QStringLiteral("reset ") + rawValue(action));
    row.reset->setAutoDefault(false);
    row.reset->setToolTip(tr("Back to %1").arg(CaptureHotKey::defaultOf(action).keyText()));
    row.reset->setAccessibleName(tr("Reset the shortcut of %1").arg(captureActionLabel(action)));
    connect(row.reset, &QPushButton::clicked, this, [this, action] { reset(action); });
    connect(row.recorder, &HotKeyRecorderView::hotKeyChanged, &m_hotkeys, &HotkeyService::reload);
    connect(row.recorder, &HotKeyRecorderView::recordingChanged, &m_hotkeys,
        [&hotkeys = m_hotkeys](bool recording) { recording ? hotkeys.pause() : hotkeys.resume(); });
    grid.addWidget(row.recorder, line, KeysColumn);
    grid.addWidget(row.reset, line, ButtonColumn);
    grid.addWidget(row.state, line + 1, KeysColumn, 1, 2);
    m_rows += row;
}

QWidget *ShortcutsTab::commandsPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(10);
    grid->setColumnStretch(LabelColumn, 1);
    grid->addWidget(note(tr("This desktop does not let programs listen for shortcuts. Its own keyboard settings can "
                            "start a capture: add a shortcut there for each of these commands that you want.")),
        0, 0, 1, -1);
    for (const CaptureActionRow &row : captureActions())
        addCommand(*grid, row.action);
    return page;
}

void ShortcutsTab::addCommand(QGridLayout &grid, CaptureAction action)
{
    const int line = grid.rowCount();
    const QString commandLine = commandLineOf(action);
    addAction(grid, line, action);
    auto *command = new QLabel(commandLine);
    command->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    command->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    command->setAccessibleName(tr("Command for %1: %2").arg(captureActionLabel(action), commandLine));
    auto *copy = new QPushButton(Icons::icon(QLatin1StringView("copy")), tr("Copy"));
    copy->setObjectName(QStringLiteral("copy ") + rawValue(action));
    copy->setAutoDefault(false);
    copy->setToolTip(tr("Copy the command to the clipboard"));
    copy->setAccessibleName(tr("Copy the command for %1").arg(captureActionLabel(action)));
    connect(copy, &QPushButton::clicked, this, [commandLine] { QGuiApplication::clipboard()->setText(commandLine); });
    grid.addWidget(command, line, KeysColumn);
    grid.addWidget(copy, line, ButtonColumn);
}

void ShortcutsTab::reset(CaptureAction action)
{
    // A setting that cannot be written holds for this run.
    static_cast<void>(CaptureHotKey::defaultOf(action).save(m_settings, action));
    m_hotkeys.reload();
}

void ShortcutsTab::refresh()
{
    const auto ability = m_hotkeys.ability();
    m_shortcuts->setVisible(ability != HotkeyBackend::Ability::None);
    m_commands->setVisible(ability == HotkeyBackend::Ability::None);
    m_askedNote->setVisible(ability == HotkeyBackend::Ability::Asks);
    for (const Row &row : m_rows)
        showState(row);
}

void ShortcutsTab::showState(const Row &row)
{
    if (!row.recorder->isRecording() && row.recorder->hotKey() != CaptureHotKey::load(m_settings, row.action))
        row.recorder->refresh();
    row.reset->setEnabled(row.recorder->hotKey() != CaptureHotKey::defaultOf(row.action));
    row.state->setState(m_hotkeys.stateOf(row.action), m_hotkeys.given(row.action), doublingLabel(row));
    row.recorder->setAccessibleDescription(row.state->text());
}

/// The label of the first action with the same keys.
QString ShortcutsTab::doublingLabel(const Row &row) const
{
    const auto hotKey = CaptureHotKey::load(m_settings, row.action);
    const auto first = std::ranges::find_if(
        m_rows, [&](const Row &other) { return CaptureHotKey::load(m_settings, other.action).hasSameKeys(hotKey); });
    return captureActionLabel(first->action);
}

/// A combination that another program held may be free by now.
void ShortcutsTab::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    const auto isRefused
        = [this](const Row &row) { return m_hotkeys.stateOf(row.action) == HotkeyService::State::Refused; };
    if (!event->spontaneous() && std::ranges::any_of(m_rows, isRefused))
        m_hotkeys.reload();
}

void ShortcutsTab::dress()
{
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, Colors::quietText());
    for (QLabel *label : std::as_const(m_notes))
        label->setPalette(quiet);
    const QSize size = QSize(1, 1) * (fontMetrics().height() + 2);
    for (const auto &[label, action] : std::as_const(m_icons)) {
        const QIcon icon = Icons::icon(QLatin1StringView(captureAction(action).icon));
        label->setPixmap(icon.pixmap(size, devicePixelRatioF()));
    }
}

void ShortcutsTab::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        dress();
}

} // namespace tessaly
