// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/DesktopSession.h"
#include "tests/support/PatientTest.h"
#include "tests/support/SwaySession.h"
#include "tests/support/TestFiles.h"
#include "tests/support/WaylandHands.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace tessaly::test;
using Button = VirtualPointer::Button;

namespace {

constexpr QSize pixelSize { 800, 480 };

/// Their names are HEADLESS-1, -2, -3.
const QList<SwaySession::Monitor> monitors { { pixelSize, 1, { 0, 0 } }, { pixelSize, 2, { 800, 0 } },
    { pixelSize, 1.5, { 1200, 0 } } };

QString nameOf(int monitor) { return QStringLiteral("HEADLESS-%1").arg(monitor + 1); }

/// What grim sees.
QImage seen(int monitor) { return SwaySession::picture(nameOf(monitor)); }

/// A chequerboard of single pixels in which no two places of a neighbourhood are alike.
QImage pattern(int seed)
{
    QImage image(pixelSize, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool light = (x + y) % 2;
            image.setPixel(x, y, light ? qRgb(255 - x % 97, 255 - y % 89, 200 + seed) : qRgb(x % 83, y % 79, seed));
        }
    }
    return image;
}

/// Where two pictures of one size differ.
QByteArray difference(const QImage &one, const QImage &other)
{
    QRect rect;
    for (int y = 0; y < one.height() && y < other.height(); ++y) {
        for (int x = 0; x < one.width() && x < other.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                rect |= QRect(x, y, 1, 1);
        }
    }
    return QStringLiteral("differs at %1, %2, %3 by %4 pixels")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height())
        .toUtf8();
}

} // namespace

/// The program on a Wayland compositor with monitors at 1, 2 and 1.5 pixels a point; every pixel that it takes is
/// compared with what another program sees on the screen.
class WaylandSessionTest : public QObject {
    Q_OBJECT

    DesktopSession m_session { DesktopSession::WindowSystem::Wayland };
    VirtualPointer m_pointer;
    std::vector<std::unique_ptr<ScreenPicture>> m_backgrounds;
    QList<QImage> m_screens; ///< as they are without the program's windows

    QString file(const QString &name = QStringLiteral("area.png")) const { return m_session.path(name); }

    void showBackground(int monitor, int seed)
    {
        auto &background = m_backgrounds[size_t(monitor)];
        background.reset();
        background = std::make_unique<ScreenPicture>(nameOf(monitor), pattern(seed));
        QVERIFY(background->isShown());
    }

    /// Keys as wtype takes them.
    static void type(const QStringList &keys) { QVERIFY(SwaySession::output("wtype", keys)); }

    /// Starts a capture whose overlay then lies on all monitors.
    std::unique_ptr<QProcess> opened(const QStringList &request) const
    {
        auto command = m_session.command(QStringList { "capture" } + request);
        for (int monitor = 0; monitor < monitors.size(); ++monitor) {
            const QRgb light = m_screens[monitor].pixel(3, 4);
            if (!QTest::qWaitFor([&] { return qGreen(seen(monitor).pixel(3, 4)) < qGreen(light) * 3 / 4; }, patience))
                return nullptr;
        }
        return command;
    }

    /// What the file of a request has after the user has done something over the overlay.
    QImage captured(const QStringList &request, const std::function<void()> &select)
    {
        QFile::remove(file());
        const auto command = opened(request + QStringList { "-o", file() });
        if (!command)
            return {};
        select();
        return DesktopSession::finish(*command) == 0 ? DesktopSession::pixels(file()) : QImage();
    }

    QJsonArray windows() const
    {
        const auto command = m_session.command({ "windows", "--json" });
        DesktopSession::finish(*command);
        return QJsonDocument::fromJson(command->readAllStandardOutput()).array();
    }

