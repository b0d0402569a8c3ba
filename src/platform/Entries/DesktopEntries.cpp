// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Entries/DesktopEntries.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

namespace tessaly {

DesktopEntries::DesktopEntries() :
    DesktopEntries(QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation), QLocale().name())
{
}

DesktopEntries::DesktopEntries(QStringList folders, QString locale) : m_folders(std::move(folders))
{
    m_languages = { locale, locale.section(u'_', 0, 0) };
}

QString DesktopEntries::applicationName(const QString &instance, const QString &className)
{
    const QString key = instance + u'\n' + className;
    if (const auto known = m_found.constFind(key); known != m_found.cend())
        return *known;
    QStringList classes { className, instance };
    classes.removeAll(QString());
    const QString name = classes.isEmpty() ? QString() : find(classes);
    // What has no entry may get one when its program is installed for good.
    if (name.isEmpty())
        return className.isEmpty() ? instance : className;
    return *m_found.insert(key, name);
}

QString DesktopEntries::find(const QStringList &classes)
{
    for (const QString &windowClass : classes) {
        if (windowClass.contains(u'/'))
            continue;
        for (const QString &folder : m_folders) {
            for (const QString &fileName : { windowClass, windowClass.toLower() }) {
                if (const QString name = read(folder + u'/' + fileName + QStringLiteral(".desktop")).name;
                    !name.isEmpty())
                    return name;
            }
        }
    }
    QList<QDateTime> changed;
    for (const QString &folder : m_folders)
        changed.append(QFileInfo(folder).lastModified());
    if (std::exchange(m_readAt, changed) != changed)
        readAllAnew();
    for (const auto *names : { &m_byWindowClass, &m_byFileName }) {
        for (const QString &windowClass : classes) {
            if (const QString name = names->value(windowClass.toLower()); !name.isEmpty())
                return name;
        }
    }
    return {};
}

static QString unescaped(QString value)
{
    return value.replace(QStringLiteral("\\s"), QStringLiteral(" "))
        .replace(QStringLiteral("\\\\"), QStringLiteral("\\"));
}

DesktopEntries::Entry DesktopEntries::read(const QString &path) const
{
    constexpr qint64 longest = 1024 * 1024;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    Entry entry;
    qsizetype rank = m_languages.size() + 1;
    bool inEntry = false;
    for (const QByteArray &raw : file.read(longest).split('\n')) {
        const QByteArray line = raw.trimmed();
        if (line.startsWith('[')) {
            if (inEntry)
                break; // what follows are the program's actions, which have names too
            inEntry = line == "[Desktop Entry]";
        }
        const qsizetype equals = line.indexOf('=');
        if (!inEntry || equals < 0)
            continue;
        const QByteArray key = line.left(equals).trimmed();
        const QString value = unescaped(QString::fromUtf8(line.mid(equals + 1).trimmed()));
        if (key == "Hidden" && value == u"true")
            return {};
        if (key == "StartupWMClass")
            entry.windowClass = value;
        qsizetype place = key == "Name" ? m_languages.size() : rank;
        if (key.startsWith("Name[") && key.endsWith(']'))
            place = m_languages.indexOf(QString::fromUtf8(key.sliced(5, key.size() - 6)));
        if (place >= 0 && place < rank) {
            rank = place;
            entry.name = value;
        }
    }
    return entry;
}

void DesktopEntries::readAllAnew()
{
    m_byWindowClass.clear();
    m_byFileName.clear();
    const auto keepFirst = [](QHash<QString, QString> &names, const QString &key, const QString &name) {
        if (!key.isEmpty() && !names.contains(key))
            names.insert(key, name);
    };
    for (const QString &folder : m_folders) {
        QDirIterator files(folder, { QStringLiteral("*.desktop") }, QDir::Files,
            QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
        while (files.hasNext()) {
            const QString path = files.next();
            const Entry entry = read(path);
            if (entry.name.isEmpty())
                continue;
            keepFirst(m_byWindowClass, entry.windowClass.toLower(), entry.name);
            const QString fileName = QDir(folder).relativeFilePath(path).chopped(8).replace(u'/', u'-').toLower();
            keepFirst(m_byFileName, fileName, entry.name);
            // "org.kde.dolphin" for windows of the class "dolphin".
            keepFirst(m_byFileName, fileName.section(u'.', -1), entry.name);
        }
    }
}

} // namespace tessaly
