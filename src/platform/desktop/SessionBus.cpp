// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/SessionBus.h"

#include <QFileInfo>

bool tessaly::SessionBus::isThere()
{
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        return true;
    const QString runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtimeFolder.isEmpty() && QFileInfo::exists(runtimeFolder + QStringLiteral("/bus"));
}
