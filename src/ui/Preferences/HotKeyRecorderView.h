// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Hotkey/CaptureHotKey.h"

#include <QPushButton>

namespace tessaly {

/// Shows the combination of an action; a click, or Space, lets the user press another one.
class HotKeyRecorderView final : public QPushButton {
    Q_OBJECT

public:
    /// Keeps the reference.
    HotKeyRecorderView(Settings &settings, CaptureAction action, QWidget *parent = nullptr);
    ~HotKeyRecorderView() override;

    const CaptureHotKey &hotKey() const { return m_hotKey; }
    /// Shows what the settings hold now.
    void refresh();
    bool isRecording() const { return m_recording; }
    /// The action that has the combination pressed last, while this has the focus and until the next one.
    std::optional<CaptureAction> conflict() const { return m_conflict; }

    /// Wide enough for everything that it ever shows.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// A new combination has been recorded and saved.
    void hotKeyChanged(const CaptureHotKey &hotKey);
    void recordingChanged(bool recording);

protected:
    bool event(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void start();
    void stop();
    void take(const QKeyEvent &event);
    void record(const CaptureHotKey &hotKey);
    void showState();

    Settings &m_settings;
    CaptureAction m_action;
    CaptureHotKey m_hotKey;
    bool m_recording = false;
    std::optional<CaptureAction> m_conflict;
};

} // namespace tessaly
