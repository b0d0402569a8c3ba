// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tessaly {

/// Tells the user of a failure and waits until it is acknowledged.
class Alerts {
public:
    virtual ~Alerts();
    virtual void warn(const QString &message, const QString &informativeText) = 0;
};

} // namespace tessaly
