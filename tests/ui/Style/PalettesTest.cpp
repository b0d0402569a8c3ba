// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/Palettes.h"
#include "core/Preferences/Settings.h"
#include "tests/support/Rows.h"
#include "ui/Style/Appearance.h"

#include <QApplication>
#include <QSignalSpy>

#include <cmath>

using namespace tessaly;

/// Measures what is legible, after the contrast formula of WCAG 2.1, and follows the setting.
class PalettesTest : public QObject {
    Q_OBJECT

    static double luminance(QColor color)
    {
        const auto linear
            = [](double part) { return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    }

    static double contrast(QColor one, QColor other)
    {
        const auto [darker, lighter] = std::minmax({ luminance(one), luminance(other) });
        return (lighter + 0.05) / (darker + 0.05);
    }

    struct Pair {
        const char *name;
        QColor ink;
        QColor ground;
        double least;
    };

    static QList<Pair> pairsOf(const QPalette &palette)
    {
        QApplication::setPalette(palette);
        const auto of = [&](QPalette::ColorRole role) { return palette.color(QPalette::Active, role); };
        const auto disabled = [&](QPalette::ColorRole role) { return palette.color(QPalette::Disabled, role); };
        return {
            { "text on windows", of(QPalette::WindowText), of(QPalette::Window), 4.5 },
            { "text in fields", of(QPalette::Text), of(QPalette::Base), 4.5 },
            { "text in every other row", of(QPalette::Text), of(QPalette::AlternateBase), 4.5 },
            { "text on buttons", of(QPalette::ButtonText), of(QPalette::Button), 4.5 },
            { "placeholder", of(QPalette::PlaceholderText), of(QPalette::Base), 4.5 },
            { "chosen text", of(QPalette::HighlightedText), of(QPalette::Highlight), 4.5 },
            { "tooltip", of(QPalette::ToolTipText), of(QPalette::ToolTipBase), 4.5 },
            { "link", of(QPalette::Link), of(QPalette::Window), 4.5 },
            { "visited link", of(QPalette::LinkVisited), of(QPalette::Window), 4.5 },
            { "quiet text on windows", Colors::quietText(), of(QPalette::Window), 4.5 },
            { "quiet text in fields", Colors::quietText(), of(QPalette::Base), 4.5 },
            { "focus ring and switched-on icon", Colors::accent(), of(QPalette::Window), 3 },
            { "accent beside the capture", Colors::accent(), Colors::canvasSurround(), 3 },
            { "disabled text", disabled(QPalette::WindowText), disabled(QPalette::Window), 2 },
        };
    }

private Q_SLOTS:
    void isLegible_data()
    {
        test::columns<QColor, QColor, double>("ink", "ground", "least");
        for (const bool dark : { false, true }) {
            for (const Pair &pair : pairsOf(dark ? Palettes::dark() : Palettes::light()))
                QTest::addRow("%s, %s", dark ? "dark" : "light", pair.name) << pair.ink << pair.ground << pair.least;
        }
    }

    void isLegible()
    {
        QFETCH(QColor, ink);
        QFETCH(QColor, ground);
        QFETCH(double, least);
        const double measured = contrast(ink, ground);
        QVERIFY2(measured >= least, qPrintable(QString::number(measured)));
    }

    void followsTheSetting_data()
    {
        test::columns<QString, bool, bool>("setting", "platformIsDark", "dark");
        test::row("light on a dark platform", "light", true, false);
        test::row("dark on a light platform", "dark", false, true);
        test::row("the platform's light", "system", false, false);
        test::row("the platform's dark", "system", true, true);
        test::row("an unknown word is the platform's", "sepia", true, true);
    }

    void followsTheSetting()
    {
        QFETCH(QString, setting);
        QFETCH(bool, platformIsDark);
        QFETCH(bool, dark);
        QApplication::setPalette(platformIsDark ? Palettes::dark() : Palettes::light());
        Settings settings { QString() };
        QVERIFY(settings.set(SettingKeys::appearance, setting));
        const Appearance appearance(settings);
        QCOMPARE(appearance.isDark(), dark);
        QCOMPARE(Palettes::isDark(QApplication::palette()), dark);
    }

    void changesAtOnceAndGoesBackToThePlatform()
    {
        QApplication::setPalette(Palettes::light());
        Settings settings { QString() };
        Appearance appearance(settings);
        QSignalSpy changes(&appearance, &Appearance::changed);
        for (const auto &[word, dark] : { std::pair(u"dark", true), std::pair(u"system", false) }) {
            QVERIFY(settings.set(SettingKeys::appearance, QString::fromUtf16(word)));
            appearance.refresh();
            QCOMPARE(Palettes::isDark(QApplication::palette()), dark);
        }
        appearance.refresh();
        QCOMPARE(changes.size(), 2);
    }
};

QTEST_MAIN(PalettesTest)
#include "PalettesTest.moc"
