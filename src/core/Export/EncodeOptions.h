// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

#include <QByteArray>

namespace tessaly {

/// How hard and on how many threads encoders work.
struct EncodeOptions {
    double quality = 0.9; ///< 0 to 1; read by lossy formats only
    int threads = 0; ///< 0 means as many as the machine has
};

} // namespace tessaly
