// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/DesktopLinks.h"

#include "tests/support/QuietBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDesktopServices>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace tessaly;

namespace {

/// A file manager that keeps what it was asked to show.
class FakeFileManager final : public QDBusVirtualObject {
public:
    bool refuses = false;
    QStringList shown;

    QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        if (message.member() != u"ShowItems" || message.signature() != u"ass")
            return false;
        shown = message.arguments().first().toStringList();
        bus.send(refuses ? message.createErrorReply(QDBusError::Failed, "no window") : message.createReply());
        return true;
    }
};

} // namespace

/// Against a file manager on a bus of the test's own; what the desktop would open ends here, too.
class DesktopLinksTest : public QObject {
    Q_OBJECT

    QProcess m_bus;
    QTemporaryDir m_folder;
    FakeFileManager m_manager;
    QList<QUrl> m_opened;
    QByteArray m_inherited; ///< by what was opened
    DesktopLinks m_links;

public Q_SLOTS:
    void take(const QUrl &url)
    {
        m_opened += url;
        m_inherited = qgetenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT");
    }

private Q_SLOTS:
    void initTestCase()
    {
        QDesktopServices::setUrlHandler("https", this, "take");
        QDesktopServices::setUrlHandler("file", this, "take");
        qputenv("DBUS_SESSION_BUS_ADDRESS", test::startQuietBus(m_bus, m_folder));
    }

    void init()
    {
        m_opened.clear();
        m_manager.shown.clear();
        m_manager.refuses = false;
    }

    void cleanupTestCase()
    {
        m_bus.terminate();
        m_bus.waitForFinished();
    }

    void linksGoToTheDesktop()
    {
        qputenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1"); // meant for this program alone
        QVERIFY(m_links.open(QUrl("https://example.org/a%20b")));
        QCOMPARE(m_opened, QList { QUrl("https://example.org/a%20b") });
        QCOMPARE(m_inherited, QByteArray());
        QCOMPARE(qgetenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT"), "1");
    }

    void aFileIsShownInItsFolder()
    {
        const QString path = m_folder.filePath("Ünusual name#.png");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QUrl folder = QUrl::fromLocalFile(m_folder.path());
        QVERIFY(m_links.reveal(path));
        QCOMPARE(m_opened, QList { folder }); // no file manager on the bus: the folder opens
        QVERIFY(m_links.reveal(m_folder.path()));
        QCOMPARE(m_opened.last(), folder);
        QVERIFY(!m_links.reveal(m_folder.filePath("gone")));

        m_opened.clear();
        QDBusConnection bus
            = QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), "manager");
        QVERIFY(bus.registerVirtualObject("/org/freedesktop/FileManager1", &m_manager));
        QVERIFY(bus.registerService("org.freedesktop.FileManager1"));
        QVERIFY(m_links.reveal(path));
        QTRY_COMPARE(m_manager.shown, QStringList { QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded) });
        QVERIFY(m_opened.isEmpty());
        m_manager.refuses = true;
        QVERIFY(m_links.reveal(path));
        QTRY_COMPARE(m_opened, QList { folder });
    }
};

QTEST_MAIN(DesktopLinksTest)
#include "DesktopLinksTest.moc"
