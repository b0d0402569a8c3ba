// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/SaveOptionsAccessory.h"

#include "core/Preferences/Settings.h"
#include "tests/support/Rows.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSlider>

using namespace tessaly;

/// The choices of the save panel, operated as a user does.
class SaveOptionsAccessoryTest : public QObject {
    Q_OBJECT

    struct Panel {
        explicit Panel(ExportFormat format, bool offersDocument = true) : options(format, offersDocument, settings)
        {
            options.onFormatChange = [this](ExportFormat chosen) { changes += chosen; };
        }
        template <class Control>
        Control &find(const char *name)
        {
            return *options.findChild<Control *>(name);
        }

        Settings settings { {} };
        SaveOptionsAccessory options;
        QList<ExportFormat> changes;
    };

private Q_SLOTS:
    void theFormatDecidesOnTheQuality_data()
    {
        test::columns<ExportFormat, bool, QString, bool>("format", "hasQuality", "percent", "namesLossless");
        test::row("JPEG", ExportFormat::Jpeg, true, "55%", false);
        test::row("WebP", ExportFormat::Webp, true, "90%", true);
        test::row("GIF", ExportFormat::Gif, false, "100%", false);
    }

    void theFormatDecidesOnTheQuality()
    {
        QFETCH(ExportFormat, format);
        Panel panel(ExportFormat::Png);
        QVERIFY(storeQuality(ExportFormat::Jpeg, 0.55, panel.settings));
        auto &formats = panel.find<QComboBox>("format");
        QCOMPARE(formats.count(), 7);
        QCOMPARE(formats.accessibleName(), "Format");
        formats.setCurrentIndex(formats.findText(label(format)));
        QCOMPARE(panel.options.format(), format);
        QCOMPARE(panel.changes, QList { format });
        QCOMPARE(panel.options.quality(), storedQuality(format, panel.settings));
        auto &slider = panel.find<QSlider>("quality");
        QTEST(slider.isVisibleTo(&panel.options), "hasQuality");
        QTEST(panel.find<QLabel>("percent").text(), "percent");
        QTEST(slider.toolTip().contains("100% is lossless."), "namesLossless");
    }

    void theSliderMovesInTwentieths()
    {
        Panel panel(ExportFormat::Jpeg);
        auto &slider = panel.find<QSlider>("quality");
        QCOMPARE(slider.maximum() - slider.minimum() + 1, 15);
        QCOMPARE(panel.options.quality(), 0.9);
        QTest::keyClick(&slider, Qt::Key_Left);
        QCOMPARE(panel.options.quality(), 0.85);
        QCOMPARE(panel.find<QLabel>("percent").text(), "85%");
        QTest::keyClick(&slider, Qt::Key_Home);
        QCOMPARE(panel.options.quality(), 0.3);
        QTest::keyClick(&slider, Qt::Key_End);
        QCOMPARE(panel.options.quality(), 1.0);
        QCOMPARE(storedQuality(ExportFormat::Jpeg, panel.settings), 0.9); // the panel may still be cancelled
    }

    void aStoredQualityBetweenTicksStaysUntilMoved()
    {
        Panel panel(ExportFormat::Png);
        QVERIFY(storeQuality(ExportFormat::Webp, 0.925, panel.settings));
        panel.options.setFormat(ExportFormat::Webp);
        QCOMPARE(panel.options.quality(), 0.925);
    }

    void theDocumentIsOfferedForEditableCaptures_data()
    {
        QTest::addColumn<bool>("offered");
        test::row("editable", true);
        test::row("plain image", false);
    }

    void theDocumentIsOfferedForEditableCaptures()
    {
        QFETCH(bool, offered);
        Panel panel(ExportFormat::Png, offered);
        auto &box = panel.find<QCheckBox>("document");
        QCOMPARE(box.isVisibleTo(&panel.options), offered);
        QVERIFY(!panel.options.alsoDocument());
        box.click();
        QCOMPARE(panel.options.alsoDocument(), offered);
        QVERIFY(panel.settings.value(SettingKeys::alsoSaveTessalyDocument));
    }

    void nothingIsCutWithALargeFont()
    {
        Panel panel(ExportFormat::Jpeg);
        QFont large = panel.options.font();
        large.setPointSize(14);
        QApplication::setFont(large);
        Panel enlarged(ExportFormat::Jpeg);
        enlarged.options.resize(enlarged.options.sizeHint());
        enlarged.options.show();
        for (const auto *each : enlarged.options.findChildren<QLabel *>())
            QVERIFY2(each->width() >= each->sizeHint().width(), qPrintable(each->text()));
    }
};

QTEST_MAIN(SaveOptionsAccessoryTest)
#include "SaveOptionsAccessoryTest.moc"
