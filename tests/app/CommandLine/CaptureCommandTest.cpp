// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/CommandLine.h"

#include <QTemporaryDir>
#include <QTest>

using namespace tessaly;

namespace {

/// Two displays, told apart by size and colour.
class TwoDisplays final : public ScreenSource {
public:
    Result<QList<tessaly::Display>> displays() override
    {
        return QList<tessaly::Display> { { "left", { 0, 0, 64, 40 }, 2, true },
            { "right", { 64, 0, 30, 20 }, 1, false } };
    }

    Result<RasterImage> capture(const QRect &pixelRect, double scale) override
    {
        QImage image(pixelRect.size(), QImage::Format_RGB32);
        image.fill(pixelRect.x() == 0 ? Qt::red : Qt::blue);
        return RasterImage::fromPixels(image, scale);
    }
};

} // namespace

class CaptureCommandTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    static int run(const QStringList &arguments)
    {
        QByteArrayList texts { "tessaly", "capture", "full-screen" };
        for (const QString &argument : arguments)
            texts += argument.toLocal8Bit();
        QList<char *> pointers;
        for (QByteArray &text : texts)
            pointers += text.data();
        using Source = std::unique_ptr<ScreenSource>;
        const CommandEnvironment environment { [] { return Result<Source>(std::make_unique<TwoDisplays>()); } };
        return runCommandLine(static_cast<int>(pointers.size()), pointers.data(), environment);
    }

private Q_SLOTS:
    void aDisplayIsWritten_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("dpi");
        QTest::newRow("the primary one") << QStringList() << "a.png" << QSize(64, 40) << 144.0;
        QTest::newRow("the second") << QStringList { "--display", "2" } << "b.png" << QSize(30, 20) << 72.0;
        QTest::newRow("another format") << QStringList { "--display", "1" } << "c.bmp" << QSize(64, 40) << 0.0;
        QTest::newRow("no format") << QStringList() << "d" << QSize(64, 40) << 144.0;
    }

    void aDisplayIsWritten()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, name);
        QFETCH(double, dpi);
        const QString path = m_folder.filePath(name);
        QCOMPARE(run(QStringList { "-o", path } + options), 0);
        const QImage written(path);
        QTEST(written.size(), "size");
        QCOMPARE(written.pixelColor(0, 0), QColor(written.width() == 64 ? Qt::red : Qt::blue));
        if (dpi > 72)
            QCOMPARE(qRound(written.dotsPerMeterX() * 0.0254), qRound(dpi));
    }

    void whatCannotBeCaptured_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::newRow("no third display") << QStringList { "-o", "x.png", "--display", "3" };
        QTest::newRow("no folder") << QStringList { "-o", "nowhere/x.png" };
        QTest::newRow("a folder") << QStringList { "-o", "/tmp" };
    }

    void whatCannotBeCaptured()
    {
        QFETCH(QStringList, options);
        QDir::setCurrent(m_folder.path());
        QCOMPARE(run(options), 1);
        QVERIFY(!QFile::exists("x.png"));
    }
};

QTEST_GUILESS_MAIN(CaptureCommandTest)
#include "CaptureCommandTest.moc"
