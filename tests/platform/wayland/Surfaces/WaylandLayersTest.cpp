// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/Surfaces/WaylandLayers.h"

#include "tests/support/PatientTest.h"
#include "tests/support/SwaySession.h"
#include "tests/support/VirtualScreen.h"
#include "tests/support/WaylandHands.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QRasterWindow>
#include <QScreen>
#include <QTest>

using namespace tessaly;
using tessaly::test::ScreenPicture;
using tessaly::test::SwaySession;
using tessaly::test::VirtualPointer;

namespace {

/// One colour, with a single device pixel of another in the top left corner.
class Patch final : public QRasterWindow {
public:
    explicit Patch(QColor colour) : m_colour(colour)
    {
        QSurfaceFormat format;
        format.setAlphaBufferSize(8);
        setFormat(format);
    }

    QString typed;
    QList<QPoint> pressed;
    std::function<void(QPoint)> dragged; ///< to a place on the desktop

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(QRect(QPoint(), size()), m_colour);
        painter.fillRect(QRectF(0, 0, 1 / devicePixelRatio(), 1 / devicePixelRatio()), Qt::white);
    }
    void keyPressEvent(QKeyEvent *event) override { typed += event->text(); }
    void mousePressEvent(QMouseEvent *event) override { pressed += event->position().toPoint(); }
    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (dragged && event->buttons())
            dragged(event->globalPosition().toPoint());
    }

private:
    QColor m_colour;
};

} // namespace

/// Windows in the layers of a real compositor with a monitor at 1 and one at 2 pixels a point.
class WaylandLayersTest : public QObject {
    Q_OBJECT

    static constexpr QRgb red = 0xffff0000, blue = 0xff0000ff, white = 0xffffffff;

    WaylandLayers m_layers;

    static QScreen &screen(qsizetype index)
    {
        const QString name = QStringLiteral("HEADLESS-%1").arg(index + 1);
        const auto screens = QGuiApplication::screens();
        return **std::ranges::find(screens, name, &QScreen::name);
    }

    static QRgb seen(qsizetype monitor, QPoint pixel)
    {
        return SwaySession::picture(screen(monitor).name()).pixel(pixel);
    }

    /// Sway's node of the terminal; empty without one.
    static QJsonObject terminalIn(const QJsonObject &node)
    {
        if (node[u"app_id"].toString() == u"foot")
            return node;
        for (const auto key : { u"nodes", u"floating_nodes" }) {
            const QJsonArray children = node[key].toArray();
            for (const QJsonValue &child : children) {
                if (const QJsonObject found = terminalIn(child.toObject()); !found.isEmpty())
                    return found;
            }
        }
        return {};
    }

