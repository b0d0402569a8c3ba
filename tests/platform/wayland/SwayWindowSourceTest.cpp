// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/SwayWindowSource.h"

#include "platform/wayland/WaylandScreenSource.h"
#include "tests/support/PatientTest.h"
#include "tests/support/SwaySession.h"
#include "tests/support/VirtualScreen.h"
#include "tests/support/WaylandHands.h"

#include <QTest>

using namespace tessaly;
using tessaly::test::ScreenPicture;
using tessaly::test::SwaySession;

/// The windows of a real sway, compared with where they are seen.
class SwayWindowSourceTest : public QObject {
    Q_OBJECT

    static constexpr QRgb nothing = 0xffff00ff; ///< the colour behind all windows

    std::unique_ptr<SwaySession> m_session;
    std::unique_ptr<ScreenPicture> m_background;
    std::unique_ptr<ScreenSource> m_screen;
    std::unique_ptr<WindowSource> m_source;
    std::vector<std::unique_ptr<QProcess>> m_programs;

    QStringList titles() const
    {
        QStringList titles;
        if (const auto windows = m_source->windows()) {
            for (const ScreenWindow &window : *windows)
                titles += window.title;
        }
        return titles;
    }

    /// A terminal that shows nothing but its background.
    void openWindow(const QString &title)
    {
        const QStringList before = titles();
        auto &program = m_programs.emplace_back(std::make_unique<QProcess>());
        test::endWithThisProcess(*program);
        program->setStandardErrorFile(QProcess::nullDevice());
        program->start(QStringLiteral("foot"),
            { QStringLiteral("--config=/dev/null"), QStringLiteral("--app-id=example.terminal"),
                QStringLiteral("--title"), title, QStringLiteral("--override=locked-title=yes"),
                QStringLiteral("sleep"), QStringLiteral("1000") });
        QTRY_VERIFY(titles() != before);
    }

    ScreenWindow windowCalled(const QString &title) const
    {
        const auto windows = m_source->windows();
        const auto found = std::ranges::find(*windows, title, &ScreenWindow::title);
        return found == windows->end() ? ScreenWindow() : *found;
    }

    QImage capturedScreen() const
    {
        QImage picture;
        const tessaly::Display display = m_screen->displays()->first();
        m_screen->capture({ display, display.pixelRect() }, [&](Result<RasterImage> answer) {
            if (answer)
                picture = answer->pixels.copy();
        });
        return picture;
    }

    /// The pixels that are not background.
    static QRect coveredPart(const QImage &picture)
    {
        QRect covered;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixel(x, y) != nothing)
                    covered |= QRect(x, y, 1, 1);
        return covered;
    }

private Q_SLOTS:
    void init()
    {
        m_session = std::make_unique<SwaySession>(QList<SwaySession::Monitor> { { { 1000, 800 }, 2, { -500, 20 } } });
        QVERIFY(m_session->isReady());
        QImage colour(1000, 800, QImage::Format_RGB32);
        colour.fill(nothing);
        m_background = std::make_unique<ScreenPicture>(QStringLiteral("HEADLESS-1"), colour);
        QVERIFY(m_background->isShown());
        auto screen = WaylandScreenSource::create(CaptureUse::Repeated);
        QVERIFY(screen);
        m_screen = std::move(*screen);
        m_source = SwayWindowSource::create(*m_screen);
        QVERIFY(m_source);
    }

    void cleanup()
    {
        m_source.reset();
        m_screen.reset();
        m_background.reset();
        for (const auto &program : m_programs) {
            program->terminate();
            program->waitForFinished(test::patience);
        }
        m_programs.clear();
        m_session.reset();
    }

    void rectanglesAreWhatIsSeen_data()
    {
        QTest::addColumn<QStringList>("commands");
        QTest::newRow("tiled") << QStringList {};
        QTest::newRow("with a title bar") << QStringList { QStringLiteral("border normal 3") };
        QTest::newRow("without any border") << QStringList { QStringLiteral("border none") };
        QTest::newRow("floating") << QStringList { QStringLiteral("floating enable"), QStringLiteral("border normal 2"),
            QStringLiteral("resize set 211 133"), QStringLiteral("move position 41 57") };
        QTest::newRow("in a tab") << QStringList { QStringLiteral("layout tabbed") };
        QTest::newRow("in a stack") << QStringList { QStringLiteral("layout stacking") };
        QTest::newRow("full screen") << QStringList { QStringLiteral("fullscreen enable") };
    }

    void rectanglesAreWhatIsSeen()
    {
        QFETCH(QStringList, commands);
        openWindow(QStringLiteral("seen"));
        for (const QString &command : commands)
            QVERIFY2(SwaySession::command(command), qPrintable(command));
        const tessaly::Display display = m_screen->displays()->first();
        const auto expected = [&] { return display.pixelsOf(windowCalled(QStringLiteral("seen")).layoutRect); };
        QTRY_COMPARE(coveredPart(capturedScreen()), expected());

        std::optional<RasterImage> picture;
        m_source->capture(windowCalled(QStringLiteral("seen")), {}, [&](Result<RasterImage> answer) {
            if (answer)
                picture = *answer;
        });
        QVERIFY(picture);
        QCOMPARE(picture->pixels, capturedScreen().copy(expected()));
    }

    void listsFrontToBackWhatCanBeSeen()
    {
        openWindow(QStringLiteral("first"));
        openWindow(QStringLiteral("below"));
        QVERIFY(SwaySession::command(QStringLiteral("floating enable")));
        openWindow(QStringLiteral("above"));
        QVERIFY(SwaySession::command(QStringLiteral("floating enable")));
        openWindow(QStringLiteral("elsewhere"));
        QVERIFY(SwaySession::command(QStringLiteral("move to workspace 7")));
        QVERIFY(SwaySession::command(QStringLiteral("[title=first] focus")));
        const QStringList expected { QStringLiteral("above"), QStringLiteral("below"), QStringLiteral("first") };
        QTRY_COMPARE(titles(), expected);

        const auto front = m_source->frontApplication();
        QVERIFY(front);
        QCOMPARE(front->name, QStringLiteral("example.terminal"));
        QCOMPARE(front->processId, m_programs[0]->processId());
    }

    void failsForAWindowThatIsGone()
    {
        openWindow(QStringLiteral("short-lived"));
        const ScreenWindow window = windowCalled(QStringLiteral("short-lived"));
        m_programs.back()->terminate();
        QTRY_VERIFY(titles().isEmpty());
        QString message;
        m_source->capture(
            window, {}, [&](Result<RasterImage> answer) { message = answer ? QString() : answer.failure().message; });
        QCOMPARE(message, QStringLiteral("The window is no longer there."));

        m_session->end();
        QVERIFY(!m_source->windows());
        QVERIFY(!SwayWindowSource::create(*m_screen));
    }
};

QTEST_GUILESS_MAIN(SwayWindowSourceTest)
#include "SwayWindowSourceTest.moc"
