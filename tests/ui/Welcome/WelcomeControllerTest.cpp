// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Welcome/WelcomeController.h"

#include "core/Preferences/Settings.h"
#include "tests/support/RecordingTarget.h"
#include "ui/Menu/Commands.h"
#include "ui/Welcome/HelpPage.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>

using namespace tessaly;
using namespace tessaly::test;

using Show = void (WelcomeController::*)();
Q_DECLARE_METATYPE(Show)

class WelcomeControllerTest : public QObject {
    Q_OBJECT

    struct Fixture {
        Settings settings { QString() };
        RecordingTarget program;
        bool hasTray = true;
        QString regionKey = QStringLiteral("Ctrl+Alt+4");
        WelcomeController welcome { { settings, program, [this] { return hasTray; }, [this] { return regionKey; } } };

        static QWidget *window()
        {
            for (QWidget *each : QApplication::topLevelWidgets()) {
                if (each->isVisible())
                    return each;
            }
            return nullptr;
        }

        static QString texts()
        {
            QString all;
            for (const QLabel *label : window()->findChildren<QLabel *>())
                all += label->text() + u'\n';
            return all;
        }
    };

private Q_SLOTS:
    void guideIsShownOnce_data()
    {
        QTest::addColumn<bool>("onLaunch");
        QTest::addColumn<bool>("didShow");
        QTest::addColumn<bool>("shown");
        QTest::newRow("first start") << true << false << true;
        QTest::newRow("second start") << true << true << false;
        QTest::newRow("not wanted") << false << false << false;
    }

    void guideIsShownOnce()
    {
        QFETCH(bool, onLaunch);
        QFETCH(bool, didShow);
        QFETCH(bool, shown);
        Fixture fixture;
        QVERIFY(fixture.settings.set(SettingKeys::showOnboardingOnLaunch, onLaunch));
        QVERIFY(fixture.settings.set(SettingKeys::didShowOnboarding, didShow));
        fixture.welcome.showGuideIfNeeded();
        QCOMPARE(fixture.welcome.isVisible(), shown);
        QCOMPARE(fixture.settings.value(SettingKeys::didShowOnboarding), didShow || shown);
    }

    void guideComesAgainWhenItIsAskedTo()
    {
        Fixture fixture;
        fixture.welcome.showGuide();
        auto *again = Fixture::window()->findChild<QCheckBox *>();
        QVERIFY(!again->isChecked());
        again->click();
        fixture.welcome.close();
        fixture.welcome.showGuideIfNeeded();
        QVERIFY(fixture.welcome.isVisible());
        again = Fixture::window()->findChild<QCheckBox *>();
        again->click();
        again->click();
        fixture.welcome.close();
        fixture.welcome.showGuideIfNeeded();
        QVERIFY(!fixture.welcome.isVisible());
    }

    void guideSaysWhatIsTrueHere_data()
    {
        QTest::addColumn<bool>("hasTray");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("says");
        QTest::newRow("tray") << true << "Ctrl+Alt+4"
                              << "icon in the tray";
        QTest::newRow("no tray") << false << "Ctrl+Alt+4"
                                 << "Ctrl+Q";
        QTest::newRow("a key") << true << "Ctrl+Alt+4"
                               << "Press these keys now";
        QTest::newRow("no key") << true << ""
                                << "tessaly capture region";
    }

    void guideSaysWhatIsTrueHere()
    {
        QFETCH(QString, says);
        Fixture fixture;
        QFETCH(bool, hasTray);
        QFETCH(QString, key);
        fixture.hasTray = hasTray;
        fixture.regionKey = key;
        fixture.welcome.showGuide();
        QVERIFY(Fixture::texts().contains(says));
    }

