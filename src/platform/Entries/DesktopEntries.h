// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>

namespace tessaly {

/// The names that the desktop's menus give to programs, from the desktop entries that are installed. Files are read
/// when a name is asked for the first time.
class DesktopEntries {
public:
    /// The folders of the person and of the system, names in the language of the locale ("de_DE").
    DesktopEntries();
    DesktopEntries(QStringList folders, QString locale);

    /// The name of the program whose windows have this WM_CLASS, or this application identifier in the class's place:
    /// of the entry whose file is named like one of the two or that claims one of them; the class itself when no entry
    /// does.
    QString applicationName(const QString &instance, const QString &className);

private:
    struct Entry {
        QString name;
        QString windowClass; ///< StartupWMClass
    };

    QString find(const QStringList &classes);
    Entry read(const QString &path) const;
    void readAllAnew();

    QStringList m_folders;
    QStringList m_languages; ///< the suffixes of a translated key, the best first
    QHash<QString, QString> m_found; ///< class → name
    QHash<QString, QString> m_byWindowClass; ///< all in lower case
    QHash<QString, QString> m_byFileName;
    QList<QDateTime> m_readAt; ///< when the folders were changed that all was read from
};

} // namespace tessaly
