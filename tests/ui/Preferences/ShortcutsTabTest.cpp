// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/ShortcutsTab.h"

#include "core/Hotkey/HotkeyService.h"
#include "core/Preferences/Settings.h"
#include "tests/support/FakeHotkeyBackend.h"
#include "ui/Preferences/HotKeyRecorderView.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace tessaly;
using enum CaptureAction;

class ShortcutsTabTest : public QObject {
    Q_OBJECT

    struct Fixture {
        Settings settings { QString() };
        test::FakeHotkeyBackend backend;
        HotkeyService service { settings, backend, [](CaptureAction) {} };
        std::unique_ptr<ShortcutsTab> tab;

        explicit Fixture(HotkeyBackend::Ability ability = HotkeyBackend::Ability::Grabs)
        {
            backend.offered = ability;
            service.reload();
            open();
        }
        void open()
        {
            tab = std::make_unique<ShortcutsTab>(settings, service);
            tab->show();
            tab->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(tab.get()));
        }
        HotKeyRecorderView &recorder(CaptureAction action) const
        {
            return *tab->findChild<HotKeyRecorderView *>(QString("recorder ") + rawValue(action));
        }
        QPushButton &button(const char *what, CaptureAction action) const
        {
            return *tab->findChild<QPushButton *>(QString(QLatin1StringView(what)) + u' ' + rawValue(action));
        }
        QStringList states() const
        {
            QStringList texts;
            for (const CaptureActionRow &row : captureActions())
                texts += recorder(row.action).accessibleDescription();
            return texts;
        }
    };

