// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Entries/DesktopEntries.h"
#include "tests/support/Rows.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace tessaly;

class DesktopEntriesTest : public QObject {
    Q_OBJECT

    static void write(const QDir &folder, const QString &name, const QByteArray &lines)
    {
        folder.mkpath(QFileInfo(name).path());
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("# installed\n[Desktop Entry]\n" + lines + "\n[Desktop Action x]\nName=An action\n");
    }

private Q_SLOTS:
    void namesPrograms_data()
    {
        test::columns<QString, QString, QString>("instance", "className", "name");
        test::row("by the file's name", "gedit", "gedit", "Texteditor");
        test::row("in another case", "gedit", "Gedit", "Texteditor");
        test::row("the country's language first", "calc", "calc", "Rechner (DE)");
        test::row("without a translation", "xterm", "XTerm", "Terminal");
        test::row("by the class it claims", "navigator", "Browser-esr", "Web Browser");
        test::row("by the end of a reversed name", "dolphin", "dolphin", "Files");
        test::row("by the instance", "gedit", "Unheard", "Texteditor");
        test::row("in a subfolder", "x", "suite-writer", "Writer");
        test::row("the person's own entry first", "both", "both", "Mine");
        test::row("a hidden entry does not count", "gone", "Gone", "Gone");
        test::row("no entry", "thing", "Thing", "Thing");
        test::row("no class", "", "", "");
        test::row("a class that is a path", "../gedit", "../own/gedit", "../own/gedit");
    }

    void namesPrograms()
    {
        QTemporaryDir home;
        const QDir own(home.filePath(QStringLiteral("own")));
        const QDir system(home.filePath(QStringLiteral("system")));
        QVERIFY(QDir(home.path()).mkpath(QStringLiteral("own")));
        QVERIFY(QDir(home.path()).mkpath(QStringLiteral("system/suite")));
        write(own, QStringLiteral("both.desktop"), "Name=Mine");
        write(own, QStringLiteral("gedit.desktop"), "Name=Text Editor\nName[de]=Texteditor\nName[fr]=Editeur");
        write(system, QStringLiteral("both.desktop"), "Name=Theirs");
        write(system, QStringLiteral("calc.desktop"), "Name[de]=Rechner\nName[de_DE] = Rechner (DE)\nName=Calculator");
        write(system, QStringLiteral("xterm.desktop"), "Name=Terminal\nName[fr]=Terminale");
        write(system, QStringLiteral("web.desktop"), "StartupWMClass=browser-ESR\nName=Web\\sBrowser");
        write(system, QStringLiteral("org.kde.dolphin.desktop"), "Name=Files");
        write(system, QStringLiteral("suite/writer.desktop"), "Name=Writer");
        write(system, QStringLiteral("gone.desktop"), "Name=Was here\nHidden=true");

        QFETCH(QString, instance);
        QFETCH(QString, className);
        DesktopEntries entries(
            { own.path(), system.path(), home.filePath(QStringLiteral("missing")) }, QStringLiteral("de_DE"));
        QTEST(entries.applicationName(instance, className), "name");
        QTEST(entries.applicationName(instance, className), "name");
    }

    void findsWhatIsInstalledLater()
    {
        QTemporaryDir folder;
        DesktopEntries entries({ folder.path() }, QStringLiteral("en_US"));
        QCOMPARE(entries.applicationName({}, QStringLiteral("New")), QStringLiteral("New"));
        write(QDir(folder.path()), QStringLiteral("org.new.desktop"), "Name=The New One");
        QCOMPARE(entries.applicationName({}, QStringLiteral("New")), QStringLiteral("The New One"));
    }
};

QTEST_GUILESS_MAIN(DesktopEntriesTest)
#include "DesktopEntriesTest.moc"
