// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/CommandLine/Program.h"

#include <QDirIterator>
#include <QProcess>
#include <QProcessEnvironment>

#include <sys/resource.h>

namespace tessaly::test {

Finished Program::run(const QStringList &arguments, const QByteArray &input) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral(".config")));
    for (const char *name : { "QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY" })
        environment.remove(QLatin1StringView(name));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder.path());
    if (fileLimit >= 0) {
        process.setChildProcessModifier([limit = static_cast<rlim_t>(fileLimit)] {
            const rlimit limits { limit, limit };
            ::setrlimit(RLIMIT_FSIZE, &limits);
        });
    }
    process.start(QStringLiteral(TESSALY_PROGRAM), arguments);
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
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(name));
}

QByteArray Program::content(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

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
