// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/RequestReading.h"

#include <QTest>

using namespace tessaly;

class RequestReadingTest : public QObject {
    Q_OBJECT

    const QList<tessaly::Display> m_displays { { "left", { 0, 0, 64, 40 }, { 64, 40 }, 2, true },
        { "right", { 64, 0, 30, 20 }, { 30, 20 }, 1, false } };

    Result<CaptureRequest> read(const QString &subject, const QStringList &options) const
    {
        return RequestReading::read(subject, RequestReading::optionsFrom(options), m_displays);
    }

private Q_SLOTS:
    void takesEverythingOver()
    {
        const auto area = read("region", { "rect=1.5,2,30,40", "display=2", "to=clipboard", "delay=3" });
        QVERIFY(area);
        QCOMPARE(area->rect, QRectF(1.5, 2, 30, 40));
        QCOMPARE(area->display, m_displays[1].id());
        QCOMPARE(area->sink, CaptureSink::Clipboard);
        QCOMPARE(area->delaySeconds, 3);
        const auto file = read("front-window", { "output=/a=b/c.png" });
        QVERIFY(file);
        QCOMPARE(file->subject, CaptureSubject::FrontWindow);
        QCOMPARE(file->sink, CaptureSink::File);
        QCOMPARE(file->outputPath, QString("/a=b/c.png"));
        QCOMPARE(read("window", { "window=4294967301" })->window, quint64(4294967301));
        const auto plain = read("last-region", {});
        QVERIFY(plain && !plain->delaySeconds && !plain->display && !plain->rect && !plain->window);
        QCOMPARE(plain->sink, CaptureSink::Editor);
    }

    void numbersMayBeNumbers()
    {
        const auto request = RequestReading::read("full-screen", { { "delay", 2u }, { "display", 1 } }, m_displays);
        QVERIFY(request);
        QCOMPARE(request->delaySeconds, 2);
        QCOMPARE(request->display, m_displays[0].id());
    }

    void whatCannotBeMeantIsRefused_data()
    {
        QTest::addColumn<QString>("subject");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("fragment");
        const auto row = [](const char *name, const QString &subject, const QString &option, const QString &fragment) {
            QTest::newRow(name) << subject << option.split(u' ') << fragment;
        };
        row("subject", "moon", "to=file", "moon");
        row("option", "region", "loud=1", "loud");
        row("place", "region", "to=moon", "moon");
        row("path of nowhere", "region", "output=a.png", "a.png");
        row("file and clipboard", "region", "output=/a.png to=clipboard", "clipboard");
        row("delay below nothing", "region", "delay=-1", "-1");
        row("delay for ever", "region", "delay=4000", "4000");
        row("delay no number", "region", "delay=soon", "soon");
        row("display too many", "full-screen", "display=3", "3");
        row("display none", "full-screen", "display=0", "0");
        row("three numbers", "region", "rect=1,2,3", "1,2,3");
        row("no height", "region", "rect=1,2,3,0", "1,2,3,0");
        row("area of a window", "window", "rect=1,2,3,4", "rect");
        row("window of a region", "region", "window=4", "window");
    }

    void whatCannotBeMeantIsRefused()
    {
        QFETCH(QString, subject);
        QFETCH(QStringList, options);
        QFETCH(QString, fragment);
        const auto request = read(subject, options);
        QVERIFY(!request);
        QVERIFY2(request.failure().message.contains(fragment), qPrintable(request.failure().message));
    }
};

QTEST_GUILESS_MAIN(RequestReadingTest)
#include "RequestReadingTest.moc"
