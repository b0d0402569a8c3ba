// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/Sounds.h"

#include <QString>

#include <chrono>
#include <memory>

namespace tessaly {

/// The sounds of the desktop's theme, by libcanberra. The library and its way to the sound server are loaded at the
/// first sound, on a thread of their own, and given back after `idle` without any. Main thread only.
class DesktopSounds final : public Sounds {
public:
    static constexpr std::chrono::milliseconds usualIdle { 30000 };

    explicit DesktopSounds(
        const QString &library = QStringLiteral("libcanberra.so.0"), std::chrono::milliseconds idle = usualIdle);
    ~DesktopSounds() override;

    void playScreenCapture() override;
    void beep() override;

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
