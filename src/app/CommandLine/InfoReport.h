// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CommandLine/LoadedInput.h"

/// What is in an input, for programs and for people.
namespace tessaly::InfoReport {

/// One object; a key that has nothing to say is left out.
QByteArray json(const LoadedInput &input);

/// The same to be read, under the input's name.
QByteArray text(const QString &name, const LoadedInput &input);

} // namespace tessaly::InfoReport
