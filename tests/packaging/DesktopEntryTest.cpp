// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Intents/Intents.h"

#include <QProcess>
#include <QSettings>
#include <QTest>

using namespace tessaly;

/// What desktops read about the program says the same as the program.
class DesktopEntryTest : public QObject {
    Q_OBJECT

    const QString m_path = QStringLiteral(TESSALY_PACKAGING "/org.tessaly.Tessaly.desktop");

private Q_SLOTS:
    void desktopsUnderstandIt()
    {
        QProcess check;
        check.start(QStringLiteral("desktop-file-validate"), { m_path });
        QVERIFY(check.waitForFinished());
        QVERIFY2(check.exitCode() == 0, check.readAllStandardOutput());
    }

    void itsActionsAreTheOperations()
    {
        const QSettings entry(m_path, QSettings::IniFormat);
        QStringList names;
        for (const IntentRow &row : tessalyShortcuts()) {
            const QString name = QString::fromLatin1(row.name), group = QStringLiteral("Desktop Action ") + name;
            names += name;
            QCOMPARE(
                entry.value(group + QStringLiteral("/Exec")).toString(), QStringLiteral("tessaly --action ") + name);
            QCOMPARE(entry.value(group + QStringLiteral("/Name")).toString(), QString::fromLatin1(row.shortTitle));
        }
        // Of a settings file the rest of a line after a semicolon is a comment.
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("\nActions=" + names.join(u';').toUtf8() + ";\n"));
    }
};

QTEST_GUILESS_MAIN(DesktopEntryTest)
#include "DesktopEntryTest.moc"