    void guideTakesARegionWhenItIsGone()
    {
        Fixture fixture;
        fixture.welcome.showGuide();
        const QSignalSpy closed(&fixture.welcome, &WelcomeController::closed);
        Fixture::window()->findChild<QPushButton *>("captureRegion")->click();
        QCOMPARE(fixture.program.performed, QList { CommandId::CaptureRegion });
        QVERIFY(!fixture.welcome.isVisible());
        QCOMPARE(closed.size(), 1);
    }

    void owesWhatsNewToWhoHadAnOlderVersion_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<bool>("owes");
        QTest::newRow("first start") << "" << false;
        QTest::newRow("older") << "0.0.9" << true;
        QTest::newRow("newer") << "999.0" << false;
    }

    void owesWhatsNewToWhoHadAnOlderVersion()
    {
        QFETCH(QString, before);
        Fixture fixture;
        QVERIFY(fixture.settings.set(SettingKeys::whatsNewVersion, before));
        fixture.welcome.noteLaunch();
        QTEST(fixture.welcome.owesWhatsNew(), "owes");
        fixture.welcome.showWhatsNew();
        QVERIFY(!fixture.welcome.owesWhatsNew());
        fixture.welcome.close();
        fixture.welcome.noteLaunch();
        QVERIFY(!fixture.welcome.owesWhatsNew());
    }

    void windowsGoWhenTheyAreClosed()
    {
        Fixture fixture;
        const QSignalSpy closed(&fixture.welcome, &WelcomeController::closed);
        fixture.welcome.showAbout();
        const QPointer<QWidget> about = Fixture::window();
        fixture.welcome.showAbout();
        QCOMPARE(Fixture::window(), about.data());
        QTest::keyClick(about, Qt::Key_Escape);
        QTRY_VERIFY(!about);
        QCOMPARE(closed.size(), 1);
        fixture.welcome.showHelp();
        fixture.welcome.close(); // not by the user
        QVERIFY(!fixture.welcome.isVisible());
        QCOMPARE(closed.size(), 1);
    }

    void nothingIsCut_data()
    {
        QTest::addColumn<Show>("show");
        QTest::newRow("guide") << &WelcomeController::showGuide;
        QTest::newRow("what is new") << &WelcomeController::showWhatsNew;
        QTest::newRow("about") << &WelcomeController::showAbout;
    }

    /// In a large font, every text has its height and nothing lies beside the window.
    void nothingIsCut()
    {
        QFETCH(Show, show);
        QFont font = QApplication::font();
        font.setPointSize(14);
        QApplication::setFont(font);
        Fixture fixture;
        (fixture.welcome.*show)();
        QWidget *window = Fixture::window();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        for (const QLabel *label : window->findChildren<QLabel *>()) {
            QVERIFY2(label->height() >= label->heightForWidth(label->width()), qPrintable(label->text()));
            QVERIFY(label->mapTo(window, label->rect().bottomRight()).x() < window->width());
        }
        for (const QPushButton *button : window->findChildren<QPushButton *>()) {
            QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
            QVERIFY(!button->toolTip().isEmpty());
        }
    }

    void helpKnowsEveryCommandAndLink()
    {
        Fixture fixture;
        fixture.welcome.showHelp();
        auto *page = Fixture::window()->findChild<QTextBrowser *>();
        const QString text = page->toPlainText();
        for (const CommandRow &row : commandTable())
            QVERIFY2(text.contains(commandTitle(row)), row.title);
        QVERIFY(!page->openExternalLinks());
        const QString html = helpPage();
        static const QRegularExpression links(QStringLiteral("href=\"([^\"]*)\""));
        int count = 0;
        for (auto match = links.globalMatch(html); match.hasNext(); ++count) {
            const QString target = match.next().captured(1);
            QVERIFY2(target.startsWith(u'#') && html.contains(QStringLiteral("name=\"%1\"").arg(target.mid(1))),
                qPrintable(target));
        }
        QVERIFY(count >= 6);
    }
};

QTEST_MAIN(WelcomeControllerTest)
#include "WelcomeControllerTest.moc"
