// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tessaly::StandardStreams {

/// Puts something in the place of each standard stream that the program was started without, or the next file that it
/// opens would be there, and take what is printed. First thing in main. Reading or printing still fails.
void claim();

} // namespace tessaly::StandardStreams
