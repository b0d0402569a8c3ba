// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The memory that the machine has not given to any program.
namespace tessaly::bench::FreeMemory {

/// Brings half a GiB of it at hand. A host takes the pages back that a virtual machine has left free for some seconds,
/// and gives each again only when it is touched: what a program then waits for (100 ms for one screen of 3840×2160 were
/// seen) is neither its own work nor there on a machine of metal.
void bringAtHand();

} // namespace tessaly::bench::FreeMemory
