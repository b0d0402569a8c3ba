// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/CalmStyle.h"
#include "tests/support/Rows.h"
#include "ui/Style/Palettes.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QStyleOptionSlider>
#include <QToolButton>

#include <functional>

using namespace tessaly;

/// States that look alike are the fault that a style can have.
class CalmStyleTest : public QObject {
    Q_OBJECT

    using Maker = std::function<QWidget *()>;

    /// The control in a window with another one, with the keyboard's focus on one of the two.
    static QImage picture(const Maker &maker, bool focused, const std::function<void(QWidget *)> &change = {})
    {
        QWidget window;
        QWidget *control = maker();
        auto *other = new QLineEdit(&window);
        control->setParent(&window);
        control->setFocusPolicy(Qt::StrongFocus);
        control->setGeometry(0, 40, 120, 32);
        if (change)
            change(control);
        window.show();
        window.activateWindow();
        window.setAttribute(Qt::WA_KeyboardFocusChange);
        (focused ? control : other)->setFocus(Qt::TabFocusReason);
        if (!QTest::qWaitForWindowActive(&window))
            return {};
        return control->grab().toImage();
    }

    template <class Control>
    static Maker maker()
    {
        return [] { return new Control; };
    }

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setStyle(new CalmStyle);
        QApplication::setPalette(Palettes::light());
    }

    void showsItsState_data()
    {
        test::columns<Maker, bool>("make", "dark");
        for (const bool dark : { false, true }) {
            const char *name = dark ? "dark" : "light";
            QTest::addRow("tool button, %s", name) << maker<QToolButton>() << dark;
            QTest::addRow("push button, %s", name) << maker<QPushButton>() << dark;
            QTest::addRow("check box, %s", name) << maker<QCheckBox>() << dark;
            QTest::addRow("combo box, %s", name) << maker<QComboBox>() << dark;
            QTest::addRow("spin box, %s", name) << maker<QSpinBox>() << dark;
            QTest::addRow("line edit, %s", name) << maker<QLineEdit>() << dark;
            QTest::addRow("slider, %s", name) << maker<QSlider>() << dark;
        }
    }

    void showsItsState()
    {
        QFETCH(Maker, make);
        QFETCH(bool, dark);
        QApplication::setPalette(dark ? Palettes::dark() : Palettes::light());
        const QImage usual = picture(make, false);
        QVERIFY(!usual.isNull());
        QVERIFY2(picture(make, true) != usual, "the keyboard's focus cannot be seen");
        const bool flat = qobject_cast<QToolButton *>(std::unique_ptr<QWidget>(make()).get());
        QVERIFY2(flat || picture(make, false, [](QWidget *each) { each->setEnabled(false); }) != usual,
            "looks as if it could be used");
        const auto switchOn = [](QWidget *each) {
            if (auto *button = qobject_cast<QAbstractButton *>(each)) {
                button->setCheckable(true);
                button->setChecked(true);
            }
        };
        const bool isButton = qobject_cast<QAbstractButton *>(std::unique_ptr<QWidget>(make()).get());
        QVERIFY2(!isButton || picture(make, false, switchOn) != usual, "on looks like off");
    }

    /// The thumb must reach both ends, and never be too short to be held.
    void placesTheThumbOfAScrollBar_data()
    {
        test::columns<int, int, QRect>("value", "page", "thumb");
        test::row("at the start", 0, 100, QRect(0, 0, 100, 12));
        test::row("at the end", 100, 100, QRect(100, 0, 100, 12));
        test::row("a page of one in a hundred", 0, 1, QRect(0, 0, 32, 12));
        test::row("at the end with a short thumb", 100, 1, QRect(168, 0, 32, 12));
    }

    void placesTheThumbOfAScrollBar()
    {
        QFETCH(int, value);
        QFETCH(int, page);
        QScrollBar bar(Qt::Horizontal);
        bar.resize(200, 12);
        bar.setRange(0, 100);
        bar.setPageStep(page);
        bar.setValue(value);
        QStyleOptionSlider option;
        option.initFrom(&bar);
        option.orientation = Qt::Horizontal;
        option.maximum = 100;
        option.pageStep = page;
        option.sliderPosition = value;
        const QRect thumb
            = bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar);
        QTEST(thumb, "thumb");
    }

    /// As a menu it would cover the screen.
    void aLongListScrollsBelowItsBox()
    {
        QComboBox box;
        QStyleOptionComboBox option;
        const auto isMenu = [&] { return box.style()->styleHint(QStyle::SH_ComboBox_Popup, &option, &box) != 0; };
        for (int index = 0; index < box.maxVisibleItems(); ++index)
            box.addItem(QString::number(index));
        QVERIFY(isMenu());
        box.addItem(QStringLiteral("one more"));
        QVERIFY(!isMenu());
    }
    /// Fusion makes icons of pixmaps and pixmaps of icons, each through the style that stands before it.
    void everyStandardIconCanBeAskedFor()
    {
        const CalmStyle style;
        for (int standard = 0; standard <= int(QStyle::SP_LineEditClearButton); ++standard) {
            style.standardIcon(QStyle::StandardPixmap(standard));
            style.standardPixmap(QStyle::StandardPixmap(standard));
        }
        QVERIFY(!style.standardIcon(QStyle::SP_LineEditClearButton).isNull());
    }
};

QTEST_MAIN(CalmStyleTest)
#include "CalmStyleTest.moc"
