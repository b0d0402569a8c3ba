// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/CommandLine/Program.h"

#include "tests/support/TestFiles.h"

#include <QDirIterator>
#include <QProcess>
#include <QProcessEnvironment>

#include <sys/resource.h>
#include <unistd.h>

namespace tessaly::test {

Finished Program::run(const QStringList &arguments, const QByteArray &input) const
{
    return runProgram(QStringLiteral(TESSALY_PROGRAM), arguments, input);
}

Finished Program::runOnTerminal(const QStringList &arguments, const QByteArray &typed) const
{
    const QString command = QStringLiteral(TESSALY_PROGRAM) + u' ' + arguments.join(u' ');
    return runProgram(QStringLiteral("script"),
        { QStringLiteral("--quiet"), QStringLiteral("--return"), QStringLiteral("--command"), command,
            QStringLiteral("/dev/null") },
        typed);
}

Finished Program::runProgram(const QString &program, const QStringList &arguments, const QByteArray &input) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral(".config")));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), path(QStringLiteral(".data")));
    for (const char *name : { "QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY" })
        environment.remove(QLatin1StringView(name));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder.path());
    process.setChildProcessModifier([this] {
        const rlimit limits { static_cast<rlim_t>(fileLimit), static_cast<rlim_t>(fileLimit) };
        if (fileLimit >= 0)
            ::setrlimit(RLIMIT_FSIZE, &limits);
        if (lacksOutput)
            ::close(STDOUT_FILENO);
    });
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    Finished finished;
    if (process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit)
        finished.status = process.exitCode();
    finished.output = process.readAllStandardOutput();
    finished.messages = QString::fromUtf8(process.readAllStandardError());
    return finished;
}

void Program::put(const QString &name, const QByteArray &bytes) const
{
    if (!writeFile(path(name), bytes))
        qFatal("%s cannot be written", qPrintable(name));
}

QByteArray Program::content(const QString &name) const { return fileContent(path(name)); }

QImage Program::putPicture(const QString &name, QSize pixelSize, int dpi) const
{
    QImage image(pixelSize, QImage::Format_RGB32);
    image.fill(qRgb(250, 250, 250));
    for (int y = 0; y < pixelSize.height() / 2; ++y) {
        for (int x = 0; x < pixelSize.width(); ++x)
            image.setPixel(x, y, x % 5 == 0 ? qRgb(20, 40, 200) : qRgb(90, 160, 30));
    }
    if (dpi > 0) {
        image.setDotsPerMeterX(qRound(dpi / 0.0254));
        image.setDotsPerMeterY(qRound(dpi / 0.0254));
    }
    if (!image.save(path(name), "PNG"))
        qFatal("%s cannot be written", qPrintable(name));
    return image;
}

QStringList Program::tree() const
{
    QStringList names;
    QDirIterator all(m_folder.path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
        QDirIterator::Subdirectories);
    while (all.hasNext())
        names += QDir(m_folder.path()).relativeFilePath(all.next());
    names.sort();
    return names;
}

QString onlyLine(const Finished &finished)
{
    const QStringList lines = finished.messageLines();
    return lines.size() == 1 ? lines.first() : QStringLiteral("%1 lines:\n%2").arg(lines.size()).arg(finished.messages);
}

} // namespace tessaly::test
