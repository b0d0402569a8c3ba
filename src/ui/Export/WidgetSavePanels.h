// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/SavePanels.h"

namespace tessaly {

class Settings;

/// Save panels as Qt's own file dialog, with the save options in it.
class WidgetSavePanels final : public SavePanels {
public:
    /// Keeps the reference.
    explicit WidgetSavePanels(Settings &settings);

    std::optional<ImageChoice> chooseImage(const ImageRequest &request) override;
    std::optional<QString> chooseDocument(const QString &fileName, const QString &folder) override;

private:
    Settings &m_settings;
};

} // namespace tessaly
