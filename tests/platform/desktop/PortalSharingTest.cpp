// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/PortalSharing.h"

#include "tests/support/QuietBus.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

using namespace tessaly;

namespace {

/// A portal that opens files as it is told, and keeps what was asked of it.
class FakePortal final : public QDBusVirtualObject {
public:
    bool refuses = false;
    bool opensFiles = true; ///< has the interface at all
    QByteArray content;
    bool asked = false;

    QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        if (message.member() == u"Get") {
            const bool known
                = opensFiles && message.arguments().value(0).toString() == u"org.freedesktop.portal.OpenURI";
            bus.send(known ? message.createReply(QVariant::fromValue(QDBusVariant(4u)))
                           : message.createErrorReply(QDBusError::UnknownInterface, "no such interface"));
            return true;
        }
        if (message.member() != u"OpenFile" || message.signature() != u"sha{sv}")
            return false;
        QFile file;
        const auto descriptor = message.arguments().at(1).value<QDBusUnixFileDescriptor>();
        if (file.open(descriptor.fileDescriptor(), QIODevice::ReadOnly))
            content = file.readAll();
        asked = qdbus_cast<QVariantMap>(message.arguments().at(2)).value("ask").toBool();
        bus.send(refuses ? message.createErrorReply(QDBusError::AccessDenied, "not today")
                         : message.createReply(QVariant::fromValue(QDBusObjectPath("/request/1"))));
        return true;
    }
};

} // namespace

/// Handing files to other programs, against a portal on a bus of the test's own.
class PortalSharingTest : public QObject {
    Q_OBJECT

    QProcess m_bus;
    QTemporaryDir m_folder;
    FakePortal m_portal;
    QThread m_portalThread;

private Q_SLOTS:
    void initTestCase()
    {
        const QByteArray address = test::startQuietBus(m_bus, m_folder);
        QVERIFY(!address.isEmpty());
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("XDG_RUNTIME_DIR", m_folder.path().toLocal8Bit());
        QVERIFY(!PortalSharing().isAvailable()); // no bus, and none is started
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        QVERIFY(!PortalSharing().isAvailable()); // a bus without a portal
        QDBusConnection bus = QDBusConnection::connectToBus(QString::fromLatin1(address), "portal");
        m_portal.moveToThread(&m_portalThread); // the calls block this one
        m_portalThread.start();
        QVERIFY(bus.registerVirtualObject("/org/freedesktop/portal/desktop", &m_portal));
        QVERIFY(bus.registerService("org.freedesktop.portal.Desktop"));
    }

    void cleanupTestCase()
    {
        m_portalThread.quit();
        m_portalThread.wait();
        m_bus.terminate();
        m_bus.waitForFinished();
    }

    void itIsThereWithItsInterfaceOnly_data()
    {
        QTest::addColumn<bool>("opensFiles");
        QTest::newRow("with") << true;
        QTest::newRow("without") << false;
    }

    void itIsThereWithItsInterfaceOnly()
    {
        QFETCH(bool, opensFiles);
        m_portal.opensFiles = opensFiles;
        QCOMPARE(PortalSharing().isAvailable(), opensFiles);
        m_portal.opensFiles = true;
    }

    void aFileIsHandedOver_data()
    {
        QTest::addColumn<bool>("refuses");
        QTest::newRow("taken") << false;
        QTest::newRow("refused") << true;
    }

    void aFileIsHandedOver()
    {
        QFETCH(bool, refuses);
        m_portal.refuses = refuses;
        const QString path = m_folder.filePath("a.png");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("picture") == 7);
        file.close();
        const Outcome shared = PortalSharing().share(path);
        QCOMPARE(static_cast<bool>(shared), !refuses);
        QVERIFY(!refuses || shared.failure().message.contains("not today"));
        QCOMPARE(m_portal.content, QByteArray("picture"));
        QVERIFY(m_portal.asked);
        QVERIFY(!PortalSharing().share(m_folder.filePath("gone.png")));
    }
};

QTEST_GUILESS_MAIN(PortalSharingTest)
#include "PortalSharingTest.moc"
