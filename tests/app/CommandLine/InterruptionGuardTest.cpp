// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/InterruptionGuard.h"

#include <QTest>

#include <thread>

using namespace tessaly;

namespace {

volatile std::sig_atomic_t received = 0;
void receive(int signal) { received = signal; }

} // namespace

class InterruptionGuardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aSignalWaitsForTheEndOfTheGuard()
    {
        const auto before = std::signal(SIGTERM, receive);
        {
            const InterruptionGuard guard;
            std::jthread([] { std::raise(SIGTERM); }).join(); // any thread may be handed it
            QCOMPARE(int(received), 0);
        }
        QCOMPARE(int(received), SIGTERM);
        received = 0;
        std::signal(SIGTERM, SIG_IGN);
        {
            const InterruptionGuard guard;
            std::raise(SIGTERM);
        }
        QCOMPARE(int(received), 0); // who ignores a signal goes on ignoring it
        std::signal(SIGTERM, before);
    }
};

QTEST_GUILESS_MAIN(InterruptionGuardTest)
#include "InterruptionGuardTest.moc"
