// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/Alerts.h"

namespace tessaly {

/// Alerts as modal message boxes over the active window.
class WidgetAlerts final : public Alerts {
public:
    void warn(const QString &message, const QString &informativeText) override;
    void inform(const QString &message, const QString &informativeText) override;
    int ask(const Question &question) override;
};

} // namespace tessaly
