// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Bus/HandOver.h"
#include "app/Bus/AutomationNames.h"
#include "app/Bus/DesktopArguments.h"
#include "tests/app/Bus/BusStage.h"
#include "tests/support/Rows.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDir>

#include <future>

using namespace tessaly;
using namespace std::chrono_literals;
using HandOver::Answer;

/// A running program that is not well: it does not answer, or refuses the first calls.
class IllProgram : public QDBusVirtualObject {
public:
    int refusals = 0;
    bool isSilent = false;
    int calls = 0;

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        ++calls;
        if (isSilent)
            message.setDelayedReply(true);
        else if (refusals-- > 0)
            bus.send(message.createErrorReply(QDBusError::UnknownObject, QStringLiteral("it is ending")));
        else
            bus.send(message.createReply());
        return true;
    }
};

/// What a second start leaves to the one that runs, and when it has to go on by itself.
class HandOverTest : public QObject {
    Q_OBJECT

    std::unique_ptr<test::BusStage> m_stage;

    /// As a second process: this one goes on answering.
    static Answer handOver(const DesktopArguments &arguments, std::chrono::milliseconds patience = 20s)
    {
        auto answer = std::async(std::launch::async, [&] { return HandOver::toOther(arguments, patience); });
        if (!QTest::qWaitFor([&] { return answer.wait_for(0s) == std::future_status::ready; }, 30'000))
            qFatal("handing over does not end");
        return answer.get();
    }

private Q_SLOTS:
    void initTestCase()
    {
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qunsetenv("XDG_RUNTIME_DIR");
        QCOMPARE(HandOver::toOther({}), Answer::NoneRuns); // without a bus
        m_stage = std::make_unique<test::BusStage>();
        QVERIFY(!m_stage->address.isEmpty());
        QCOMPARE(HandOver::toOther({}), Answer::NoneRuns);
        QVERIFY(!HandOver::isOtherRunning());
    }

    void cleanupTestCase() { m_stage.reset(); }

    void everythingArrives_data()
    {
        test::columns<QStringList, QStringList>("arguments", "heard");
        const QString here = QDir::currentPath() + u'/';
        const QString id = QStringLiteral("0f8fad5b-d9cb-469f-a165-70867728950e"),
                      other = QStringLiteral("7c9e6679-7425-40de-944b-e07fc1f90ae7");
        test::row("nothing", QStringList(), QStringList("activate"));
        test::row("with the session", QStringList("--resident"), QStringList("stay"));
        test::row("files", QStringList { "a b%20#?.png", "/tmp/Übung.png", "../x.tessaly" },
            QStringList { "open " + here + "a b%20#?.png", "open /tmp/Übung.png", "open " + here + "../x.tessaly" });
        test::row("a file named like an option", QStringList { "--", "--resident" },
            QStringList("open " + here + "--resident"));
        test::row("captures of the history", QStringList { "--history-entry", id, "--history-entry", other },
            QStringList { "entry " + id, "entry " + other });
        test::row("an operation", QStringList { "--action", "CaptureWindow" }, QStringList("CaptureWindow "));
        test::row("and where to", QStringList { "--action", "CaptureRegion", "clipboard" },
            QStringList("CaptureRegion clipboard"));
        test::row("one that fails", QStringList { "--action", "OpenLastCapture" },
            QStringList { "OpenLastCapture ", "told: There are no captures in the history yet." });
    }

    void everythingArrives()
    {
        QFETCH(QStringList, arguments);
        qputenv("XDG_ACTIVATION_TOKEN", "a token");
        m_stage->heard.clear();
        QVERIFY(m_stage->service.claim());
        QVERIFY(HandOver::isOtherRunning());
        QCOMPARE(handOver(DesktopArguments::from(arguments)), Answer::Taken);
        QTEST(m_stage->heard, "heard");
        if (arguments.value(0) != u"--resident")
            QCOMPARE(
                m_stage->platformData.value(QStringLiteral("activation-token")).toString(), QStringLiteral("a token"));
        m_stage->service.release();
        QCOMPARE(handOver({}), Answer::NoneRuns);
    }

    void whoDoesNotAnswerIsNotWaitedForLong_data()
    {
        test::columns<int, bool, int, int>("refusals", "silent", "answer", "calls");
        test::row("just ending, and another one is there", 1, false, int(Answer::Taken), 2);
        test::row("does not know it", 9, false, int(Answer::Silent), 2);
        test::row("hangs", 0, true, int(Answer::Silent), 1);
    }

    void whoDoesNotAnswerIsNotWaitedForLong()
    {
        IllProgram program;
        QFETCH(bool, silent);
        QFETCH(int, refusals);
        program.isSilent = silent;
        program.refusals = refusals;
        QDBusConnection bus
            = QDBusConnection::connectToBus(QString::fromLatin1(m_stage->address), QStringLiteral("ill"));
        QVERIFY(bus.registerVirtualObject(QLatin1StringView(AutomationNames::object), &program));
        QVERIFY(bus.registerService(QLatin1StringView(AutomationNames::service)));
        QTEST(int(handOver({}, silent ? 200ms : 20s)), "answer");
        QTEST(program.calls, "calls");
        bus.unregisterService(QLatin1StringView(AutomationNames::service));
        bus.unregisterObject(QLatin1StringView(AutomationNames::object));
        QDBusConnection::disconnectFromBus(QStringLiteral("ill"));
    }

    void argumentsOfOneCapture()
    {
        const auto wanted = DesktopArguments::from({ "--capture", "region", "to=file", "output=/tmp/a=b.png" });
        QVERIFY(wanted.capture && !wanted.isPlain());
        QCOMPARE(wanted.capture->subject, QStringLiteral("region"));
        QCOMPARE(wanted.capture->options.value(QStringLiteral("output")).toString(), QStringLiteral("/tmp/a=b.png"));
    }
};

QTEST_GUILESS_MAIN(HandOverTest)
#include "HandOverTest.moc"
