// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EarlyReading.h"
#include "app/StandardStreams.h"
#include "app/TessalyApp.h"
#include "core/Imaging/PixelMemory.h"

#include <QApplication>
#include <QUuid>

#include <csignal>

/// What the arguments ask to open.
struct Wanted {
    QStringList files;
    QList<QUuid> historyEntries;
};

/// Takes "--history-entry ID" out of what lies before "--"; all the rest are files.
static Wanted wantedBy(QStringList arguments)
{
    Wanted wanted;
    arguments.removeFirst();
    while (arguments.value(0) == u"--history-entry") {
        wanted.historyEntries += QUuid::fromString(arguments.value(1));
        arguments.remove(0, std::min<qsizetype>(2, arguments.size()));
    }
    arguments.removeOne(QStringLiteral("--"));
    wanted.files = arguments;
    return wanted;
}

int main(int argc, char **argv)
{
    using namespace tessaly;
    StandardStreams::claim();
    PixelMemory::shareHeap();
    // A file that grows past the limit that the user set is then a failed write, with its alert, and not the end.
    std::signal(SIGXFSZ, SIG_IGN);
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    EarlyReading first(wantedBy(arguments).files.value(0));
    QCoreApplication::setApplicationName(QStringLiteral("tessaly"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tessaly"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tessaly.Tessaly"));
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    TessalyApp app;
    const Wanted wanted = wantedBy(QApplication::arguments());
    return app.run(wanted.files, wanted.historyEntries, first);
}
