// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Base/LongWork.h"

namespace tessaly {

LongWork::~LongWork() = default;

void LongWork::complete(const QString &, Body body) { body(Cancellation()); }

bool DirectWork::run(const QString &, Body body)
{
    body(Cancellation());
    return true;
}

} // namespace tessaly
