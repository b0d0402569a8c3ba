// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/DesktopProgram.h"

#include "app/CommandLine/ByteStream.h"
#include "app/CommandLine/Console.h"
#include "app/CommandLine/Text.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace tessaly::DesktopProgram {

bool isMeant(int argc, char **argv)
{
    if (argc < 2)
        return true;
    for (const char *option : { "--", "--resident", "--action" }) {
        if (std::strcmp(argv[1], option) == 0)
            return true;
    }
    return argv[1][0] != '-' && ::access(argv[1], F_OK) == 0;
}

static bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

/// Only comes back with a failure.
static Failure replaceProcess(char **argv)
{
    const QString folder = QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path();
    for (const char *place : { "/tessaly-desktop", "/../libexec/tessaly/tessaly-desktop" }) {
        const QByteArray program = QFile::encodeName(folder) + place;
        if (::access(program.constData(), X_OK) != 0)
            continue;
        ::execv(program.constData(), argv);
        return { Text::tr("%1 could not be started: %2.").arg(QFile::decodeName(program), ByteStream::reason(errno)) };
    }
    return { Text::tr("The program with the windows, tessaly-desktop, is not installed beside this one.") };
}

ExitStatus become(char **argv, Console &console)
{
    if (!hasDisplay()) {
        console.message(Text::tr("There is no display to open a window on; tessaly --help lists what works without."));
        return ExitStatus::WrongUsage;
    }
    console.message(replaceProcess(argv).message);
    return ExitStatus::Failed;
}

ExitStatus becomeForCapture(const QString &subject, const QVariantMap &options, Console &console)
{
    QByteArrayList texts { "tessaly", "--capture", subject.toLocal8Bit() };
    for (const auto &[name, value] : options.asKeyValueRange())
        texts += QString(name + u'=' + value.toString()).toLocal8Bit();
    QList<char *> arguments;
    for (QByteArray &text : texts)
        arguments += text.data();
    arguments += nullptr;
    return become(arguments.data(), console);
}

} // namespace tessaly::DesktopProgram
