// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>

namespace tessaly {

/// Shows the seconds that are left.
class CountdownView {
public:
    virtual ~CountdownView();

    /// `onClick` is called when the user clicks it or presses Escape.
    virtual void show(int seconds, std::function<void()> onClick) = 0;
    virtual void setNumber(int seconds) = 0;
    virtual void hide() = 0;
};

/// The seconds before a capture; one at a time. One for the program.
class CaptureCountdown : public QObject {
    Q_OBJECT

public:
    struct Pace {
        std::chrono::milliseconds second { 1000 };
        std::chrono::milliseconds beforeDone { 60 }; ///< so that the view is off the screen
    };
    explicit CaptureCountdown(CountdownView &view);
    CaptureCountdown(CountdownView &view, Pace pace);
    ~CaptureCountdown() override;

    /// Calls `onDone` after the seconds, at once when they are below 1. A countdown that runs is torn down, without its
    /// `onCancel`. Exactly one of both is called otherwise.
    void start(int seconds, std::function<void()> onDone, std::function<void()> onCancel);
    bool isRunning() const { return m_timer.isActive(); }
    /// As when the user clicks it. Nothing when none runs.
    void cancel();

private:
    void tick();
    void tearDown();

    CountdownView &m_view;
    Pace m_pace;
    QTimer m_timer;
    int m_remaining = 0; ///< 0 once the view is hidden
    std::function<void()> m_onDone, m_onCancel;
};

} // namespace tessaly
