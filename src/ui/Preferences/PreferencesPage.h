// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Preferences/PreferenceRows.h"
#include "ui/Preferences/PreferencesController.h"
#include "ui/Preferences/SettingBinding.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;

namespace tessaly {

class QuietLabel;

/// What the rows of a page work on. Outlives the page.
struct PreferencesContext {
    const PreferencesServices &services;
    SettingBinding &binding;
    QString startLanguage; ///< the language setting at the start of the program, which is what is shown
};

/// The rows of one tab, made from their table.
class PreferencesPage : public QWidget {
    Q_OBJECT

public:
    PreferencesPage(
        std::span<const PreferenceGroup> groups, const PreferencesContext &context, QWidget *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeRow(const PreferenceRow &row);
    QWidget *check(const PreferenceRow &row);
    QWidget *choice(const PreferenceRow &row);
    QWidget *slider(const PreferenceRow &row);
    QWidget *quality(const PreferenceRow &row);
    QWidget *color(const PreferenceRow &row);
    QWidget *language(const PreferenceRow &row);
    QWidget *openAtLogin(const PreferenceRow &row);
    QWidget *saveFolder(const PreferenceRow &row);
    QWidget *watchScreenshots(const PreferenceRow &row);
    QWidget *watchedFolder(const PreferenceRow &row);
    QWidget *keepHistory(const PreferenceRow &row);
    QWidget *historyContent(const PreferenceRow &row);

    void emptyHistory();
    void chooseSaveFolder();

    PreferencesContext m_with;
};

} // namespace tessaly