    bool restart(const QByteArray &settings)
    {
        return (!m_session.isRunning() || m_session.stop() == 0) && m_session.startResident(settings);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_session.isReady());
        m_backgrounds.resize(size_t(monitors.size()));
        for (int monitor = 0; monitor < monitors.size(); ++monitor) {
            showBackground(monitor, monitor * 20);
            m_screens += seen(monitor);
        }
        QCOMPARE(m_screens[0], pattern(0));
        QCOMPARE(m_screens[1], pattern(20));
        // Without the history, since its notices come by themselves, while something is being taken.
        QVERIFY(m_session.startResident(
            R"({"historyEnabled":false,"windowCaptureShadow":false,"windowCaptureTransparentBackground":false})"));
        // At a scale between whole numbers neither the compositor nor grim shows single pixels as they are.
        const auto command = m_session.command({ "capture", "full-screen", "--display", "3", "-o", file() });
        QCOMPARE(DesktopSession::finish(*command), 0);
        m_screens[2] = DesktopSession::pixels(file());
        QCOMPARE(m_screens[2].size(), pixelSize);
    }

    void cleanupTestCase() { QCOMPARE(m_session.stop(), 0); }

    void takesWhatIsNamed_data()
    {
        QTest::addColumn<QStringList>("request");
        QTest::addColumn<int>("monitor");
        QTest::addColumn<QRect>("expected"); ///< pixels of the monitor
        const QRect whole({}, pixelSize);
        QTest::newRow("primary monitor") << QStringList { "full-screen" } << 0 << whole;
        QTest::newRow("two pixels a point") << QStringList { "full-screen", "--display", "2" } << 1 << whole;
        QTest::newRow("part of two") << QStringList { "region", "--rect", "11,12,101,50", "--display", "2" } << 1
                                     << QRect(22, 24, 202, 100);
        QTest::newRow("part of one and a half")
            << QStringList { "region", "--rect", "10,12,100,50", "--display", "3" } << 2 << QRect(15, 18, 150, 75);
    }

    void takesWhatIsNamed()
    {
        QFETCH(QStringList, request);
        QFETCH(int, monitor);
        QFETCH(QRect, expected);
        const auto command = m_session.command(QStringList { "capture" } + request + QStringList { "-o", file() });
        QCOMPARE(DesktopSession::finish(*command), 0);
        const QImage image = DesktopSession::pixels(file());
        QVERIFY2(image == m_screens[monitor].copy(expected), difference(image, m_screens[monitor].copy(expected)));
    }

    void draggedAreasAreExact_data()
    {
        QTest::addColumn<QPoint>("from"); ///< points of the desktop
        QTest::addColumn<QPoint>("to");
        QTest::addColumn<int>("monitor");
        QTest::addColumn<QRect>("expected"); ///< pixels of the monitor
        QTest::newRow("one pixel a point") << QPoint(101, 203) << QPoint(332, 304) << 0 << QRect(101, 203, 231, 101);
        QTest::newRow("two pixels a point") << QPoint(901, 103) << QPoint(1032, 204) << 1 << QRect(202, 206, 262, 202);
        QTest::newRow("one and a half") << QPoint(1300, 100) << QPoint(1400, 150) << 2 << QRect(150, 150, 150, 75);
        QTest::newRow("backwards") << QPoint(1000, 140) << QPoint(933, 41) << 1 << QRect(266, 82, 134, 198);
        QTest::newRow("to another monitor") << QPoint(701, 100) << QPoint(900, 200) << 0 << QRect(701, 100, 99, 100);
    }

    void draggedAreasAreExact()
    {
        QFETCH(QPoint, from);
        QFETCH(QPoint, to);
        QFETCH(int, monitor);
        QFETCH(QRect, expected);
        const QImage image = captured({ "region" }, [&] { m_pointer.drag(from, to); });
        QCOMPARE(image.size(), expected.size());
        QCOMPARE(image, m_screens[monitor].copy(expected));
    }

    void isGivenUp_data()
    {
        QTest::addColumn<bool>("byMouse");
        QTest::newRow("Escape") << false;
        QTest::newRow("right button") << true;
    }

    void isGivenUp()
    {
        QFETCH(bool, byMouse);
        m_pointer.move({ 1000, 100 });
        const auto command = opened({ "region" });
        QVERIFY(command);
        if (byMouse)
            m_pointer.click({ 1000, 100 }, Button::Right);
        else
            type({ "-k", "Escape" });
        QCOMPARE(DesktopSession::finish(*command), 1);
        QVERIFY(command->readAllStandardError().contains("cancelled"));
        QCOMPARE(seen(0), m_screens[0]);
    }

    void aPickedWindowIsWholeAndStaysFullScreen()
    {
        QProcess terminal;
        endWithThisProcess(terminal);
        m_pointer.move({ 1000, 100 });
        QVERIFY(SwaySession::command("focus output HEADLESS-2"));
        terminal.start("foot", { "--config=/dev/null", "sleep", "1000" });
        QTRY_VERIFY(SwaySession::command("[app_id=foot] focus, fullscreen enable"));
        QJsonObject window;
        QTRY_COMPARE((window = windows().at(0).toObject())[u"layoutRect"].toArray(), (QJsonArray { 800, 0, 400, 240 }));
        QImage expected;
        QTRY_VERIFY((expected = seen(1)) != m_screens[1] && expected == seen(1));
        const QImage image = captured({ "window" }, [&] {
            QTRY_VERIFY(seen(1) != expected);
            m_pointer.click({ 1000, 100 });
        });
        QCOMPARE(image, expected);
        const QString id = QString::number(window[u"id"].toInteger());
        const auto again = m_session.command({ "capture", "window", "--window", id, "-o", file() });
        QCOMPARE(DesktopSession::finish(*again), 0);
        QCOMPARE(DesktopSession::pixels(file()), expected);
        QCOMPARE(seen(1), expected); // it has kept its place
        terminal.terminate();
        terminal.waitForFinished(patience);
        QTRY_COMPARE(seen(1), m_screens[1]);
    }

    void theClipboardIsSet()
    {
        const auto command = opened({ "region", "--to", "clipboard" });
        QVERIFY(command);
        m_pointer.drag({ 850, 50 }, { 950, 100 });
        // A notice says so, at the bottom of the primary monitor.
        const QPoint inNotice(331, 350);
        QTRY_VERIFY(qGreen(seen(0).pixel(inNotice)) < qGreen(m_screens[0].pixel(inNotice)) / 2);
        QCOMPARE(DesktopSession::finish(*command), 0);
        const auto png = SwaySession::output("wl-paste", { "-t", "image/png" });
        QVERIFY(png && writeFile(file(), *png));
        QCOMPARE(DesktopSession::pixels(file()), m_screens[1].copy(100, 100, 200, 100));
    }

    void keysMoveAndResize()
    {
        QVERIFY(restart("{\"historyEnabled\":false,\"adjustRegionBeforeCapture\":true}"));
        const QImage image = captured({ "region" }, [&] {
            m_pointer.drag({ 900, 100 }, { 950, 150 });
            type({ "-k", "Right", "-k", "Down", "-M", "shift", "-k", "Right", "-m", "shift", "-k", "Return" });
        });
        QCOMPARE(image, m_screens[1].copy(220, 220, 140, 100));
    }

    void whatIsFrozenStays()
    {
        QVERIFY(restart("{\"historyEnabled\":false,\"freezeScreenWhileSelecting\":true}"));
        const QImage image = captured({ "region" }, [&] {
            showBackground(1, 50);
            m_pointer.drag({ 901, 103 }, { 1032, 204 });
        });
        QCOMPARE(image, m_screens[1].copy(202, 206, 262, 202));
        showBackground(1, 20);
    }
};

int main(int argc, char **argv)
{
    const SwaySession session(monitors);
    if (!session.isReady())
        qFatal("sway does not run");
    QCoreApplication application(argc, argv);
    WaylandSessionTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "WaylandSessionTest.moc"
