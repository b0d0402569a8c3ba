// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>

namespace tessaly {

/// Where the time comes from; tests set their own.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
};

/// The machine's clock in local time.
class SystemClock final : public Clock {
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};

} // namespace tessaly
