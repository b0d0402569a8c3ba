// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QGridLayout;
class QLabel;
class QPushButton;

namespace tessaly {

class HotKeyRecorderView;
class HotkeyService;
class Settings;
class ShortcutStateView;
enum class CaptureAction;

/// One row for each capture action: its icon and label, its combination to record anew, "Reset", and whether the
/// combination is heard. On a desktop that gives programs no hot keys, the commands that its own settings can start.
class ShortcutsTab : public QWidget {
    Q_OBJECT

public:
    /// Keeps both references.
    ShortcutsTab(Settings &settings, HotkeyService &hotkeys, QWidget *parent = nullptr);
    ~ShortcutsTab() override;

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Row {
        CaptureAction action;
        HotKeyRecorderView *recorder;
        QPushButton *reset;
        ShortcutStateView *state;
    };

    QWidget *shortcutsPage();
    QWidget *commandsPage();
    void addAction(QGridLayout &grid, int line, CaptureAction action);
    void addShortcut(QGridLayout &grid, CaptureAction action);
    void addCommand(QGridLayout &grid, CaptureAction action);
    void reset(CaptureAction action);
    void refresh();
    void showState(const Row &row);
    QString doublingLabel(const Row &row) const;
    QLabel *note(const QString &text);
    void dress();

    Settings &m_settings;
    HotkeyService &m_hotkeys;
    QWidget *m_shortcuts = nullptr;
    QWidget *m_commands = nullptr;
    QLabel *m_askedNote = nullptr; ///< where the desktop decides
    QList<Row> m_rows;
    QList<QLabel *> m_notes;
    QList<std::pair<QLabel *, CaptureAction>> m_icons;
};

} // namespace tessaly
