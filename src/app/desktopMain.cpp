// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/DesktopArguments.h"
#include "app/EarlyReading.h"
#include "app/StandardStreams.h"
#include "app/TessalyApp.h"
#include "core/Imaging/PixelMemory.h"
#include "platform/Choice/Desktop/DesktopChoice.h"

#include <QApplication>

#include <csignal>

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
    EarlyReading first(DesktopArguments::from(arguments.mid(1)).files.value(0));
    QCoreApplication::setApplicationName(QStringLiteral("tessaly"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tessaly"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tessaly.Tessaly"));
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    DesktopChoice::prepareEnvironment();
    QApplication application(argc, argv);
    TessalyApp app;
    return app.run(DesktopArguments::from(QApplication::arguments().mid(1)), first);
}
