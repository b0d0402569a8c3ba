// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/Patience.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace tessaly::test {

/// Starts a session bus in `process`, which starts nothing when it is asked for: this machine's own portal would answer
/// for the test's. Its configuration lies in `folder`. The address, empty when it did not start.
inline QByteArray startQuietBus(QProcess &process, const QTemporaryDir &folder)
{
    QFile configuration(folder.filePath("bus.conf"));
    if (!configuration.open(QIODevice::WriteOnly))
        return {};
    configuration.write("<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen><policy context='default'>"
                        "<allow send_destination='*' eavesdrop='true'/><allow eavesdrop='true'/><allow own='*'/>"
                        "</policy></busconfig>");
    configuration.close();
    process.start("dbus-daemon", { "--nofork", "--print-address", "--config-file", configuration.fileName() });
    while (!process.canReadLine() && process.waitForReadyRead(patience)) { }
    return process.readLine().trimmed();
}

} // namespace tessaly::test
