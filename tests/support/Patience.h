// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tessaly::test {

/// In milliseconds, how long a test waits for what must come: far longer than it takes on a machine that is busy with
/// other things. Only a failure takes so long.
inline constexpr int patience = 60'000;

} // namespace tessaly::test
