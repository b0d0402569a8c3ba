// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/Rows.h"
#include "tests/ui/Preferences/PreferencesFixture.h"
#include "ui/Preferences/ColorButton.h"
#include "ui/Preferences/NumberSlider.h"
#include "ui/Preferences/PreferenceRows.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QSlider>
#include <QStackedWidget>
#include <QTabBar>
#include <QTimer>
#include <QWheelEvent>

using namespace tessaly;
using namespace tessaly::test;

class PreferencesWindowTest : public QObject {
    Q_OBJECT

    std::unique_ptr<PreferencesFixture> m_with;

    QJsonValue valueOf(const QString &key) const
    {
        return SettingTable::value(m_with->settings, *SettingTable::find(key));
    }
    /// What the control of a key shows, as its setting stores it.
    QJsonValue shownBy(const QString &key) const
    {
        QWidget *control = m_with->find<QWidget>(key);
        if (const auto *box = qobject_cast<QCheckBox *>(control))
            return box->isChecked();
        if (const auto *choice = qobject_cast<QComboBox *>(control))
            return QJsonValue::fromVariant(choice->currentData());
        if (const auto *color = qobject_cast<ColorButton *>(control))
            return color->text();
        QSlider &slider = qobject_cast<NumberSlider *>(control)->slider();
        return key.endsWith(u"Quality") ? slider.value() / 100.0 : double(slider.value());
    }
    /// Changes the control as a user does.
    void operate(const QString &key) const
    {
        QWidget *control = m_with->find<QWidget>(key);
        if (auto *box = qobject_cast<QCheckBox *>(control)) {
            box->click();
        } else if (auto *choice = qobject_cast<QComboBox *>(control)) {
            QTest::keyClick(choice, choice->currentIndex() + 1 < choice->count() ? Qt::Key_Down : Qt::Key_Up);
        } else if (auto *color = qobject_cast<ColorButton *>(control)) {
            QTimer::singleShot(0, control, [] {
                auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
                dialog->setCurrentColor(Qt::green);
                dialog->accept();
            });
            color->click();
        } else {
            QTest::keyClick(&qobject_cast<NumberSlider *>(control)->slider(), Qt::Key_Left);
        }
    }

