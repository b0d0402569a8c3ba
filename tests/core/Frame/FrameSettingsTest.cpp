// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Frame/FrameSettings.h"

#include "core/Preferences/Settings.h"
#include "tests/support/Rows.h"

#include <QBuffer>
#include <QImage>
#include <QTemporaryDir>

using namespace tessaly;

/// What a new capture opens with, and the logo's own copy.
class FrameSettingsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    static QByteArray picture(const char *format)
    {
        QImage image(5, 3, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        image.save(&buffer, format);
        return bytes;
    }

private Q_SLOTS:
    void opensNewCapturesAsRemembered_data()
    {
        test::columns<bool, bool, QString, bool, bool>("always", "on", "text", "hasFrame", "hasWatermark");
        test::row("as wanted", true, true, "©", true, true);
        test::row("not on every capture", false, true, "©", false, false);
        test::row("switched off", true, false, "©", false, false);
        test::row("a watermark that cannot be seen", true, true, "  ", true, false);
    }

    void opensNewCapturesAsRemembered()
    {
        QFETCH(bool, always);
        QFETCH(bool, on);
        QFETCH(QString, text);
        Settings settings { QString() };
        FrameSettings frames(settings, m_folder.filePath(QStringLiteral("none")));
        const FrameStyle frame { .padding = 0.25 };
        const Watermark watermark { .text = text, .position = WatermarkPosition::Tile };
        QVERIFY(settings.set(SettingKeys::frameApplyAlways, always));
        QVERIFY(frames.remember(frame));
        QVERIFY(frames.remember(watermark));
        if (!on) {
            QVERIFY(frames.remember(std::optional<FrameStyle>()));
            QVERIFY(frames.remember(std::optional<Watermark>()));
        }
        const auto opened = frames.forNewCapture();
        QTEST(opened.frame.has_value(), "hasFrame");
        QTEST(opened.watermark.has_value(), "hasWatermark");
        QVERIFY(!opened.frame || *opened.frame == frame);
        QVERIFY(!opened.watermark || *opened.watermark == watermark);
        QCOMPARE(frames.rememberedFrame(), frame); // also while it is off
        QCOMPARE(frames.rememberedWatermark(), watermark);
    }

    void fallsBackToNewOnes_data()
    {
        QTest::addColumn<QByteArray>("stored");
        test::row("nothing", QByteArray());
        test::row("not JSON", QByteArray("{"));
        test::row("a list", QByteArray("[1]"));
        QTest::newRow("ill-typed") << QByteArray(R"({"padding":"x","opacity":"y"})");
    }

    void fallsBackToNewOnes()
    {
        QFETCH(QByteArray, stored);
        Settings settings { QString() };
        if (!stored.isNull()) {
            QVERIFY(settings.set(SettingKeys::frameStyle, stored));
            QVERIFY(settings.set(SettingKeys::watermarkStyle, stored));
        }
        const FrameSettings frames(settings, m_folder.path());
        QCOMPARE(frames.rememberedFrame(), FrameStyle());
        QCOMPARE(frames.rememberedWatermark(), Watermark());
    }

    void keepsItsOwnCopyOfTheLogo()
    {
        Settings settings { QString() };
        FrameSettings frames(settings, m_folder.filePath(QStringLiteral("data")));
        Watermark watermark { .kind = WatermarkKind::Image, .imageData = "bytes of another logo" };
        QVERIFY(frames.remember(watermark));
        QCOMPARE(frames.rememberedWatermark().imageData, watermark.imageData); // no file yet: the settings hold it

        const auto png = frames.importLogo(picture("BMP"));
        QVERIFY(png);
        QVERIFY(png->startsWith("\x89PNG"));
        QCOMPARE(QImage::fromData(*png).pixelColor(2, 2), QColor(Qt::blue));
        QFile file(m_folder.filePath(QStringLiteral("data/Watermark/logo.png")));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), *png);

        watermark.imageData = *png;
        QVERIFY(frames.remember(watermark));
        QCOMPARE(frames.rememberedWatermark(), watermark);
        QVERIFY(!settings.value(SettingKeys::watermarkStyle)->contains("imageData"));
    }

    void refusesWhatIsNoPicture()
    {
        Settings settings { QString() };
        FrameSettings frames(settings, m_folder.filePath(QStringLiteral("data")));
        const auto png = frames.importLogo(picture("PNG"));
        QVERIFY(png);
        const QString sentence = QStringLiteral("Couldn't use this image as a watermark");
        const auto damaged = frames.importLogo(QByteArray("<svg"));
        QVERIFY(!damaged);
        QCOMPARE(damaged.failure().message, sentence);
        const auto missing = frames.importLogo(m_folder.filePath(QStringLiteral("none.png")));
        QVERIFY(!missing);
        QCOMPARE(missing.failure().message, sentence);
        QCOMPARE(QImage(frames.logoPath()).size(), QSize(5, 3)); // the logo before still stands
    }
};

QTEST_GUILESS_MAIN(FrameSettingsTest)
#include "FrameSettingsTest.moc"
