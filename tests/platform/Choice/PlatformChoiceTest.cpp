// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Choice/PlatformChoice.h"

#include <QTemporaryDir>
#include <QTest>

using namespace tessaly;
using PlatformChoice::Platform;

/// What is chosen follows from the session's variables alone.
class PlatformChoiceTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_runtime;

    static void set(const char *name, const char *value)
    {
        if (*value)
            qputenv(name, value);
        else
            qunsetenv(name);
    }

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_RUNTIME_DIR", m_runtime.path().toLocal8Bit()); }

    void theSessionDecides_data()
    {
        QTest::addColumn<QByteArray>("forced");
        QTest::addColumn<QByteArray>("wayland");
        QTest::addColumn<QByteArray>("x11");
        QTest::addColumn<std::optional<Platform>>("platform");
        QTest::addColumn<QString>("source"); // a word of what making the source says; empty when it is made
        using P = std::optional<Platform>;
        const auto row = [](const char *name, const char *forced, const char *wayland, const char *x11, P platform,
                             const char *source) {
            QTest::newRow(name) << QByteArray(forced) << QByteArray(wayland) << QByteArray(x11) << platform
                                << QString(source);
        };
        row("X11", "", "", ":999", Platform::X11, ":999");
        row("an X server under Wayland", "", "no-compositor", ":999", Platform::Wayland, "");
        row("no desktop", "", "", "", {}, "DISPLAY");
        row("X11 forced", "x11", "no-compositor", ":999", Platform::X11, ":999");
        row("Wayland forced", "wayland", "no-compositor", "", Platform::Wayland, "compositor");
        row("the portal forced", "portal", "", ":999", Platform::Portal, "");
        row("none", "none", "no-compositor", ":999", {}, "TESSALY_PLATFORM=none");
        row("unknown", "beos", "", ":999", {}, "beos");
    }

    void theSessionDecides()
    {
        QFETCH(QByteArray, forced);
        QFETCH(QByteArray, wayland);
        QFETCH(QByteArray, x11);
        QFETCH(std::optional<Platform>, platform);
        QFETCH(QString, source);
        set("TESSALY_PLATFORM", forced);
        set("WAYLAND_DISPLAY", wayland);
        set("DISPLAY", x11);
        const auto chosen = PlatformChoice::platform();
        QCOMPARE(static_cast<bool>(chosen), platform.has_value());
        QVERIFY(!chosen || *chosen == *platform);
        const auto made = PlatformChoice::screenSource(CaptureUse::Once);
        QCOMPARE(static_cast<bool>(made), source.isEmpty());
        QVERIFY2(made || made.failure().message.contains(source), made ? "" : qPrintable(made.failure().message));
        // None of these desktops tells of its windows, and what stands for the screen says why.
        const auto screen = PlatformChoice::missingScreenSource({ source });
        QCOMPARE(screen->displays().failure().message, source);
        QVERIFY(screen->wayOut());
        QVERIFY(!PlatformChoice::windowSource(*screen)->canList());
    }
};

QTEST_GUILESS_MAIN(PlatformChoiceTest)
#include "PlatformChoiceTest.moc"
