// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tessaly {

/// Why an operation could not be done.
struct Failure {
    QString message; ///< one sentence for the user, naming what it is about
    bool cancelled = false; ///< the user's own wish: nobody needs to be told

    bool operator==(const Failure &) const = default;
};

} // namespace tessaly
