// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/SavedStyles.h"

/// The styles that Tessaly comes with.
namespace tessaly::SavedStylePresets {

/// All of them, each with a fresh identity.
QList<SavedStyle> make();

/// The name of a preset in the user's language; empty for a key that this version does not know.
QString displayName(const QString &preset);

} // namespace tessaly::SavedStylePresets
