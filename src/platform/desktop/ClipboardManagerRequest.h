// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// The question to an X11 desktop's clipboard manager to keep what this program offers.
namespace tessaly::ClipboardManagerRequest {

/// Whether there is a manager to ask.
bool isPossible();

/// Asks the manager, and handles events until it has fetched the types or has been silent for a while. At once where
/// there is no manager or no X11.
void run(const QStringList &types);

} // namespace tessaly::ClipboardManagerRequest
