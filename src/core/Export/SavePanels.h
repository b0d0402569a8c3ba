// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/ExportFormat.h"

#include <optional>

namespace tessaly {

/// The panels in which the user chooses where something is saved, as the rest of the program sees them. Each waits for
/// the answer and gives nothing when the user cancelled.
class SavePanels {
public:
    struct ImageRequest {
        ExportFormat format = ExportFormat::Png; ///< to start with
        QString baseName; ///< proposed, without extension
        QString folder; ///< to open in; empty means the system's choice
        bool offersDocument = false; ///< the export belongs to an editable capture
    };
    struct ImageChoice {
        QString path;
        ExportFormat format = ExportFormat::Png;
        double quality = 1;
        bool alsoDocument = false;
    };

    virtual ~SavePanels();
    virtual std::optional<ImageChoice> chooseImage(const ImageRequest &request) = 0;
    /// `fileName` is proposed; the choice ends in ".tessaly".
    virtual std::optional<QString> chooseDocument(const QString &fileName, const QString &folder) = 0;
};

} // namespace tessaly
