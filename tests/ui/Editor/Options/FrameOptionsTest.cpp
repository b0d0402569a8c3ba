// SPDX-License-Identifier: GPL-3.0-or-later
#include "OptionsFixture.h"
#include "tests/support/SampleMarks.h"
#include "ui/Editor/Options/ColorSwatches.h"
#include "ui/Editor/Options/WatermarkOptions.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

using namespace tessaly;
using namespace tessaly::test;

class FrameOptionsTest : public QObject {
    Q_OBJECT

    struct Fixture : OptionsFixture {
        Fixture() { store.activate(Tool::Frame); }
        SwatchButton *swatch(const QString &name)
        {
            const auto swatches = control("frameBackground").findChildren<SwatchButton *>();
            const auto found = std::ranges::find(swatches, name, &QWidget::accessibleName);
            return found == swatches.end() ? nullptr : *found;
        }
    };

private Q_SLOTS:
    void swatchesSetTheBackground_data()
    {
        QTest::addColumn<QString>("swatch");
        QTest::addColumn<FrameStyle>("expected");
        QTest::newRow("gradient") << QStringLiteral(
            "Ocean") << FrameStyle { .gradientColors = { QStringLiteral("#2E7DF6"), QStringLiteral("#30C8D6") } };
        QTest::newRow("solid") << QStringLiteral("Solid #1C1C1E")
                               << FrameStyle { .background = FrameBackgroundKind::Solid,
                                      .solidHex = QStringLiteral("#1C1C1E") };
        QTest::newRow("transparent") << QStringLiteral("Transparent")
                                     << FrameStyle { .background = FrameBackgroundKind::Transparent };
    }

    void swatchesSetTheBackground()
    {
        QFETCH(QString, swatch);
        QFETCH(FrameStyle, expected);
        Fixture fixture;
        fixture.control<QCheckBox>("frameOn").click();
        QCOMPARE(fixture.store.frame(), FrameStyle {});
        fixture.swatch(swatch)->click();
        QCOMPARE(fixture.store.frame(), expected);
        QVERIFY(fixture.swatch(swatch)->isChecked());
        QCOMPARE(fixture.frameSettings.rememberedFrame(), expected);

        fixture.control<QCheckBox>("frameOn").click(); // off: remembered all the same
        QCOMPARE(fixture.store.frame(), std::nullopt);
        QCOMPARE(fixture.frameSettings.rememberedFrame(), expected);
        for (int step = 0; step < 3; ++step)
            fixture.store.undo();
        QCOMPARE(fixture.store.frame(), std::nullopt);
        QVERIFY(!fixture.store.canUndo());
        QVERIFY(!fixture.control<QCheckBox>("frameOn").isChecked());
    }

    void aDragIsOneStepAndRememberedAtItsEnd()
    {
        Fixture fixture;
        fixture.control<QCheckBox>("frameOn").click();
        QSlider &padding = fixture.slider("framePadding");
        padding.setSliderDown(true);
        for (const int tick : { 10, 20, 25 })
            padding.setValue(tick);
        QCOMPARE(fixture.frameSettings.rememberedFrame().padding, FrameStyle {}.padding);
        padding.setSliderDown(false);
        QCOMPARE(fixture.store.frame()->padding, 0.25);
        QCOMPARE(fixture.frameSettings.rememberedFrame().padding, 0.25);
        fixture.store.undo();
        QCOMPARE(fixture.store.frame(), FrameStyle {});
    }

    void newCapturesGetThemOnlyWhenAsked()
    {
        Fixture fixture;
        fixture.control<QCheckBox>("frameOn").click();
        QCOMPARE(fixture.frameSettings.forNewCapture().frame, std::nullopt);
        fixture.control<QCheckBox>("frameApplyAlways").click();
        QCOMPARE(fixture.frameSettings.forNewCapture().frame, FrameStyle {});
        QVERIFY(fixture.control<QCheckBox>("frameApplyAlways")
                    .toolTip()
                    .startsWith(u"New captures open with this frame and watermark."));
    }

    void theWatermarkIsSetPieceByPiece()
    {
        Fixture fixture;
        fixture.control<QCheckBox>("watermarkOn").click();
        QVERIFY(!fixture.store.hasPresentation()); // nothing to see yet
        QVERIFY(!fixture.control("watermarkTextMissing").isHidden()); // which is said
        QTest::keyClicks(&fixture.control<QLineEdit>("watermarkText"), QStringLiteral("© me"));
        QVERIFY(fixture.store.hasPresentation());
        QVERIFY(fixture.control("watermarkTextMissing").isHidden());
        const auto cells = fixture.control("watermarkPosition").findChildren<QToolButton *>();
        cells.at(int(WatermarkPosition::TopLeft))->click();
        Q_EMIT fixture.control<ColorSwatches>("watermarkColor").picked(QStringLiteral("#1C1C1E"));
        fixture.slider("watermarkOpacity").setValue(0);
        const Watermark expected { .text = QStringLiteral("© me"),
            .colorHex = QStringLiteral("#1C1C1E"),
            .position = WatermarkPosition::TopLeft,
            .opacity = 0.05 };
        QCOMPARE(fixture.store.watermark(), expected);
        QCOMPARE(fixture.frameSettings.rememberedWatermark(), expected);
    }

    void aLogoIsCopiedOrRefused()
    {
        Fixture fixture;
        WatermarkOptions options(fixture.store, fixture.frameSettings, fixture.alerts);
        const auto file = [&](const char *name, const QByteArray &bytes) {
            QFile target(fixture.folder.filePath(QLatin1StringView(name)));
            return target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size() ? target.fileName()
                                                                                            : QString();
        };
        options.useLogo(file("note.png", "no picture"));
        QCOMPARE(fixture.alerts.shown, QStringList { QStringLiteral("Couldn't use this image as a watermark") });
        QCOMPARE(fixture.store.watermark(), std::nullopt);
        options.useLogo(file("logo.png", samplePng()));
        QCOMPARE(fixture.alerts.shown.size(), 1);
        QCOMPARE(fixture.store.watermark()->kind, WatermarkKind::Image);
        QVERIFY(fixture.store.watermark()->isVisible());
        QVERIFY(QFile::exists(fixture.frameSettings.logoPath()));
    }
};

QTEST_MAIN(FrameOptionsTest)
#include "FrameOptionsTest.moc"