    /// Whether the terminal has the keyboard and the whole of a monitor.
    static bool terminalIsFullScreen()
    {
        const auto tree = SwaySession::output(
            QStringLiteral("swaymsg"), { QStringLiteral("-r"), QStringLiteral("-t"), QStringLiteral("get_tree") });
        const auto node = tree ? terminalIn(QJsonDocument::fromJson(*tree).object()) : QJsonObject();
        return node[u"focused"].toBool() && node[u"fullscreen_mode"].toInt() == 1;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_layers.showsTransparency());
        QVERIFY(m_layers.canPlace());
        QVERIFY(m_layers.canStayAbove());
        QCOMPARE(screen(1).devicePixelRatio(), 2.0);
    }

    void coversFillTheirMonitorAgainAndAgain_data()
    {
        QTest::addColumn<int>("monitor");
        QTest::addColumn<QPoint>("lastPixel");
        QTest::newRow("one pixel a point") << 0 << QPoint(639, 399);
        QTest::newRow("two pixels a point") << 1 << QPoint(799, 599);
    }

    void coversFillTheirMonitorAgainAndAgain()
    {
        QFETCH(int, monitor);
        QFETCH(QPoint, lastPixel);
        Patch cover(Qt::red);
        m_layers.prepareCover(cover, screen(monitor));
        for (int round = 0; round < 3; ++round) {
            QVERIFY(seen(monitor, lastPixel) != red);
            m_layers.showCover(cover);
            QTRY_COMPARE(seen(monitor, lastPixel), red);
            QCOMPARE(seen(monitor, QPoint(0, 0)), white);
            QCOMPARE(seen(monitor, QPoint(1, 0)), red);
            QVERIFY(seen(1 - monitor, QPoint(5, 5)) != red);
            m_layers.hideCover(cover);
            QVERIFY(seen(monitor, lastPixel) != red);
        }
    }

    void coverTakesKeysAndLeavesFullScreenWindows()
    {
        QProcess terminal;
        test::endWithThisProcess(terminal);
        terminal.start(QStringLiteral("foot"),
            { QStringLiteral("--config=/dev/null"), QStringLiteral("sleep"), QStringLiteral("1000") });
        QTRY_VERIFY(SwaySession::command(QStringLiteral("[app_id=foot] focus, fullscreen enable")));
        QTRY_VERIFY(terminalIsFullScreen());
        Patch cover(Qt::blue);
        m_layers.prepareCover(cover, screen(0));
        m_layers.showCover(cover);
        QTRY_COMPARE(seen(0, QPoint(320, 200)), blue);
        QProcess keyboard;
        keyboard.start(QStringLiteral("wtype"), { QStringLiteral("abc") });
        QTRY_COMPARE(cover.typed, QStringLiteral("abc"));
        QTRY_COMPARE(keyboard.state(), QProcess::NotRunning);
        m_layers.hideCover(cover);
        QVERIFY(seen(0, QPoint(320, 200)) != blue);
        QTRY_VERIFY(terminalIsFullScreen());
        terminal.terminate();
        terminal.waitForFinished(test::patience);
    }

    void coversLetTheScreenThrough()
    {
        QImage black(640, 400, QImage::Format_RGB32);
        black.fill(Qt::black);
        const ScreenPicture background(screen(0).name(), black);
        Patch cover(QColor(255, 0, 0, 128));
        m_layers.prepareCover(cover, screen(0));
        m_layers.showCover(cover);
        QTRY_COMPARE(seen(0, QPoint(320, 200)), qRgb(128, 0, 0));
        m_layers.hideCover(cover);
    }

    void floatsLieWhereTheyArePut()
    {
        Patch window(Qt::blue);
        m_layers.prepareFloat(window, screen(1), QRect(31, 17, 100, 50), WindowLayers::Keyboard::Never);
        window.show();
        QTRY_COMPARE(seen(1, QPoint(62, 34)), white);
        QCOMPARE(seen(1, QPoint(261, 133)), blue);
        QVERIFY(seen(1, QPoint(262, 133)) != blue);
        m_layers.moveFloat(window, QRect(200, 100, 60, 40));
        QTRY_COMPARE(seen(1, QPoint(519, 279)), blue);
        QCOMPARE(seen(1, QPoint(400, 200)), white);
        QTRY_VERIFY(seen(1, QPoint(520, 280)) != blue);
        QCOMPARE(window.geometry(), QRect(840, 100, 60, 40));
        QTRY_VERIFY(seen(1, QPoint(261, 133)) != blue);
        window.hide();
        window.show();
        QTRY_COMPARE(seen(1, QPoint(519, 279)), blue);
    }

    void floatsTakeClicksOrPassThem()
    {
        VirtualPointer pointer;
        Patch window(Qt::blue);
        m_layers.prepareFloat(window, screen(0), QRect(120, 120, 80, 80), WindowLayers::Keyboard::Never);
        window.show();
        QTRY_COMPARE(seen(0, QPoint(150, 150)), blue);
        QList<QPoint> expected { QPoint(30, 30) };
        pointer.click(QPoint(150, 150));
        QTRY_COMPARE(window.pressed, expected);
        m_layers.setPassesClicks(window, true);
        QCOMPARE(seen(0, QPoint(199, 199)), blue);
        pointer.click(QPoint(155, 150));
        m_layers.setPassesClicks(window, false);
        QCOMPARE(seen(0, QPoint(199, 199)), blue);
        pointer.click(QPoint(160, 150));
        expected += QPoint(40, 30);
        QTRY_COMPARE(window.pressed, expected);
    }

    /// What moves under the pointer does not mislead itself about where the pointer is.
    void floatsAreDragged()
    {
        VirtualPointer pointer;
        Patch window(Qt::blue);
        m_layers.prepareFloat(window, screen(1), QRect(10, 10, 100, 80), WindowLayers::Keyboard::Never);
        window.show();
        QTRY_COMPARE(seen(1, QPoint(20, 20)), white);
        QPoint last;
        window.dragged = [&](QPoint at) {
            last = at;
            m_layers.moveFloat(window, QRect(at - screen(1).geometry().topLeft() - QPoint(30, 20), window.size()));
        };
        pointer.move({ 680, 30 });
        pointer.press();
        for (int step = 1; step <= 20; ++step) {
            pointer.move({ 680 + 10 * step, 30 + 5 * step });
            QTRY_COMPARE(last, QPoint(680 + 10 * step, 30 + 5 * step));
        }
        pointer.release();
        QTRY_COMPARE(window.position(), QPoint(850, 110));
        QTRY_COMPARE(seen(1, QPoint(420, 220)), white);
    }

    void menusOfFloatsFollowThem()
    {
        Patch window(Qt::blue);
        m_layers.prepareFloat(window, screen(0), QRect(300, 200, 50, 50), WindowLayers::Keyboard::OnClick);
        window.show();
        QTRY_COMPARE(seen(0, QPoint(349, 249)), blue);
        Patch menu(Qt::red);
        menu.setFlags(Qt::Popup);
        menu.setTransientParent(&window);
        menu.setGeometry(QRect(window.mapToGlobal(QPoint(20, 30)), QSize(60, 90)));
        menu.show();
        QTRY_COMPARE(seen(0, QPoint(320, 230)), white);
        QCOMPARE(seen(0, QPoint(379, 319)), red);
        QVERIFY(seen(0, QPoint(380, 319)) != red);
        menu.hide();
        QTRY_COMPARE(seen(0, QPoint(349, 249)), blue);
        QVERIFY(seen(0, QPoint(379, 319)) != red);
    }
};

int main(int argc, char **argv)
{
    const SwaySession session({ { { 640, 400 }, 1, { 0, 0 } }, { { 800, 600 }, 2, { 640, 0 } } });
    if (!session.isReady())
        qFatal("sway does not run");
    qputenv("QT_QPA_PLATFORM", "wayland");
    qputenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1");
    QGuiApplication application(argc, argv);
    WaylandLayersTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "WaylandLayersTest.moc"
