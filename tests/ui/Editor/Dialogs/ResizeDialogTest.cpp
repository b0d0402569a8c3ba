// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Dialogs/ResizeDialog.h"
#include "tests/support/Rows.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSpinBox>

using namespace tessaly;

class ResizeDialogTest : public QObject {
    Q_OBJECT

    template <class Widget>
    static Widget &part(ResizeDialog &dialog, const char *name)
    {
        return *dialog.findChild<Widget *>(QLatin1StringView(name));
    }

private Q_SLOTS:
    void percentagesAreCutAndNeverNothing_data()
    {
        test::columns<QSize, int, QSize>("original", "percent", "expected");
        test::row("half of 3 x 3", QSize(3, 3), 50, QSize(1, 1));
        test::row("a quarter of 3 x 3", QSize(3, 3), 25, QSize(1, 1));
        test::row("cut, not rounded", QSize(199, 101), 75, QSize(149, 75));
        test::row("double", QSize(199, 101), 200, QSize(398, 202));
        test::row("beyond 32 bits", QSize(30'000'000, 1), 150, QSize(45'000'000, 1));
    }

    void percentagesAreCutAndNeverNothing()
    {
        QFETCH(QSize, original);
        QFETCH(int, percent);
        QTEST(resizedByPercentage(original, percent), "expected");
    }

    void oneFieldSetsTheOther_data()
    {
        test::columns<bool, QString, int, QSize>("locked", "field", "value", "expected");
        test::row("width", true, QStringLiteral("width"), 500, QSize(500, 333));
        test::row("height", true, QStringLiteral("height"), 333, QSize(500, 333));
        test::row("height, rounded up", true, QStringLiteral("height"), 335, QSize(503, 335));
        test::row("free", false, QStringLiteral("width"), 500, QSize(500, 666));
    }

    void oneFieldSetsTheOther()
    {
        QFETCH(bool, locked);
        QFETCH(QString, field);
        QFETCH(int, value);
        ResizeDialog dialog({ 1000, 666 });
        part<QCheckBox>(dialog, "lockRatio").setChecked(locked);
        dialog.findChild<QSpinBox *>(field)->setValue(value);
        QTEST(dialog.pixelSize(), "expected");
    }

    void onlyAnotherSizeCanBeApplied()
    {
        ResizeDialog dialog({ 100, 50 });
        auto &width = part<QSpinBox>(dialog, "width");
        auto &apply = part<QPushButton>(dialog, "apply");
        QVERIFY(!apply.isEnabled());
        width.setValue(101);
        QVERIFY(apply.isEnabled());
        width.setValue(0);
        QVERIFY(!apply.isEnabled());
        width.setValue(1); // the height would be a half, which rounds up
        QCOMPARE(dialog.pixelSize(), QSize(1, 1));
        QVERIFY(apply.isEnabled());
        width.setValue(100);
        QVERIFY(!apply.isEnabled());
    }

    void buttonsSetBothFields()
    {
        ResizeDialog dialog({ 101, 51 });
        QStringList sizes;
        for (auto *button : dialog.findChildren<QPushButton *>()) {
            if (!button->text().contains(u'%'))
                continue;
            button->click();
            sizes += QStringLiteral("%1x%2").arg(dialog.pixelSize().width()).arg(dialog.pixelSize().height());
        }
        QCOMPARE(sizes.join(u' '), QStringLiteral("25x12 50x25 75x38 151x76 202x102"));
    }
};

QTEST_MAIN(ResizeDialogTest)
#include "ResizeDialogTest.moc"
