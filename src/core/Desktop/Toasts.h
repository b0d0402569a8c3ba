// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <chrono>
#include <functional>

namespace tessaly {

/// Short notices that come and go by themselves over whatever is on the screen.
class Toasts {
public:
    /// How long a notice of something done stays.
    static constexpr std::chrono::milliseconds usualDuration { 1300 };

    virtual ~Toasts();

    /// Takes the place of the notice that is shown.
    virtual void show(const QString &message, std::chrono::milliseconds duration = usualDuration) = 0;

    /// A notice with the link's host and a button "Open Link", which calls `onOpen` and closes it. It closes by itself
    /// after 6 s; a new one takes the place of the one that is open.
    virtual void showLink(const QString &message, const QString &host, std::function<void()> onOpen) = 0;
};

} // namespace tessaly
