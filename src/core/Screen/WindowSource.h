// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/ScreenSource.h"

#include <optional>

namespace tessaly {

/// A window of any program.
struct ScreenWindow {
    quint64 id = 0; ///< the desktop's own number
    QString title;
    QString applicationName; ///< as the desktop's menus call it; empty when unknown
    qint64 processId = 0; ///< 0 when unknown
    QRectF layoutRect; ///< what a person sees as the window, with its title bar and without its shadow; layout units

    bool operator==(const ScreenWindow &) const = default;
};

/// The windows of the desktop. Main thread only.
class WindowSource {
public:
    struct Look {
        bool transparentBackground = true; ///< corners keep their transparency where the desktop knows it
    };

    virtual ~WindowSource();

    /// Whether this desktop tells where windows are; what needs it is left out of menus otherwise.
    virtual bool canList() const = 0;

    /// The usual windows on the screen, front to back, without those of this process and those of one point or less.
    virtual Result<QList<ScreenWindow>> windows() = 0;

    /// The program whose window has the focus; absent when unknown.
    struct Application {
        QString name; ///< may be empty
        qint64 processId = 0;
    };
    virtual std::optional<Application> frontApplication() = 0;

    /// From now on covered parts of the windows are kept by the desktop, until release().
    virtual void prepare(const QList<ScreenWindow> &windows) = 0;
    virtual void release() = 0;

    /// The window's pixels alone where the desktop gives them, without its shadow; else what its rectangle shows. Fails
    /// when the window is gone. As ScreenSource::capture otherwise.
    virtual void capture(const ScreenWindow &window, Look look, ScreenSource::Answer answer) = 0;

    /// Whether the window system still shows one of the windows, named by their QWindow::winId().
    virtual bool showsAny(const QList<quint64> &ownWindows) = 0;
};

} // namespace tessaly
