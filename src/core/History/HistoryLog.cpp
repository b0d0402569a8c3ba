// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryLog.h"

namespace tessaly::HistoryLog {

void report(const Outcome &outcome)
{
    if (!outcome)
        qWarning("Tessaly: no se pudo guardar en el historial: %s", qUtf8Printable(outcome.failure().message));
}

void reportLeftOver(const Outcome &outcome)
{
    if (!outcome)
        qWarning("Tessaly: %s", qUtf8Printable(outcome.failure().message));
}

} // namespace tessaly::HistoryLog
