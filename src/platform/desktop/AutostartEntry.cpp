// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/AutostartEntry.h"

#include "core/Base/SafeFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStandardPaths>

namespace tessaly {

namespace {

using Fields = QHash<QByteArray, QByteArray>;

/// The keys of the entry's own group. Nothing for what is no readable file.
Fields fieldsOf(const QString &path)
{
    constexpr qint64 most = 64 * 1024; // no entry is longer
    QFile file(path);
    Fields fields;
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return fields;
    bool isOwnGroup = false;
    const QList<QByteArray> lines = file.read(most).split('\n');
    for (const QByteArray &line : lines) {
        const qsizetype sign = line.indexOf('=');
        if (line.startsWith('['))
            isOwnGroup = line.trimmed() == "[Desktop Entry]";
        else if (isOwnGroup && sign > 0)
            fields.insert(line.left(sign).trimmed(), line.mid(sign + 1).trimmed());
    }
    return fields;
}

bool startsTessaly(const Fields &fields) { return fields.value("Exec").contains("tessaly"); }

/// The path as one argument of an Exec line: quoted, and then once more as any text of a desktop entry.
QString quoted(QString path)
{
    for (const char16_t special : u"\\\"`$") {
        if (special != 0)
            path.replace(QChar(special), QString(u'\\') + QChar(special));
    }
    path.replace(u'%', QStringLiteral("%%"));
    path = u'"' + path + u'"';
    return path.replace(u'\\', QStringLiteral("\\\\"));
}

Failure foreign(const QString &path)
{
    return { QCoreApplication::translate("AutostartEntry", "The file %1 starts another program and was left as it is.")
                 .arg(path) };
}

} // namespace

AutostartEntry::AutostartEntry(QString folder, QString program) :
    m_folder(std::move(folder)),
    m_program(std::move(program))
{
}

QString AutostartEntry::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/autostart");
}

QString AutostartEntry::path() const { return m_folder + QStringLiteral("/org.tessaly.Tessaly.desktop"); }

bool AutostartEntry::isOn() const
{
    const Fields fields = fieldsOf(path());
    return startsTessaly(fields) && fields.value("Hidden") != "true"
        && fields.value("X-GNOME-Autostart-enabled") != "false";
}

Outcome AutostartEntry::setOn(bool on)
{
    // One that is only hidden is not ours to judge by its Exec line: desktops write it without.
    const Fields fields = fieldsOf(path());
    const bool isThere = QFileInfo::exists(path());
    if (isThere && !startsTessaly(fields) && fields.value("Hidden") != "true")
        return foreign(path());
    if (!on) {
        QFile file(path());
        return !isThere || file.remove()
            ? Outcome(Done {})
            : Failure { QCoreApplication::translate("AutostartEntry", "The file %1 could not be removed: %2.")
                            .arg(path(), file.errorString()) };
    }
    const QString program = m_program.isEmpty() ? QCoreApplication::applicationFilePath() : m_program;
    const QString entry = QStringLiteral("[Desktop Entry]\nType=Application\nVersion=1.0\nName=Tessaly\n"
                                         "Icon=org.tessaly.Tessaly\nExec=%1 --resident\nTerminal=false\n")
                              .arg(quoted(program));
    if (const Outcome made = SafeFile::makeFolder(m_folder); !made)
        return made;
    return SafeFile::replace(path(), entry.toUtf8(), SafeFile::Access::Usual);
}

} // namespace tessaly
