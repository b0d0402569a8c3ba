// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/PreferencesPage.h"

#include "core/Desktop/Alerts.h"
#include "core/Desktop/LoginItem.h"
#include "core/Desktop/OpenPanels.h"
#include "core/History/CaptureHistory.h"
#include "ui/Preferences/ElidedLabel.h"
#include "ui/Preferences/PreferenceCard.h"

#include <QCheckBox>
#include <QDir>
#include <QHBoxLayout>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>

namespace tessaly {

namespace {

QPushButton *plainButton(const QString &text)
{
    auto *button = new QPushButton(text);
    button->setAutoDefault(false);
    return button;
}

/// With "~" for the user's own folder.
QString shownPath(const QString &path)
{
    const QString home = QDir::homePath();
    return path == home || path.startsWith(home + u'/') ? u'~' + path.mid(home.size()) : path;
}

/// A value with what changes it beside it; the first of the buttons is the row's control.
QWidget *valueWith(QWidget *value, const QList<QPushButton *> &buttons)
{
    auto *control = new QWidget;
    auto *layout = new QHBoxLayout(control);
    layout->setContentsMargins({});
    layout->setSpacing(8);
    layout->addWidget(value, 1);
    for (QPushButton *button : buttons)
        layout->addWidget(button);
    control->setFocusProxy(buttons.first());
    return control;
}

} // namespace

QWidget *PreferencesPage::openAtLogin(const PreferenceRow &row)
{
    auto *box = new QCheckBox(preferenceText(row.label));
    box->setObjectName(QStringLiteral("openAtLogin"));
    box->setChecked(m_with.services.loginItem.isOn());
    connect(box, &QCheckBox::toggled, this, [this, box](bool on) {
        LoginItem &item = m_with.services.loginItem;
        if (const Outcome outcome = item.setOn(on); !outcome)
            m_with.services.alerts.warn(
                tr("Opening Tessaly at login could not be changed."), outcome.failure().message);
        const QSignalBlocker quiet(*box);
        box->setChecked(item.isOn());
    });
    return PreferenceLayout::checkRow(box, nullptr);
}

void PreferencesPage::chooseSaveFolder()
{
    const QString before = m_with.binding.settings().value(SettingKeys::defaultSaveFolder);
    const auto folder = m_with.services.openPanels.chooseFolder(
        tr("Choose the folder in which captures are saved."), tr("Use This Folder"), before);
    if (folder)
        m_with.binding.report(m_with.binding.settings().set(SettingKeys::defaultSaveFolder, *folder));
}

QWidget *PreferencesPage::saveFolder(const PreferenceRow &row)
{
    auto *path = new ElidedLabel;
    path->setObjectName(QStringLiteral("saveFolder"));
    auto *choose = plainButton(tr("Choose…"));
    choose->setObjectName(QStringLiteral("chooseSaveFolder"));
    connect(choose, &QPushButton::clicked, this, &PreferencesPage::chooseSaveFolder);
    auto *reset = plainButton(tr("Reset"));
    reset->setObjectName(QStringLiteral("resetSaveFolder"));
    reset->setAccessibleName(tr("Use the system default folder"));
    connect(reset, &QPushButton::clicked, this, [this, choose] {
        choose->setFocus(); // before the button under the focus goes
        m_with.binding.report(m_with.binding.settings().set(SettingKeys::defaultSaveFolder, QString()));
    });
    QWidget *made
        = PreferenceLayout::controlRow(preferenceText(row.label), valueWith(path, { choose, reset }), nullptr);
    m_with.binding.follow(*path, SettingKeys::defaultSaveFolder, [path, reset](const QString &folder) {
        path->setText(folder.isEmpty() ? tr("System default") : shownPath(folder));
        path->setToolTip(folder);
        reset->setVisible(!folder.isEmpty());
    });
    return made;
}

QWidget *PreferencesPage::watchScreenshots(const PreferenceRow &row)
{
    auto *box = new QCheckBox(preferenceText(row.label));
    box->setObjectName(QStringLiteral("watchSystemScreenshots"));
    m_with.binding.follow(*box, SettingKeys::watchSystemScreenshots, [box](bool on) {
        const QSignalBlocker quiet(*box);
        box->setChecked(on);
    });
    connect(box, &QCheckBox::toggled, this, [this, box](bool on) {
        Settings &settings = m_with.binding.settings();
        const auto hasFolder = [&settings] { return !settings.value(SettingKeys::systemScreenshotsFolder).isEmpty(); };
        if (on && !hasFolder() && m_with.services.chooseWatchedFolder)
            m_with.services.chooseWatchedFolder();
        if (!on || hasFolder())
            return m_with.binding.report(settings.set(SettingKeys::watchSystemScreenshots, on));
        const QSignalBlocker quiet(*box); // there is nothing to watch
        box->setChecked(false);
    });
    return PreferenceLayout::checkRow(box, nullptr);
}

QWidget *PreferencesPage::watchedFolder(const PreferenceRow &row)
{
    auto *path = new ElidedLabel;
    path->setObjectName(QStringLiteral("watchedFolder"));
    auto *change = plainButton(tr("Change…"));
    change->setObjectName(QStringLiteral("changeWatchedFolder"));
    connect(change, &QPushButton::clicked, this, [this] {
        if (m_with.services.chooseWatchedFolder)
            m_with.services.chooseWatchedFolder();
    });
    m_with.binding.follow(*path, SettingKeys::systemScreenshotsFolder, [path](const QString &folder) {
        path->setText(folder.isEmpty() ? tr("Not set") : shownPath(folder));
        path->setToolTip(folder);
    });
    return PreferenceLayout::controlRow(preferenceText(row.label), valueWith(path, { change }), nullptr);
}

QWidget *PreferencesPage::keepHistory(const PreferenceRow &row)
{
    auto *box = new QCheckBox(preferenceText(row.label));
    box->setObjectName(QStringLiteral("historyEnabled"));
    m_with.binding.bind(*box, SettingKeys::historyEnabled);
    auto *note = new QuietLabel({});
    note->setObjectName(QStringLiteral("historyNote"));
    m_with.binding.follow(*note, SettingKeys::historyEnabled, [note](bool on) {
        note->setText(on ? tr("Each capture is saved on this Mac with its annotations, so you can reopen it from the "
                              "start window and keep editing. Nothing leaves your Mac.")
                         : tr("New captures aren't added. The ones already in the history stay until you empty it."));
    });
    return PreferenceLayout::checkRow(box, note);
}

QWidget *PreferencesPage::historyContent(const PreferenceRow &row)
{
    auto *count = new QLabel;
    count->setObjectName(QStringLiteral("historyCount"));
    auto *empty = plainButton(tr("Empty History…"));
    empty->setObjectName(QStringLiteral("emptyHistory"));
    connect(empty, &QPushButton::clicked, this, &PreferencesPage::emptyHistory);
    const auto show = [&history = m_with.services.history, count, empty] {
        const qsizetype captures = history.entries().size();
        count->setText(history.isLoaded() ? QLocale().toString(captures) : QStringLiteral("…"));
        empty->setEnabled(captures > 0);
    };
    connect(&m_with.services.history, &CaptureHistory::entriesChanged, count, show);
    connect(&m_with.services.history, &CaptureHistory::loaded, count, show);
    show();
    return PreferenceLayout::controlRow(preferenceText(row.label), valueWith(count, { empty }), nullptr);
}

void PreferencesPage::emptyHistory()
{
    CaptureHistory &history = m_with.services.history;
    const qsizetype captures = history.entries().size();
    const QString deleted = captures == 1
        ? tr("1 capture in the history will be deleted from this Mac. This can't be undone.")
        : tr("%1 captures in the history will be deleted from this Mac. This can't be undone.")
              .arg(QLocale().toString(captures));
    const int answer = m_with.services.alerts.ask({ .message = tr("Empty the history?"),
        .informativeText = deleted + QStringLiteral("\n\n")
            + tr("Emptying the history doesn't touch the images and documents you saved yourself."),
        .answers = { { tr("Cancel") }, { tr("Empty History") } },
        .escapeAnswer = 0 });
    if (answer == 1)
        history.empty();
}

} // namespace tessaly
