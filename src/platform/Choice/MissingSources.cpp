// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Choice/MissingSources.h"

#include <QCoreApplication>

namespace tessaly {

std::optional<QString> MissingScreenSource::wayOut() const
{
    return QCoreApplication::translate("MissingScreenSource",
        "Start Tessaly from within the desktop that is to be captured, without TESSALY_PLATFORM in its environment.");
}

Failure MissingWindowSource::failure()
{
    return { QCoreApplication::translate("MissingWindowSource", "This desktop does not tell where its windows are.") };
}

} // namespace tessaly
