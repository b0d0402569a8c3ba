// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Hotkey/CaptureHotKey.h"

#include "core/Hotkey/KeyCodes.h"
#include "core/Preferences/HotKeyKeys.h"
#include "core/Preferences/Settings.h"
#include "tests/support/Rows.h"

#include <QSet>

using namespace tessaly;

class CaptureHotKeyTest : public QObject {
    Q_OBJECT

    static constexpr auto ctrl = Qt::ControlModifier, alt = Qt::AltModifier, shift = Qt::ShiftModifier,
                          super = Qt::MetaModifier, none = Qt::NoModifier;

private Q_SLOTS:
    void freshSettingsHaveTheDefaults()
    {
        const Settings settings { QString() };
        QStringList shown, read, triggers;
        for (const CaptureActionRow &row : captureActions()) {
            const auto hotKey = CaptureHotKey::load(settings, row.action);
            QCOMPARE(hotKey, CaptureHotKey::defaultOf(row.action));
            shown += hotKey.displayString();
            read += hotKey.keyText();
            triggers += hotKey.triggerText();
        }
        QCOMPARE(shown, (QStringList { "⌥⌘4", "⌥⌘5", "⌥⇧⌘5", "⌥⌘3", "⌥⇧⌘4", "⌥⌘7" }));
        QCOMPARE(read,
            (QStringList {
                "Ctrl+Alt+4", "Ctrl+Alt+5", "Ctrl+Alt+Shift+5", "Ctrl+Alt+3", "Ctrl+Alt+Shift+4", "Ctrl+Alt+7" }));
        QCOMPARE(triggers.at(2), "CTRL+ALT+SHIFT+5");
    }

    void aPressMakesACombination_data()
    {
        test::columns<quint32, int, Qt::KeyboardModifiers, CaptureHotKey, QString>(
            "evdev", "key", "modifiers", "hotKey", "keyText");
        using Modifiers = Qt::KeyboardModifiers;
        const CaptureHotKey nothing;
        test::row("by its place", 5u, int(Qt::Key_4), ctrl | alt, CaptureHotKey { 21, 2304, "4" }, "Ctrl+Alt+4");
        test::row("the place counts, not the letter", 21u, int(Qt::Key_Z), ctrl | super,
            CaptureHotKey { 16, 4352, "Z" }, "Super+Ctrl+Z");
        test::row("Shift alone is a modifier", 30u, int(Qt::Key_A), Modifiers(shift), CaptureHotKey { 0, 512, "A" },
            "Shift+A");
        test::row("Shift changes no label", 5u, int(Qt::Key_Dollar), ctrl | shift, CaptureHotKey { 21, 768, "4" },
            "Ctrl+Shift+4");
        test::row("of another layout", 39u, int(Qt::Key_Odiaeresis), alt | shift, CaptureHotKey { 41, 2560, "Ö" },
            "Alt+Shift+Ö");
        test::row(
            "a function key", 59u, int(Qt::Key_F1), Modifiers(ctrl), CaptureHotKey { 122, 256, "Key 122" }, "Ctrl+F1");
        test::row("Return", 28u, int(Qt::Key_Return), Modifiers(alt), CaptureHotKey { 36, 2048, "↩" }, "Alt+Return");
        test::row(
            "Tab backwards", 15u, int(Qt::Key_Backtab), Modifiers(shift), CaptureHotKey { 48, 512, "⇥" }, "Shift+Tab");
        test::row(
            "an arrow", 105u, int(Qt::Key_Left), Modifiers(super), CaptureHotKey { 123, 4096, "←" }, "Super+Left");
        test::row("Print of either code", 210u, int(Qt::Key_Print), Modifiers(ctrl),
            CaptureHotKey { 105, 256, "Key 105" }, "Ctrl+Print");
        test::row("keypad without Num Lock", 75u, int(Qt::Key_Left), ctrl | Qt::KeypadModifier,
            CaptureHotKey { 86, 256, "4" }, "Ctrl+Num+4");
        test::row("without a place", 0u, int(Qt::Key_5), ctrl | alt, CaptureHotKey { 23, 2304, "5" }, "Ctrl+Alt+5");
        test::row("no modifier", 30u, int(Qt::Key_A), Modifiers(none), nothing, "");
        test::row("the keypad is none", 75u, int(Qt::Key_4), Modifiers(Qt::KeypadModifier), nothing, "");
        test::row("a modifier alone", 29u, int(Qt::Key_Control), Modifiers(ctrl), nothing, "");
    }

    void aPressMakesACombination()
    {
        QFETCH(quint32, evdev);
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QString, keyText);
        const auto made = CaptureHotKey::from({ evdev, key, modifiers });
        QTEST(made.value_or(CaptureHotKey()), "hotKey");
        QCOMPARE(made ? made->keyText() : QString(), keyText);
    }

    void noTwoKeysShareANumber()
    {
        QSet<quint32> keyCodes;
        QSet<quint16> evdevCodes;
        for (const KeyRow &row : KeyCodes::rows()) {
            QVERIFY2(!keyCodes.contains(row.keyCode), row.symbol);
            keyCodes += row.keyCode;
            for (const quint16 code : row.evdevCodes) {
                QVERIFY2(code == 0 || !evdevCodes.contains(code), row.symbol);
                evdevCodes += code;
            }
        }
    }

    void whatIsSavedIsFoundAgain()
    {
        Settings settings { QString() };
        const CaptureHotKey own { 36, CaptureHotKey::control, "↩" };
        QVERIFY(own.save(settings, CaptureAction::FullScreen));
        QCOMPARE(CaptureHotKey::load(settings, CaptureAction::FullScreen), own);
        QVERIFY(!own.conflict(settings, CaptureAction::FullScreen));
        QVERIFY(own.conflict(settings, CaptureAction::Region) == CaptureAction::FullScreen);
        QVERIFY(own.save(settings, CaptureAction::Window));
        QVERIFY(own.conflict(settings, CaptureAction::Region) == CaptureAction::Window); // the first of them
        CaptureHotKey relabelled = own;
        relabelled.keyLabel = "R";
        QVERIFY(!relabelled.conflict(settings, CaptureAction::Region));
    }

    void unusableNumbersReadAsTheDefault_data()
    {
        test::columns<double>("stored");
        test::row("negative", -1.0);
        test::row("broken", 20.5);
        test::row("too large", 1e15);
    }

    void unusableNumbersReadAsTheDefault()
    {
        QFETCH(double, stored);
        Settings settings { QString() };
        QVERIFY(settings.set(SettingKey<double> { hotKeyKeys[0].keyCode.name, 0 }, stored));
        QCOMPARE(CaptureHotKey::load(settings, CaptureAction::Region).keyCode, 21u);
    }
};

QTEST_MAIN(CaptureHotKeyTest)
#include "CaptureHotKeyTest.moc"
