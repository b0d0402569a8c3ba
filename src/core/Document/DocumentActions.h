// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/ExportService.h"

namespace tessaly {

class AnnotationStore;
class RecentDocuments;
struct FrameComposition;

/// The save commands of an editor. Each is true when something was saved; a failure has then been shown to the user and
/// the capture keeps its unsaved state. Main thread only.
class DocumentActions {
public:
    struct Surroundings {
        Settings &settings;
        Alerts &alerts;
        SavePanels &panels;
        LongWork &work;
        ExportService &exports;
        RecentDocuments &recentDocuments;
    };
    explicit DocumentActions(const Surroundings &surroundings);

    /// The finished picture, through the save panel. Without a format that of the settings.
    bool exportImage(AnnotationStore &store, std::optional<ExportFormat> format = {});

    /// To the document that the capture came from, or as an image when there is none.
    bool save(AnnotationStore &store);
    bool saveAsDocument(AnnotationStore &store);

    /// Writes the document package and makes it the capture's own.
    bool write(AnnotationStore &store, const QString &path);

    /// Writes the document package beside an exported image, under its name.
    void writeCompanion(AnnotationStore &store, const QString &imagePath);

    /// The finished picture through long work; says so when there is none. Empty when it failed or was cancelled.
    std::optional<RasterImage> flattened(const AnnotationStore &store);

private:
    struct Moment;
    std::optional<RasterImage> flattened(const FrameComposition &framed);
    std::optional<Outcome> writePackage(const Moment &moment, const QString &path); ///< empty when cancelled
    void writeCompanion(AnnotationStore &store, const Moment &moment, const QString &imagePath);

    Surroundings m_surroundings;
};

} // namespace tessaly
