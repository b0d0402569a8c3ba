// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/WindowSource.h"
#include "platform/Entries/DesktopEntries.h"

#include <memory>

namespace tessaly {

/// The windows of sway, by its own tree (SWAYSOCK); no other compositor tells where windows are. A window's picture is
/// what its rectangle shows.
class SwayWindowSource final : public WindowSource {
public:
    /// Null when this is not sway.
    static std::unique_ptr<WindowSource> create(ScreenSource &screen);
    ~SwayWindowSource() override;

    bool canList() const override { return true; }
    Result<QList<ScreenWindow>> windows() override;
    std::optional<Application> frontApplication() override;
    void prepare(const QList<ScreenWindow> &) override { }
    void release() override { }
    void capture(const ScreenWindow &window, Look look, ScreenSource::Answer answer) override;
    bool showsAny(const QList<quint64> &) override { return false; }

private:
    SwayWindowSource(ScreenSource &screen, QString socketPath);

    ScreenSource &m_screen;
    QString m_socketPath;
    DesktopEntries m_entries;
};

} // namespace tessaly
