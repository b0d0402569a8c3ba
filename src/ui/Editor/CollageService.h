// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/Collage.h"

#include <functional>

namespace tessaly {

class Alerts;
class OpenPanels;

/// Makes a new capture of several pictures that the user chooses.
class CollageService {
public:
    struct Surroundings {
        OpenPanels &panels;
        LongWork &work;
        Alerts &alerts;
        /// Opens the collage in an editor, as any new capture.
        std::function<void(RasterImage image, const QString &title)> open;
    };
    /// Keeps the references.
    explicit CollageService(Surroundings surroundings) : m_surroundings(std::move(surroundings)) { }

    /// Asks for the pictures, joins them in the order in which they were chosen, and opens what results.
    ///
    /// Files that cannot be read are told in one alert, each with its reason; the collage is made of the others, since
    /// nobody wants to choose all of them again for one. Nothing is opened when the user cancels or nothing results.
    void createFromPanel(CollageLayout layout);

private:
    Surroundings m_surroundings;
};

} // namespace tessaly
