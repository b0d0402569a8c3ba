// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Preferences/PreferenceRows.h"

/// What the choices of the settings window offer, from the tables of those who read the settings.
namespace tessaly::PreferenceOptions {

using Options = QList<PreferenceOption>;

Options appearances();
Options languages();
Options corners();
Options formats();
Options delays();
QString otherDelay(int seconds);
Options arrowHeads();
Options obscureStyles();
Options spotlightShapes();
Options stamps();
Options retentions();
QString otherRetention(int days);

} // namespace tessaly::PreferenceOptions
