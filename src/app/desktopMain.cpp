// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EarlyReading.h"
#include "app/TessalyApp.h"

#include <QApplication>

#include <csignal>

/// The files among the arguments; "--" only divides.
static QStringList filesOf(const QStringList &arguments)
{
    QStringList files = arguments.mid(1);
    files.removeOne(QStringLiteral("--"));
    return files;
}

int main(int argc, char **argv)
{
    using namespace tessaly;
    // A file that grows past the limit that the user set is then a failed write, with its alert, and not the end.
    std::signal(SIGXFSZ, SIG_IGN);
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    EarlyReading first(filesOf(arguments).value(0));
    QCoreApplication::setApplicationName(QStringLiteral("tessaly"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tessaly"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tessaly.Tessaly"));
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    TessalyApp app;
    return app.run(filesOf(QApplication::arguments()), first);
}
