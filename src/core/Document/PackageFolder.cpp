// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Document/PackageFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly::PackageFolder {

namespace {

Failure about(const char *name, const QString &what)
{
    return { QCoreApplication::translate("TessalyDocument", "Its %1 %2.").arg(QLatin1StringView(name), what) };
}

Failure unreadable(const char *name, int error)
{
    if (error == ENOENT)
        return about(name, QCoreApplication::translate("TessalyDocument", "is missing"));
    if (error == ELOOP)
        return about(name, QCoreApplication::translate("TessalyDocument", "is a symbolic link"));
    return about(name,
        QCoreApplication::translate("TessalyDocument", "cannot be read: %1")
            .arg(QString::fromLocal8Bit(std::strerror(error))));
}

/// Reads from the start what fits `bytes`; the error number, or 0.
int readInto(QFile &file, QByteArray &bytes)
{
    const qint64 count = file.read(bytes.data(), bytes.size());
    if (count < 0)
        return EIO;
    bytes.truncate(count);
    return 0;
}

} // namespace

Reader::Reader(const QString &path) :
    m_folder(::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
}

Reader::~Reader()
{
    if (m_folder >= 0)
        ::close(m_folder);
}

Result<QByteArray> Reader::entry(const char *name, qint64 limit) const
{
    if (m_folder < 0)
        return Failure { QCoreApplication::translate("TessalyDocument", "It is not a folder that can be opened.") };
    // Without O_NONBLOCK a pipe in the place of the file would hold the program for ever.
    const int descriptor = ::openat(m_folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return unreadable(name, errno);
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle))
        return unreadable(name, EIO);
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        return unreadable(name, errno);
    if (!S_ISREG(status.st_mode))
        return about(name, QCoreApplication::translate("TessalyDocument", "is not a file"));
    if (status.st_size > limit)
        return about(name, QCoreApplication::translate("TessalyDocument", "is too large"));
    QByteArray bytes(status.st_size, Qt::Uninitialized);
    if (const int error = readInto(file, bytes))
        return unreadable(name, error);
    return bytes;
}

bool holdsPackage(const QString &path)
{
    const QDir folder(path);
    return QFileInfo(folder.filePath(QLatin1StringView(documentName))).isFile()
        && QFileInfo(folder.filePath(QLatin1StringView(imageName))).isFile();
}

bool isReplaceable(const QString &path)
{
    const QStringList names
        = QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    return names.isEmpty() || names.contains(QLatin1StringView(documentName))
        || names.contains(QLatin1StringView(imageName));
}

} // namespace tessaly::PackageFolder
