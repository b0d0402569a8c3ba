// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/LoginItem.h"
#include "core/History/CaptureHistory.h"
#include "core/Hotkey/HotkeyBackend.h"
#include "core/Hotkey/HotkeyService.h"
#include "core/Preferences/Settings.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/RecordingTarget.h"
#include "ui/Preferences/PreferencesController.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

namespace tessaly::test {

class FakeLoginItem final : public LoginItem {
public:
    bool on = false;
    bool fails = false;

    bool isOn() const override { return on; }
    Outcome setOn(bool wanted) override
    {
        if (fails)
            return Failure { QStringLiteral("The disk is full.") };
        on = wanted;
        return Done {};
    }
};

/// A desktop that gives programs no hot keys.
class NoHotkeys final : public HotkeyBackend {
public:
    Ability ability() const override { return Ability::None; }
    bool add(quint32, CaptureAction, quint32, quint32) override { return false; }
    void remove(quint32) override { }
};

/// The settings window over a file of settings.
class PreferencesFixture {
public:
    QTemporaryDir folder;
    FakeClock clock;
    Settings settings { folder.filePath(QStringLiteral("settings.json")) };
    FakeAlerts alerts;
    FakeOpenPanels panels;
    FakeLoginItem loginItem;
    CaptureHistory history { { { folder.filePath(QStringLiteral("History")) }, settings, clock } };
    NoHotkeys backend;
    HotkeyService hotkeys { settings, backend, [](CaptureAction) {} };
    std::function<void()> chooseWatchedFolder = [] {};
    RecordingTarget program;
    PreferencesController controller { { settings, history, hotkeys, loginItem, panels, alerts, program,
        [this] { chooseWatchedFolder(); } } };

    /// The window, on that tab.
    QWidget *show(const QString &tab)
    {
        static_cast<void>(settings.set(SettingKeys::settingsTab, tab));
        controller.show();
        return window();
    }

    QWidget *window() const
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == u"settingsWindow" && widget->isVisible())
                return widget;
        }
        return nullptr;
    }

    template <class Control>
    Control *find(const QString &name) const
    {
        auto *control = window()->findChild<Control *>(name);
        if (!control)
            qFatal("there is no control %s", qPrintable(name));
        return control;
    }
};

} // namespace tessaly::test