    QString textOf(const QString &name) const { return m_with->find<QLabel>(name)->text(); }

private Q_SLOTS:
    void init()
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        m_with = std::make_unique<PreferencesFixture>();
    }
    void cleanup() { m_with.reset(); }

    void everyControlAndItsSettingFollowEachOther_data()
    {
        test::columns<QString, QString>("tab", "key");
        const auto add = [](const char *tab, const QString &key) { QTest::newRow(qPrintable(key)) << tab << key; };
        for (const PreferenceTab &tab : preferenceTabs()) {
            for (const PreferenceGroup &group : tab.groups) {
                for (const PreferenceRow &row : group.rows) {
                    if (const char *name = std::visit([](const auto *key) { return key ? key->name : ""; }, row.key);
                        *name)
                        add(tab.name, QString::fromLatin1(name));
                }
            }
        }
        add("capture", QStringLiteral("jpegQuality"));
        add("capture", QStringLiteral("webpQuality"));
    }

    void everyControlAndItsSettingFollowEachOther()
    {
        QFETCH(QString, tab);
        QFETCH(QString, key);
        // Each can be changed by itself: something else is on, and there is a folder to watch.
        QVERIFY(m_with->settings.set(SettingKeys::showInDock, true));
        QVERIFY(m_with->settings.set(SettingKeys::afterCaptureCopy, true));
        QVERIFY(m_with->settings.set(SettingKeys::afterCaptureQuickAccess, true));
        QVERIFY(m_with->settings.set(SettingKeys::systemScreenshotsFolder, m_with->folder.path()));
        m_with->show(tab);
        const QJsonValue before = valueOf(key);
        QCOMPARE(shownBy(key), before);
        operate(key);
        QVERIFY(valueOf(key) != before);
        QCOMPARE(shownBy(key), valueOf(key));
        // The command line's change shows, too.
        Settings other(m_with->folder.filePath(QStringLiteral("settings.json")));
        m_with->settings.followOthers();
        QVERIFY(SettingTable::store(other, *SettingTable::find(key), before));
        QTRY_COMPARE(shownBy(key), before);
        QCOMPARE(valueOf(key), before);
    }

    void oneOfSomeStaysOn_data()
    {
        test::columns<QString, QString>("tab", "key");
        test::row("presence", QString("general"), QString("showInMenuBar"));
        test::row("the editor", QString("capture"), QString("afterCaptureShow"));
    }

    void oneOfSomeStaysOn()
    {
        QFETCH(QString, tab);
        QFETCH(QString, key);
        m_with->show(tab);
        m_with->find<QCheckBox>(key)->click();
        QVERIFY(m_with->find<QCheckBox>(key)->isChecked());
        QCOMPARE(valueOf(key), QJsonValue(true));
    }

    void theLastDestinationGivesWayToTheEditor()
    {
        m_with->show(QStringLiteral("capture"));
        QVERIFY(!m_with->find<QComboBox>(QStringLiteral("quickAccessCorner"))->isEnabled());
        m_with->find<QCheckBox>(QStringLiteral("afterCaptureQuickAccess"))->click();
        QVERIFY(m_with->find<QComboBox>(QStringLiteral("quickAccessCorner"))->isEnabled());
        m_with->find<QCheckBox>(QStringLiteral("afterCaptureShow"))->click();
        QVERIFY(!m_with->find<QCheckBox>(QStringLiteral("afterCaptureShow"))->isChecked());
        m_with->find<QCheckBox>(QStringLiteral("afterCaptureQuickAccess"))->click();
        QVERIFY(m_with->find<QCheckBox>(QStringLiteral("afterCaptureShow"))->isChecked());
    }

    /// It is left to the page, which scrolls.
    void theWheelChangesNothing()
    {
        m_with->show(QStringLiteral("capture"));
        auto *choice = m_with->find<QComboBox>(QStringLiteral("captureDelay"));
        QWheelEvent turn(QPointF(5, 5), choice->mapToGlobal(QPointF(5, 5)), {}, { 0, -120 }, Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(choice, &turn);
        QCOMPARE(valueOf(QStringLiteral("captureDelay")), QJsonValue(0));
        QVERIFY(!turn.isAccepted());
    }

    void opensAtLogin()
    {
        m_with->show(QStringLiteral("general"));
        auto *box = m_with->find<QCheckBox>(QStringLiteral("openAtLogin"));
        box->click();
        QVERIFY(m_with->loginItem.on && box->isChecked());
        m_with->loginItem.fails = true;
        box->click();
        QVERIFY(box->isChecked()); // as it is
        QCOMPARE(m_with->alerts.texts, QStringList { "The disk is full." });
    }

    void aNewLanguageAsksForARestart()
    {
        m_with->show(QStringLiteral("general"));
        QVERIFY(m_with->find<QLabel>(QStringLiteral("restartNote"))->isHidden());
        QVERIFY(m_with->settings.set(SettingKeys::appLanguage, QStringLiteral("de")));
        QVERIFY(m_with->find<QLabel>(QStringLiteral("restartNote"))->isVisible());
        m_with->controller.close();
        m_with->show(QStringLiteral("general"));
        QVERIFY(m_with->find<QLabel>(QStringLiteral("restartNote"))->isVisible());
        QVERIFY(m_with->settings.set(SettingKeys::appLanguage, QStringLiteral("system")));
        QVERIFY(m_with->find<QLabel>(QStringLiteral("restartNote"))->isHidden());
    }

    void foldersAreChosenAndForgotten()
    {
        m_with->show(QStringLiteral("capture"));
        QCOMPARE(textOf(QStringLiteral("saveFolder")), QStringLiteral("System default"));
        auto *choose = m_with->find<QPushButton>(QStringLiteral("chooseSaveFolder"));
        auto *reset = m_with->find<QPushButton>(QStringLiteral("resetSaveFolder"));
        choose->click(); // and cancel
        QCOMPARE(textOf(QStringLiteral("saveFolder")), QStringLiteral("System default"));
        QVERIFY(reset->isHidden());
        m_with->panels.folder = QDir::homePath() + QStringLiteral("/Shots");
        choose->click();
        QCOMPARE(textOf(QStringLiteral("saveFolder")), QStringLiteral("~/Shots"));
        QCOMPARE(m_with->settings.value(SettingKeys::defaultSaveFolder), *m_with->panels.folder);
        reset->click();
        QCOMPARE(textOf(QStringLiteral("saveFolder")), QStringLiteral("System default"));
        QCOMPARE(m_with->settings.value(SettingKeys::defaultSaveFolder), QString());
    }

    void nothingIsWatchedWithoutAFolder()
    {
        m_with->show(QStringLiteral("capture"));
        auto *box = m_with->find<QCheckBox>(QStringLiteral("watchSystemScreenshots"));
        QCOMPARE(textOf(QStringLiteral("watchedFolder")), QStringLiteral("Not set"));
        box->click();
        QVERIFY(!box->isChecked());
        m_with->chooseWatchedFolder
            = [this] { QVERIFY(m_with->settings.set(SettingKeys::systemScreenshotsFolder, QStringLiteral("/shots"))); };
        box->click();
        QVERIFY(box->isChecked());
        QCOMPARE(textOf(QStringLiteral("watchedFolder")), QStringLiteral("/shots"));
    }

    void valuesThatAreNotOfferedAreNamed()
    {
        QVERIFY(m_with->settings.set(SettingKeys::captureDelay, 7));
        QVERIFY(m_with->settings.set(SettingKeys::historyRetentionDays, 11));
        m_with->show(QStringLiteral("capture"));
        const auto *delay = m_with->find<QComboBox>(QStringLiteral("captureDelay"));
        QCOMPARE(delay->currentIndex(), -1);
        QCOMPARE(delay->placeholderText(), QStringLiteral("7 seconds"));
        m_with->show(QStringLiteral("history"));
        QCOMPARE(m_with->find<QComboBox>(QStringLiteral("historyRetentionDays"))->placeholderText(), "Forever");
    }

    void emptyingTheHistoryAsks()
    {
        m_with->history.load();
        QTRY_VERIFY(m_with->history.isLoaded());
        m_with->show(QStringLiteral("history"));
        auto *empty = m_with->find<QPushButton>(QStringLiteral("emptyHistory"));
        QVERIFY(!empty->isEnabled());
        QImage picture(4, 4, QImage::Format_RGB32);
        picture.fill(Qt::red);
        for (int capture = 0; capture < 2; ++capture)
            m_with->history.record(RasterImage::fromPixels(picture), QStringLiteral("Screenshot"));
        QTRY_COMPARE(textOf(QStringLiteral("historyCount")), QStringLiteral("2"));
        empty->click(); // the first answer keeps them
        QCOMPARE(m_with->history.entries().size(), 2);
        QVERIFY(m_with->alerts.texts.constFirst().startsWith(u"2 captures"));
        m_with->alerts.answer = 1;
        empty->click();
        QTRY_COMPARE(textOf(QStringLiteral("historyCount")), QStringLiteral("0"));
        QVERIFY(!empty->isEnabled());
    }

    void thereIsOneWindowWhichKeepsItsPlaceAndTab()
    {
        QWidget *window = m_with->show(QStringLiteral("history"));
        auto *tabs = window->findChild<QTabBar *>();
        QCOMPARE(tabs->currentIndex(), 4);
        m_with->show(QStringLiteral("capture")); // as the start window asks for a tab
        QCOMPARE(m_with->window(), window);
        QCOMPARE(tabs->currentIndex(), 1);
        QVERIFY(QTest::qWaitForWindowActive(window)); // else it hears no shortcuts
        QTest::keyClick(window, Qt::Key_4, Qt::ControlModifier);
        QCOMPARE(m_with->settings.value(SettingKeys::settingsTab), QStringLiteral("editor"));
        window->setGeometry(40, 50, window->width() + 30, window->height() - 20);
        const QRect placed = window->geometry();
        QTest::keyClick(window, Qt::Key_Q, Qt::ControlModifier); // of the program, which may still ask
        QCOMPARE(m_with->program.performed, QList { CommandId::Quit });
        QSignalSpy closed(&m_with->controller, &PreferencesController::closed);
        QTest::keyClick(window, Qt::Key_Escape);
        QCOMPARE(closed.size(), 1);
        QVERIFY(!m_with->controller.isVisible());
        m_with->controller.show();
        QCOMPARE(m_with->window()->geometry(), placed);
        QTest::keyClick(m_with->window(), Qt::Key_W, Qt::ControlModifier);
        QVERIFY(!m_with->controller.isVisible());
    }

    void aFailureIsToldOnce()
    {
        QVERIFY(QFile::remove(m_with->folder.path() + QStringLiteral("/settings.json"))
            || !QFile::exists(m_with->folder.path() + QStringLiteral("/settings.json")));
        m_with->show(QStringLiteral("general"));
        QVERIFY(m_with->folder.remove());
        QVERIFY(QFile(m_with->folder.path()).open(QIODevice::WriteOnly)); // a file where the folder must go
        auto *box = m_with->find<QCheckBox>(QStringLiteral("showOnboardingOnLaunch"));
        box->click();
        box->click();
        QVERIFY(QFile::remove(m_with->folder.path()));
        QCOMPARE(m_with->alerts.shown.size(), 1);
    }

    /// With a large font nothing is cut off, and everything has a name and can be reached.
    void everythingFitsAndIsNamed_data()
    {
        test::columns<QString, int>("tab", "pointSize");
        for (const char *tab : { "general", "capture", "editor", "history" }) {
            for (const int size : { 9, 14, 20 })
                QTest::addRow("%s at %d pt", tab, size) << QString::fromLatin1(tab) << size;
        }
    }

    void everythingFitsAndIsNamed()
    {
        QFETCH(QString, tab);
        QFETCH(int, pointSize);
        const QFont before = QApplication::font();
        QFont font = before;
        font.setPointSize(pointSize);
        QApplication::setFont(font);
        QWidget *window = m_with->show(tab);
        window->resize(window->minimumSizeHint());
        QVERIFY(QTest::qWaitForWindowExposed(window));
        QSet<QString> tooltips;
        for (const auto *area : window->findChildren<QScrollArea *>()) {
            if (area->isVisible())
                QVERIFY2(area->widget()->width() <= area->viewport()->width(), qPrintable(tab));
        }
        for (auto *widget : window->findChildren<QWidget *>()) {
            const auto *label = qobject_cast<QLabel *>(widget);
            const bool isButton = qobject_cast<QAbstractButton *>(widget) || qobject_cast<QComboBox *>(widget)
                || qobject_cast<QSlider *>(widget);
            if (!widget->isVisible() || (!label && !isButton) || widget->inherits("QToolButton"))
                continue;
            const QString name
                = widget->objectName() + u' ' + widget->accessibleName() + (label ? label->text() : QString());
            if (label && label->wordWrap())
                QVERIFY2(widget->height() >= label->heightForWidth(widget->width()), qPrintable(name));
            else
                QVERIFY2(widget->width() >= widget->minimumSizeHint().width()
                        && widget->height() >= widget->minimumSizeHint().height(),
                    qPrintable(name));
            if (!isButton)
                continue;
            QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(name));
            QVERIFY2(!widget->toolTip().isEmpty(), qPrintable(name));
            QVERIFY2(widget->focusPolicy() & Qt::TabFocus, qPrintable(name));
            QVERIFY2(!tooltips.contains(widget->toolTip()), qPrintable(widget->toolTip())); // one letter each
            tooltips.insert(widget->toolTip());
        }
        QApplication::setFont(before);
    }
};

QTEST_MAIN(PreferencesWindowTest)
#include "PreferencesWindowTest.moc"
