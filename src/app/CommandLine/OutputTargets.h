// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/ExportFormat.h"

#include <QMap>
#include <QStringList>

#include <sys/types.h>

#include <utility>

namespace tessaly {

class Settings;

/// Where the results of a run go: to one file, into a folder under the inputs' names, or to standard output ("-").
///
/// No target is ever one of the run's sources, lies inside a document, or is written twice.
class OutputTargets {
public:
    /// Fails when the folder that would hold the results is not there. `sources` are all files that the run reads.
    static Result<OutputTargets> create(const QString &output, const QStringList &sources);

    bool isFolder() const { return m_isFolder; }
    bool isStandardOutput() const { return m_output == u"-"; }

    /// The path for this input's result with that extension.
    Result<QString> pathFor(const QString &input, QLatin1StringView extension);

    /// The path of a run that has one result. Fails when the output is a folder.
    Result<QString> singlePath();

    /// Writes the bytes of an input's result to the path that pathFor gave for it. A file appears whole or not at all,
    /// even when the run is interrupted; a device or a pipe takes the bytes as they come.
    Outcome write(const QString &path, const QByteArray &bytes, const QString &input = {});

    /// The format that was asked for, else the one of the output's extension, else the one that the user last chose.
    ExportFormat format(std::optional<ExportFormat> chosen, const Settings &settings) const;

private:
    using FileIdentity = std::pair<dev_t, ino_t>;
    static std::optional<FileIdentity> identityOf(const QString &path);

    QString m_output;
    bool m_isFolder = false;
    QList<FileIdentity> m_sources;
    QMap<QString, QString> m_writtenFrom; ///< target to input
};

} // namespace tessaly
