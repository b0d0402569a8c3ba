// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/CaptureCountdown.h"
#include "core/Capture/OwnWindows.h"
#include "core/Desktop/Sounds.h"
#include "core/Screen/SelectionOverlay.h"

/// Stand-ins for what a capture shows and hides. Each tells `note` what it was asked to do.
namespace tessaly::test {

using Note = std::function<void(const QString &)>;

/// Answers when the test says so.
class FakeOverlay final : public SelectionOverlay {
public:
    Note note = [](const QString &) {};
    bool live = true;
    QList<OverlayUse> prepared;
    int session = 0;
    Opening opening; ///< the last one
    DisplaySnapshots snapshots; ///< for its magnifier

    bool showsLiveScreen() const override { return live; }
    void prepare(OverlayUse use) override { prepared += use; }
    int begin(Opening what, Completion completion) override
    {
        opening = std::move(what);
        snapshots.clear();
        m_completion = std::move(completion);
        note(opening.mode == OverlayMode::Window ? QStringLiteral("overlay for windows") : QStringLiteral("overlay"));
        return ++session;
    }
    void setSnapshots(DisplaySnapshots pictures, int of) override
    {
        if (of == session)
            snapshots = std::move(pictures);
    }
    void setMode(OverlayMode mode) override { opening.mode = mode; }
    bool isOpen() const override { return static_cast<bool>(m_completion); }
    void cancel() override { answer({}); }
    void answer(OverlayResult result)
    {
        if (const auto completion = std::exchange(m_completion, nullptr))
            completion(std::move(result));
    }

private:
    Completion m_completion;
};

class FakeCountdownView final : public CountdownView {
public:
    Note note = [](const QString &) {};
    std::function<void()> click; ///< what a click does; none while hidden

    void show(int seconds, std::function<void()> onClick) override
    {
        click = std::move(onClick);
        note(QStringLiteral("count %1").arg(seconds));
    }
    void setNumber(int seconds) override { note(QStringLiteral("count %1").arg(seconds)); }
    void hide() override { note(QStringLiteral("count hidden")); }
};

class FakeOwnWindows final : public OwnWindows {
public:
    Note note = [](const QString &) {};
    QList<quint64> open; ///< those that there are to hide
    bool hidden = false;

    QList<quint64> hide() override
    {
        hidden = true;
        note(QStringLiteral("hide"));
        return open;
    }
    void restore() override
    {
        hidden = false;
        note(QStringLiteral("restore"));
    }
};

class FakeSounds final : public Sounds {
public:
    Note note = [](const QString &) {};

    void playScreenCapture() override { note(QStringLiteral("sound")); }
    void beep() override { note(QStringLiteral("beep")); }
};

} // namespace tessaly::test
