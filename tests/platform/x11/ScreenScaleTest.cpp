// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11ScreenSource.h"
#include "tests/support/Patience.h"
#include "tests/support/VirtualScreen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

#include <cstdio>

using namespace tessaly;
using tessaly::test::VirtualScreen;

/// What Qt itself takes the monitors for is the reference: a program of its own, as Qt reads the environment once.
class ScreenScaleTest : public QObject {
    Q_OBJECT

    VirtualScreen m_screen { QStringLiteral("1600x900x24") };

private Q_SLOTS:
    void initTestCase()
    {
        const auto monitor = [&](const char *name, const char *place, const char *output) {
            return m_screen.run(QStringLiteral("xrandr"),
                { QStringLiteral("--setmonitor"), QLatin1StringView(name), QLatin1StringView(place),
                    QLatin1StringView(output) });
        };
        QCOMPARE(monitor("LEFT", "800/100x900/100+0+0", "screen"), 0);
        QCOMPARE(monitor("*RIGHT", "800/100x900/100+800+0", "none"), 0);
    }

    void agreesWithQt_data()
    {
        QTest::addColumn<QByteArray>("dpi");
        QTest::addColumn<QByteArrayList>("environment");
        const QByteArrayList none;
        QTest::newRow("nothing set") << QByteArray() << none;
        QTest::newRow("by place, the primary one first")
            << QByteArray() << QByteArrayList { "QT_SCREEN_SCALE_FACTORS=1.5;2" };
        QTest::newRow("by name") << QByteArray("96") << QByteArrayList { "QT_SCREEN_SCALE_FACTORS=LEFT=1;RIGHT=2" };
        QTest::newRow("one by name") << QByteArray("120") << QByteArrayList { "QT_SCREEN_SCALE_FACTORS=LEFT=2;DP-9=3" };
        QTest::newRow("broken parts") << QByteArray() << QByteArrayList { "QT_SCREEN_SCALE_FACTORS=x;2;-1;3;;4" };
        QTest::newRow("below one") << QByteArray() << QByteArrayList { "QT_SCREEN_SCALE_FACTORS=0.5" };
        QTest::newRow("nothing but ones") << QByteArray("144") << QByteArrayList { "QT_SCREEN_SCALE_FACTORS=1;1" };
        QTest::newRow("on top of each other")
            << QByteArray("144") << QByteArrayList { "QT_SCREEN_SCALE_FACTORS=LEFT=2", "QT_SCALE_FACTOR=1.5" };
        QTest::newRow("a resolution of no whole scale") << QByteArray("100") << none;
        QTest::newRow("of no whole number") << QByteArray("120.5") << none;
        QTest::newRow("below that of scale one") << QByteArray("72") << none;
        QTest::newRow("no number") << QByteArray("abc") << none;
        QTest::newRow("the person's own resolution") << QByteArray("192") << QByteArrayList { "QT_FONT_DPI=120" };
        QTest::newRow("resolution left aside") << QByteArray("192") << QByteArrayList { "QT_ENABLE_HIGHDPI_SCALING=0" };
    }

    void agreesWithQt()
    {
        QFETCH(QByteArray, dpi);
        QFETCH(QByteArrayList, environment);
        const QString resources = QStringLiteral("printf 'Xft.dpi:\\t%1\\n' | xrdb -load -nocpp");
        QCOMPARE(
            m_screen.run(QStringLiteral("sh"), { QStringLiteral("-c"), resources.arg(QString::fromLatin1(dpi)) }), 0);
        for (const char *name :
            { "QT_SCREEN_SCALE_FACTORS", "QT_SCALE_FACTOR", "QT_FONT_DPI", "QT_ENABLE_HIGHDPI_SCALING" })
            qunsetenv(name);
        for (const QByteArray &variable : environment) {
            const qsizetype equals = variable.indexOf('=');
            qputenv(variable.left(equals).constData(), variable.mid(equals + 1));
        }
        auto source = X11ScreenSource::create(CaptureUse::Once, m_screen.displayName());
        QVERIFY(source);
        const auto displays = (*source)->displays();
        QVERIFY(displays);
        QByteArray ours;
        for (const auto &display : *displays)
            ours += display.name.toUtf8() + ' ' + QByteArray::number(display.scale, 'f', 4) + '\n';

        QProcess qt;
        qputenv("DISPLAY", m_screen.displayName().toLocal8Bit());
        qt.start(QCoreApplication::applicationFilePath(),
            { QStringLiteral("--scales-of-qt"), QStringLiteral("-platform"), QStringLiteral("xcb") });
        QVERIFY(qt.waitForFinished(test::patience));
        QCOMPARE(ours, qt.readAllStandardOutput());
    }
};

static int printScalesOfQt(int argc, char **argv)
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const QGuiApplication application(argc, argv);
    for (const QScreen *screen : QGuiApplication::screens())
        std::printf("%s %.4f\n", qPrintable(screen->name()), screen->devicePixelRatio());
    return 0;
}

int main(int argc, char **argv)
{
    if (argc > 1 && QByteArray(argv[1]) == "--scales-of-qt")
        return printScalesOfQt(argc, argv);
    QCoreApplication application(argc, argv);
    ScreenScaleTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ScreenScaleTest.moc"
