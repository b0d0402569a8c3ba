// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/LongWork.h"
#include "core/Export/ExportFormat.h"
#include "core/Export/SavePanels.h"
#include "core/Imaging/RasterImage.h"

#include <functional>

namespace tessaly {

class Alerts;
class Clipboard;
class Clock;
class Settings;
class Sharing;

/// Moves finished pictures out of the program: to the clipboard, to files, to a drag, to other programs.
/// Main thread only.
class ExportService {
public:
    struct Surroundings {
        Settings &settings;
        Clipboard &clipboard;
        Alerts &alerts;
        SavePanels &panels;
        Sharing &sharing;
        LongWork &work;
        const Clock &clock;
    };
    explicit ExportService(const Surroundings &surroundings);

    /// The picture as the bytes of a file; without a quality the stored one. Long work; empty when the format cannot
    /// hold the picture or the user cancelled.
    std::optional<QByteArray> data(const RasterImage &image, ExportFormat format, std::optional<double> quality = {});

    /// Offers the picture as PNG and TIFF, each made when it is asked for. Honours "copyAtFullSize".
    void copy(const RasterImage &image, bool countsAsExport);

    /// Asks where and writes. `writeDocument(path of the image)` is called when the user wants the editable document
    /// beside it; without one the panel does not offer that. False when nothing was written.
    bool save(const RasterImage &image, ExportFormat format,
        const std::function<void(const QString &imagePath)> &writeDocument = {});
    /// The same; the path of what was written.
    std::optional<QString> saveAs(const RasterImage &image, ExportFormat format,
        const std::function<void(const QString &imagePath)> &writeDocument = {});

    /// Whether share() can do anything on this desktop.
    bool canShare() const;
    void share(const RasterImage &image);

    /// Called for every export that counts.
    std::function<void()> exported = [] {};

private:
    void rememberChoices(const SavePanels::ImageChoice &choice);

    Surroundings m_surroundings;
};

} // namespace tessaly