private Q_SLOTS:
    void eachActionHasItsRow()
    {
        Fixture f;
        for (const CaptureActionRow &row : captureActions()) {
            HotKeyRecorderView &recorder = f.recorder(row.action);
            QCOMPARE(recorder.text(), CaptureHotKey::defaultOf(row.action).keyText());
            QVERIFY(recorder.accessibleName().startsWith(captureActionLabel(row.action)));
            QVERIFY(!f.button("reset", row.action).isEnabled());
        }
        QCOMPARE(f.states().join(QString()), QString());
    }

    void aPressIsRecorded()
    {
        Fixture f;
        HotKeyRecorderView &recorder = f.recorder(Region);
        recorder.setFocus();
        QTest::keyClick(&recorder, Qt::Key_Space);
        QCOMPARE(recorder.text(), "Press shortcut…");
        QVERIFY(recorder.accessibleName().contains("Press shortcut…"));
        QVERIFY(f.backend.active.isEmpty());
        QTest::keyClick(&recorder, Qt::Key_K); // no modifier: swallowed
        QTest::keyClick(&recorder, Qt::Key_Tab); // nor does the focus go on
        QTest::keyPress(&recorder, Qt::Key_Control);
        QVERIFY(recorder.isRecording());
        QTest::keyClick(&recorder, Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!recorder.isRecording());
        QCOMPARE(recorder.text(), "Ctrl+Shift+K");
        QCOMPARE(CaptureHotKey::load(f.settings, Region), (CaptureHotKey { 40, 768, "K" }));
        QCOMPARE(f.backend.active.size(), 6);
        QCOMPARE(f.backend.active.first().keyCode, 40u);
        QPushButton &reset = f.button("reset", Region);
        QVERIFY(reset.isEnabled());
        QTest::mouseClick(&reset, Qt::LeftButton);
        QCOMPARE(recorder.text(), "Ctrl+Alt+4");
        QCOMPARE(f.backend.active.first().keyCode, 21u);
    }

    void recordingIsLeft_data()
    {
        QTest::addColumn<QString>("how");
        for (const char *how : { "Escape", "another control", "the window closes" })
            QTest::newRow(how) << QString(QLatin1StringView(how));
    }

    void recordingIsLeft()
    {
        QFETCH(QString, how);
        Fixture f;
        HotKeyRecorderView &recorder = f.recorder(Window);
        QTest::mouseClick(&recorder, Qt::LeftButton);
        QVERIFY(recorder.isRecording());
        QVERIFY(QWidget::keyboardGrabber() == &recorder);
        if (how == u"Escape")
            QTest::keyClick(&recorder, Qt::Key_Escape);
        else if (how == u"another control")
            QTest::mouseClick(&f.recorder(CopyText), Qt::LeftButton);
        else
            f.tab->close();
        QVERIFY(!recorder.isRecording());
        QCOMPARE(recorder.text(), "Ctrl+Alt+5");
        if (how == u"another control") {
            QVERIFY(f.recorder(CopyText).isRecording());
            QVERIFY(f.backend.active.isEmpty());
            f.tab.reset(); // in the midst of it
        }
        QVERIFY(!QWidget::keyboardGrabber());
        QCOMPARE(f.backend.active.size(), 6);
    }

    void aCombinationInUseIsNotTaken()
    {
        Fixture f;
        HotKeyRecorderView &recorder = f.recorder(Region);
        QTest::mouseClick(&recorder, Qt::LeftButton);
        QTest::keyClick(&recorder, Qt::Key_5, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(recorder.text(), "Already used by Capture Window");
        QVERIFY(recorder.conflict() == Window);
        QVERIFY(!recorder.isRecording());
        QCOMPARE(CaptureHotKey::load(f.settings, Region), CaptureHotKey::defaultOf(Region));
        QCOMPARE(f.backend.active.size(), 6);
    }

    void whatIsNotHeardIsSaid()
    {
        Fixture f;
        f.backend.heldElsewhere = { { 20, 2304 } };
        QVERIFY(CaptureHotKey::defaultOf(Region).save(f.settings, LastRegion));
        QTRY_COMPARE(f.states(),
            (QStringList { "", "", "", "Not heard: another program uses this shortcut.",
                "Not heard: already used by Capture Region.", "" }));
        QCOMPARE(f.recorder(LastRegion).text(), "Ctrl+Alt+4"); // changed elsewhere
        f.backend.heldElsewhere.clear();
        f.tab->hide();
        f.tab->show(); // looked at again
        QCOMPARE(f.states().at(3), "");
    }

    void theDesktopsWordsAreShown()
    {
        Fixture f(HotkeyBackend::Ability::Asks);
        f.backend.hasAnswered = true;
        f.backend.granted = { { Region, "Super+R" } };
        f.backend.changed();
        QTRY_COMPARE(f.states().first(), "On this desktop: Super+R");
        QCOMPARE(f.states().at(1), "The desktop has given it no keys.");
    }

    void withoutHotKeysThereAreCommands()
    {
        Fixture f(HotkeyBackend::Ability::None);
        QVERIFY(!f.recorder(Region).isVisible());
        QPushButton &copy = f.button("copy", CopyText);
        QVERIFY(copy.isVisible());
        QTest::mouseClick(&copy, Qt::LeftButton);
        QCOMPARE(QGuiApplication::clipboard()->text(), "tessaly capture region --to text");
        f.backend.offered = HotkeyBackend::Ability::Asks; // the portal has come
        f.service.reload();
        QVERIFY(f.recorder(Region).isVisible());
        QVERIFY(!copy.isVisible());
    }

    void nothingIsCut_data()
    {
        QTest::addColumn<HotkeyBackend::Ability>("ability");
        QTest::newRow("shortcuts") << HotkeyBackend::Ability::Grabs;
        QTest::newRow("commands") << HotkeyBackend::Ability::None;
    }

    void nothingIsCut()
    {
        QFETCH(HotkeyBackend::Ability, ability);
        QFont large = QApplication::font();
        large.setPointSize(14);
        QApplication::setFont(large);
        Fixture f(ability);
        f.tab->resize(f.tab->minimumSizeHint());
        QApplication::processEvents();
        for (const QPushButton *button : f.tab->findChildren<QPushButton *>()) {
            if (button->isVisible())
                QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
        }
    }
};

QTEST_MAIN(ShortcutsTabTest)
#include "ShortcutsTabTest.moc"
