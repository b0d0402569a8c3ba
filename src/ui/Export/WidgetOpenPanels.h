// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/OpenPanels.h"

namespace tessaly {

/// Open panels as Qt's own file dialog.
class WidgetOpenPanels final : public OpenPanels {
public:
    std::optional<QStringList> chooseImages() override;
    std::optional<QString> chooseFolder(
        const QString &message, const QString &prompt, const QString &folder) override;
};

} // namespace tessaly
