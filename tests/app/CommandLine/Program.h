// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QStringList>
#include <QTemporaryDir>

namespace tessaly::test {

/// How one run of the program ended.
struct Finished {
    int status = -1; ///< the exit status; −1 when it crashed or did not end
    QByteArray output;
    QString messages; ///< standard error

    QStringList messageLines() const { return messages.split(u'\n', Qt::SkipEmptyParts); }
};

/// The program in a folder of its own, with no settings and no display.
class Program {
public:
    /// The most bytes that a file it writes may have; writing more fails as on a full disk.
    qint64 fileLimit = -1;
    /// Whether it is started without a standard output.
    bool lacksOutput = false;

    Finished run(const QStringList &arguments, const QByteArray &input = {}) const;

    /// The same on a terminal, on which `typed` is answered; what it shows is the output.
    Finished runOnTerminal(const QStringList &arguments, const QByteArray &typed) const;

    QString path(const QString &name) const { return m_folder.filePath(name); }
    void put(const QString &name, const QByteArray &bytes) const;
    QByteArray content(const QString &name) const;

    /// A small opaque picture of three colours as a PNG file of that name; `dpi` 0 writes no resolution.
    QImage putPicture(const QString &name, QSize pixelSize, int dpi = 0) const;

    /// The names of everything in the folder and below, hidden ones too.
    QStringList tree() const;

private:
    Finished runProgram(const QString &program, const QStringList &arguments, const QByteArray &input) const;

    QTemporaryDir m_folder;
};

/// The name of the run's only line; what tests compare when they say that something is reported once.
QString onlyLine(const Finished &finished);

} // namespace tessaly::test
