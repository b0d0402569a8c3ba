// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/OutputTargets.h"

#include "app/CommandLine/ByteStream.h"
#include "app/CommandLine/InterruptionGuard.h"
#include "app/CommandLine/Text.h"
#include "core/Base/SafeFile.h"
#include "core/Document/TessalyDocument.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace tessaly {

namespace {

/// What a result of this input is called in a folder.
QString baseName(const QString &input)
{
    if (input == u"-")
        return QStringLiteral("stdin");
    const QFileInfo file(QDir::cleanPath(input));
    return file.completeBaseName().isEmpty() ? file.fileName() : file.completeBaseName();
}

/// The document that a path lies in, if any.
std::optional<QString> documentAround(const QString &path)
{
    for (QDir folder = QFileInfo(path).absoluteDir(); !folder.isRoot();) {
        if (folder.exists() && TessalyDocument::isDocument(folder.path()))
            return folder.path();
        if (!folder.cdUp())
            break;
    }
    return std::nullopt;
}

} // namespace

std::optional<OutputTargets::FileIdentity> OutputTargets::identityOf(const QString &path)
{
    struct stat status = {};
    const int error
        = path == u"-" ? ::fstat(STDIN_FILENO, &status) : ::stat(QFile::encodeName(path).constData(), &status);
    if (error != 0 || !(S_ISREG(status.st_mode) || S_ISDIR(status.st_mode)))
        return std::nullopt;
    return FileIdentity { status.st_dev, status.st_ino };
}

Result<OutputTargets> OutputTargets::create(const QString &output, const QStringList &sources)
{
    OutputTargets targets;
    targets.m_output = output;
    for (const QString &source : sources) {
        if (const auto identity = identityOf(source))
            targets.m_sources += *identity;
    }
    const QFileInfo info(output);
    targets.m_isFolder = info.isDir() && !TessalyDocument::isDocument(output);
    const bool namesFolder = output.endsWith(u'/');
    if (!targets.isStandardOutput() && !targets.m_isFolder && (namesFolder || !info.absoluteDir().exists()))
        return Failure { Text::tr("%1 cannot be written: the folder does not exist.").arg(output) };
    return targets;
}

Result<QString> OutputTargets::pathFor(const QString &input, QLatin1StringView extension)
{
    if (isStandardOutput())
        return m_output;
    QString path = m_output;
    if (m_isFolder)
        path = QDir(m_output).filePath(baseName(input) + u'.' + extension);
    if (const auto identity = identityOf(path); identity && m_sources.contains(*identity))
        return Failure { Text::tr("%1 is read by this command and cannot be its output.").arg(path) };
    if (const auto document = documentAround(path))
        return Failure {
            Text::tr("%1 lies inside the Tessaly document %2 and cannot be written.").arg(path, *document)
        };
    const auto earlier = m_writtenFrom.constFind(QFileInfo(path).absoluteFilePath());
    if (earlier != m_writtenFrom.cend())
        return Failure { Text::tr("%1 already holds the result of %2; %3 needs another name.")
                             .arg(path, ByteStream::displayName(*earlier), ByteStream::displayName(input)) };
    return path;
}

Result<QString> OutputTargets::singlePath()
{
    if (m_isFolder)
        return Failure { Text::tr("%1 is a folder; name the file in it.").arg(m_output) };
    return pathFor({}, {});
}

Outcome OutputTargets::write(const QString &path, const QByteArray &bytes, const QString &input)
{
    const InterruptionGuard guard;
    if (!isStandardOutput()) {
        Outcome written = SafeFile::write(path, bytes);
        if (written)
            m_writtenFrom.insert(QFileInfo(path).absoluteFilePath(), input);
        return written;
    }
    const int error = ByteStream::writeAll(STDOUT_FILENO, bytes);
    if (error == 0)
        return Done {};
    return Failure { Text::tr("Standard output could not be written: %1.").arg(ByteStream::reason(error)) };
}

ExportFormat OutputTargets::format(std::optional<ExportFormat> chosen, const Settings &settings) const
{
    if (!chosen && !m_isFolder)
        chosen = formatOfExtension(QFileInfo(m_output).suffix());
    return chosen ? *chosen : storedFormat(settings);
}

} // namespace tessaly
