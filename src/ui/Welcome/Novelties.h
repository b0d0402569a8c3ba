// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace tessaly {

/// Something that this version brings.
struct Novelty {
    const char *icon; ///< name in Icons
    const char *title; ///< both English; translated in the context "Novelties"
    const char *text;
};

/// Of this version, the most useful first.
std::span<const Novelty> novelties();

} // namespace tessaly
