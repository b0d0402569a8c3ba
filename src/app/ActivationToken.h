// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantMap>

/// The right to bring a window to the front, which the desktop gives to what the user starts.
namespace tessaly::ActivationToken {

/// Takes it over from a program that was started and passes on what it was started for: "activation-token" and
/// "desktop-startup-id" as the bus names them. The next window that is brought to the front uses it.
void take(const QVariantMap &platformData);

} // namespace tessaly::ActivationToken
