// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tessaly {

/// What the JPEG compressor works with, 0.1 to 1, for the quality that the user sees, 0 to 1. Users read quality as a
/// scale of what they see; the compressor's is not, and steep at its upper end.
double jpegFactor(double quality);

} // namespace tessaly
