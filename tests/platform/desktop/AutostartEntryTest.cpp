// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/AutostartEntry.h"

#include "tests/support/Rows.h"
#include "tests/support/TestFiles.h"

#include <QTemporaryDir>

using namespace tessaly;
using test::fileContent;
using test::writeFile;

/// The file by which a desktop starts the program.
class AutostartEntryTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    QString folder() const { return m_folder->filePath(QStringLiteral("autostart")); }
    QString path() const { return folder() + QStringLiteral("/org.tessaly.Tessaly.desktop"); }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void comesAndGoes()
    {
        AutostartEntry entry(folder(), QStringLiteral("/opt/tessaly/tessaly-desktop"));
        QVERIFY(!entry.isOn());
        QVERIFY(entry.setOn(false)); // nothing to do
        QVERIFY(entry.setOn(true));
        QVERIFY(entry.isOn());
        const QByteArray content = fileContent(path());
        QVERIFY(content.startsWith("[Desktop Entry]\n"));
        QVERIFY(content.contains("\nType=Application\n") && content.contains("\nName=Tessaly\n"));
        QVERIFY(content.contains("\nExec=\"/opt/tessaly/tessaly-desktop\" --resident\n"));
        QVERIFY(entry.setOn(false));
        QVERIFY(!entry.isOn());
        QCOMPARE(test::namesIn(folder()), QStringList());
    }

    void quotesThePath_data()
    {
        test::columns<QString, QByteArray>("program", "exec");
        test::row("a blank", QString("/a b/tessaly"), QByteArray("\"/a b/tessaly\""));
        test::row("a percent sign", QString("/50%/tessaly"), QByteArray("\"/50%%/tessaly\""));
        test::row("a dollar sign", QString("/$x/tessaly"), QByteArray("\"/\\\\$x/tessaly\""));
        test::row("a quote", QString("/\"/tessaly"), QByteArray("\"/\\\\\"/tessaly\""));
        test::row("a backslash", QString("/\\/tessaly"), QByteArray("\"/\\\\\\\\/tessaly\""));
    }

    void quotesThePath()
    {
        QFETCH(QString, program);
        QFETCH(QByteArray, exec);
        AutostartEntry entry(folder(), program);
        QVERIFY(entry.setOn(true));
        QVERIFY(entry.isOn());
        QVERIFY2(fileContent(path()).contains("\nExec=" + exec + " --resident\n"), fileContent(path()).constData());
    }

    void respectsWhatIsThere_data()
    {
        test::columns<QByteArray, bool, bool>("content", "isOn", "isForeign");
        const QByteArray own = "[Desktop Entry]\nExec=tessaly --resident\n";
        test::row("its own", own, true, false);
        test::row("hidden", own + "Hidden=true\n", false, false);
        test::row("only hidden", QByteArray("[Desktop Entry]\nHidden=true\n"), false, false);
        test::row("switched off by a desktop", own + "X-GNOME-Autostart-enabled=false\n", false, false);
        test::row("hidden in another group", own + "[Other]\nHidden=true\n", true, false);
        test::row("another program", QByteArray("[Desktop Entry]\nExec=backup\n"), false, true);
    }

    void respectsWhatIsThere()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, isForeign);
        QVERIFY(QDir().mkpath(folder()) && writeFile(path(), content));
        AutostartEntry entry(folder(), QStringLiteral("/usr/bin/tessaly"));
        QTEST(entry.isOn(), "isOn");
        QCOMPARE(bool(entry.setOn(true)), !isForeign);
        QCOMPARE(entry.isOn(), !isForeign);
        QCOMPARE(bool(entry.setOn(false)), !isForeign);
        QCOMPARE(fileContent(path()), isForeign ? content : QByteArray());
    }

    void saysWhyItFails()
    {
        QVERIFY(writeFile(folder(), "a file where the folder must go"));
        const Outcome outcome = AutostartEntry(folder()).setOn(true);
        QVERIFY(!outcome && outcome.failure().message.contains(folder()));
    }
};

QTEST_GUILESS_MAIN(AutostartEntryTest)
#include "AutostartEntryTest.moc"
