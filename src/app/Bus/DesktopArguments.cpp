// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Bus/DesktopArguments.h"

#include "core/Capture/RequestReading.h"

namespace tessaly {

DesktopArguments DesktopArguments::from(QStringList arguments)
{
    DesktopArguments wanted;
    if (arguments.value(0) == u"--resident") {
        wanted.resident = true;
        arguments.removeFirst();
    }
    if (arguments.value(0) == u"--capture") {
        wanted.capture = Capture { arguments.value(1), RequestReading::optionsFrom(arguments.mid(2)) };
        return wanted;
    }
    if (arguments.value(0) == u"--action") {
        wanted.action = Action { arguments.value(1), arguments.value(2) };
        return wanted;
    }
    while (arguments.value(0) == u"--history-entry") {
        wanted.historyEntries += QUuid::fromString(arguments.value(1));
        arguments.remove(0, std::min<qsizetype>(2, arguments.size()));
    }
    arguments.removeOne(QStringLiteral("--"));
    wanted.files = arguments;
    return wanted;
}

} // namespace tessaly
