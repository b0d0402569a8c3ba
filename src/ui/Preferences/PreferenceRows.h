// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Preferences/SettingTable.h"

#include <QIcon>
#include <QList>
#include <QVariant>

namespace tessaly {

/// One value that a choice offers.
struct PreferenceOption {
    QVariant value;
    QString label;
    QIcon icon = {};
};

/// How a row of the settings window is changed.
enum class PreferenceControl {
    Check,
    Choice, ///< of the row's options
    Percent, ///< a slider over the range of the setting
    Points, ///< the same in points
    Quality, ///< a slider for each format that has a quality
    Color,
    Language,
    OpenAtLogin,
    SaveFolder,
    WatchScreenshots,
    WatchedFolder,
    KeepHistory,
    HistoryContent,
};

/// A row of the settings window. Texts are translated in the context "Preferences"; none is null.
struct PreferenceRow {
    PreferenceControl control;
    const char *label;
    const char *note = "";
    SettingRow::Key key = {};
    QList<PreferenceOption> (*options)() = nullptr;
    QString (*otherValue)(int value) = nullptr; ///< names a number that is not offered
    const SettingKey<bool> *enabledBy = nullptr; ///< the row can be used only while this is on
    void (*afterwards)(Settings &settings) = nullptr; ///< follows a change by the user
};

struct PreferenceGroup {
    const char *title; ///< none where the rows say it all
    std::span<const PreferenceRow> rows;
    std::span<const char *const> notes = {}; ///< below the rows
};

/// A tab of the settings window.
struct PreferenceTab {
    const char *name; ///< as the setting "settingsTab" stores it
    const char *title;
    std::span<const PreferenceGroup> groups; ///< none for the shortcuts, which have a view of their own
};

/// In the order in which they are shown.
std::span<const PreferenceTab> preferenceTabs();

QString preferenceText(const char *text);

} // namespace tessaly
