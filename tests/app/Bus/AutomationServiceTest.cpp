// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Bus/AutomationNames.h"
#include "tests/app/Bus/BusStage.h"
#include "tests/support/Rows.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QSignalSpy>

using namespace tessaly;

/// What other programs get for an answer on the bus.
class AutomationServiceTest : public QObject {
    Q_OBJECT

    std::unique_ptr<test::BusStage> m_stage;

    QDBusMessage call(const char *interface, const QString &method, const QVariantList &arguments = {}) const
    {
        QDBusConnection bus
            = QDBusConnection::connectToBus(QString::fromLatin1(m_stage->address), QStringLiteral("caller"));
        QDBusMessage message = QDBusMessage::createMethodCall(QLatin1StringView(AutomationNames::service),
            QLatin1StringView(AutomationNames::object), QLatin1StringView(interface), method);
        message.setArguments(arguments);
        const QDBusPendingCallWatcher watcher(bus.asyncCall(message));
        if (!QTest::qWaitFor([&] { return watcher.isFinished(); }, 20'000))
            qFatal("no answer");
        return watcher.reply();
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_stage = std::make_unique<test::BusStage>();
        QVERIFY(m_stage->service.claim());
    }

    void cleanupTestCase()
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("caller"));
        m_stage.reset();
    }

    void operationsAnswer_data()
    {
        test::columns<QString, QVariantList, QString, QString>("method", "arguments", "error", "sentence");
        const QString invalid = QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs");
        test::row("begun", QStringLiteral("CaptureRegion"), QVariantList { "" }, QString(), QString());
        test::row("with a destination", QStringLiteral("CaptureWindow"), QVariantList { "file" }, QString(), QString());
        test::row("unknown destination", QStringLiteral("CaptureFullScreen"), QVariantList { "nowhere" }, invalid,
            QStringLiteral("There is no such destination."));
        test::row("text", QStringLiteral("CopyTextFromRegion"), QVariantList(), QString(), QString());
        test::row("empty history", QStringLiteral("OpenLastCapture"), QVariantList(),
            QStringLiteral("org.tessaly.Automation1.Error.NoCaptures"),
            QStringLiteral("There are no captures in the history yet."));
        test::row("argument of another type", QStringLiteral("CaptureRegion"), QVariantList { 5 },
            QStringLiteral("org.freedesktop.DBus.Error.UnknownMethod"),
            QStringLiteral("No such method 'CaptureRegion' in interface 'org.tessaly.Automation1' at object path "
                           "'/org/tessaly/Tessaly' (signature 'i')"));
    }

    void operationsAnswer()
    {
        QFETCH(QString, method);
        QFETCH(QVariantList, arguments);
        QFETCH(QString, error);
        m_stage->heard.clear();
        const QDBusMessage reply = call(AutomationNames::interface, method, arguments);
        QCOMPARE(reply.errorName(), error);
        QTEST(reply.errorMessage(), "sentence");
        if (error.isEmpty())
            QCOMPARE(m_stage->heard, QStringList(method + u' ' + arguments.value(0).toString()));
    }

    void anUnknownActionIsAnError()
    {
        const QDBusMessage reply = call(AutomationNames::applicationInterface, QStringLiteral("ActivateAction"),
            { QStringLiteral("Explode"), QVariantList(), QVariantMap() });
        QCOMPARE(reply.errorName(), QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs"));
        QVERIFY(reply.errorMessage().contains(u"Explode"));
    }

    void itDescribesItself()
    {
        const QString xml
            = call("org.freedesktop.DBus.Introspectable", QStringLiteral("Introspect")).arguments().value(0).toString();
        for (const IntentRow &row : tessalyShortcuts()) {
            const QString method = QStringLiteral("<method name=\"%1\">").arg(QLatin1StringView(row.name));
            const QString rest = xml.section(method, 1, 1).trimmed();
            QVERIFY2(xml.contains(method), row.name);
            QCOMPARE(rest.startsWith(u"<arg name=\"destination\" type=\"s\" direction=\"in\"/>"), row.takesDestination);
        }
        QVERIFY(xml.contains(u"<interface name=\"org.freedesktop.Application\">"));
        QVERIFY(xml.contains(u"<arg name=\"uris\" type=\"as\" direction=\"in\"/>"));
    }

    void quittingGivesTheNameAwayFirst()
    {
        QSignalSpy quit(&m_stage->service, &AutomationService::quitRequested);
        QVERIFY(call(AutomationNames::interface, QStringLiteral("Quit")).errorName().isEmpty());
        QTRY_COMPARE(quit.size(), 1);
        QCOMPARE(call(AutomationNames::interface, QStringLiteral("Stay")).errorName(),
            QStringLiteral("org.freedesktop.DBus.Error.ServiceUnknown"));
        QVERIFY(m_stage->service.claim()); // the user has kept the program
        QVERIFY(call(AutomationNames::interface, QStringLiteral("Stay")).errorName().isEmpty());
    }
};

QTEST_GUILESS_MAIN(AutomationServiceTest)
#include "AutomationServiceTest.moc"
