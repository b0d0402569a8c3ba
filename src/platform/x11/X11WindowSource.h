// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/WindowSource.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>

#include <memory>

namespace tessaly {

class DesktopEntries;
class X11Connection;
struct WindowFacts;

/// The windows of an X server, by what its window manager tells (EWMH), or by the server's own list where none runs;
/// their pixels by the Composite extension.
class X11WindowSource final : public WindowSource {
public:
    /// Connects to the server that `display` names; empty means the environment's.
    static Result<std::unique_ptr<WindowSource>> create(ScreenSource &screen, const QString &display = {});
    ~X11WindowSource() override;

    bool canList() const override { return true; }
    Result<QList<ScreenWindow>> windows() override;
    std::optional<Application> frontApplication() override;
    void prepare(const QList<ScreenWindow> &windows) override;
    void release() override;

    /// Answers later only where other windows cover this one, nothing keeps its covered parts and the program must be
    /// given the time to draw them. Not at all once the source is destroyed.
    void capture(const ScreenWindow &window, Look look, ScreenSource::Answer answer) override;
    bool showsAny(const QList<quint64> &ownWindows) override;

private:
    using FrameId = quint32;
    enum class Keeping { UntilReleased, ForOneCapture };

    X11WindowSource(ScreenSource &screen, std::shared_ptr<X11Connection> connection);

    /// The same display that the screen's source would name, for a place on the desktop.
    std::optional<Display> displayAt(const QRect &pixelRect) const;
    ScreenWindow described(const WindowFacts &facts);
    bool canComposite();
    void keep(FrameId frame, Keeping keeping);
    void letGo(FrameId frame);
    /// How long, in ms, until covered parts of the window have been drawn.
    qint64 timeToDraw(FrameId frame) const;
    void captureNow(const ScreenWindow &window, FrameId frame, Look look, const ScreenSource::Answer &answer);
    void captureVisible(const QRect &pixelRect, const ScreenSource::Answer &answer);
    QImage pixelsOf(FrameId frame, const QRect &pixelRect, Look look) const;

    struct Kept {
        QElapsedTimer since;
        Keeping keeping = Keeping::UntilReleased;
    };

    ScreenSource &m_screen;
    std::shared_ptr<X11Connection> m_connection;
    std::unique_ptr<DesktopEntries> m_entries;
    QHash<FrameId, Kept> m_kept;
    std::optional<bool> m_canComposite;
    QObject m_waiting; ///< the context of captures that answer later
};

} // namespace tessaly
