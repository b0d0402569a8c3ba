// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/PreferencesPage.h"

#include "core/Export/ExportFormat.h"
#include "ui/Preferences/ColorButton.h"
#include "ui/Preferences/Mnemonics.h"
#include "ui/Preferences/NumberSlider.h"
#include "ui/Preferences/PreferenceCard.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QSlider>
#include <QVBoxLayout>

namespace tessaly {

namespace {

QuietLabel *noteOf(const PreferenceRow &row) { return *row.note ? new QuietLabel(preferenceText(row.note)) : nullptr; }

QLabel *headingOf(const PreferenceGroup &group)
{
    auto *heading = new QLabel(preferenceText(group.title));
    QFont font = heading->font();
    font.setWeight(QFont::DemiBold);
    heading->setFont(font);
    return heading;
}

NumberSlider *sliderFor(const SettingRow::Key &key, NumberSlider::Unit unit)
{
    const auto *name = std::get<const SettingKey<double> *>(key)->name;
    const SettingRow &range = *SettingTable::find(QString::fromLatin1(name));
    return new NumberSlider(range.least, range.most, unit);
}

} // namespace

PreferencesPage::PreferencesPage(
    std::span<const PreferenceGroup> groups, const PreferencesContext &context, QWidget *parent) :
    QWidget(parent),
    m_with(context)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(PreferenceLayout::pageMargins);
    layout->setSpacing(8);
    for (const PreferenceGroup &group : groups) {
        if (layout->count() > 0)
            layout->addSpacing(16);
        auto *card = new PreferenceCard;
        for (const PreferenceRow &row : group.rows)
            card->addRow(makeRow(row));
        if (*group.title)
            layout->addWidget(headingOf(group));
        layout->addWidget(card);
        for (const char *note : group.notes)
            layout->addWidget(new QuietLabel(preferenceText(note)));
    }
    layout->addStretch(1);
    Mnemonics::assign(*this);
    const QList<QWidget *> widgets = findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (qobject_cast<QComboBox *>(widget) || qobject_cast<QSlider *>(widget))
            widget->installEventFilter(this);
    }
}

bool PreferencesPage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel)
        return QWidget::eventFilter(watched, event);
    event->ignore(); // it scrolls the page, and changes nothing that comes under the pointer meanwhile
    return true;
}

QWidget *PreferencesPage::makeRow(const PreferenceRow &row)
{
    struct Maker {
        PreferenceControl control;
        QWidget *(PreferencesPage::*make)(const PreferenceRow &);
    };
    static constexpr Maker makers[] = {
        { PreferenceControl::Check, &PreferencesPage::check },
        { PreferenceControl::Choice, &PreferencesPage::choice },
        { PreferenceControl::Percent, &PreferencesPage::slider },
        { PreferenceControl::Points, &PreferencesPage::slider },
        { PreferenceControl::Quality, &PreferencesPage::quality },
        { PreferenceControl::Color, &PreferencesPage::color },
        { PreferenceControl::Language, &PreferencesPage::language },
        { PreferenceControl::OpenAtLogin, &PreferencesPage::openAtLogin },
        { PreferenceControl::SaveFolder, &PreferencesPage::saveFolder },
        { PreferenceControl::WatchScreenshots, &PreferencesPage::watchScreenshots },
        { PreferenceControl::WatchedFolder, &PreferencesPage::watchedFolder },
        { PreferenceControl::KeepHistory, &PreferencesPage::keepHistory },
        { PreferenceControl::HistoryContent, &PreferencesPage::historyContent },
    };
    QWidget *made = (this->*std::ranges::find(makers, row.control, &Maker::control)->make)(row);
    if (row.enabledBy)
        m_with.binding.follow(*made, *row.enabledBy, [made](bool on) { made->setEnabled(on); });
    return made;
}

QWidget *PreferencesPage::check(const PreferenceRow &row)
{
    auto *box = new QCheckBox(preferenceText(row.label));
    const auto &key = *std::get<const SettingKey<bool> *>(row.key);
    box->setObjectName(QLatin1StringView(key.name));
    m_with.binding.bind(*box, key, [this, afterwards = row.afterwards] {
        if (afterwards)
            afterwards(m_with.binding.settings());
    });
    return PreferenceLayout::checkRow(box, noteOf(row));
}

QWidget *PreferencesPage::choice(const PreferenceRow &row)
{
    auto *choice = new QComboBox;
    const QList<PreferenceOption> options = row.options();
    for (const PreferenceOption &option : options)
        choice->addItem(option.icon, option.label, option.value);
    if (const auto *numbers = std::get_if<const SettingKey<int> *>(&row.key))
        m_with.binding.bind(*choice, **numbers, row.otherValue);
    else if (const auto *flags = std::get_if<const SettingKey<bool> *>(&row.key))
        m_with.binding.bind(*choice, **flags);
    else
        m_with.binding.bind(*choice, *std::get<const SettingKey<const char *> *>(row.key));
    choice->setObjectName(QLatin1StringView(SettingRow { row.key, SettingType::Text }.name()));
    return PreferenceLayout::controlRow(preferenceText(row.label), choice, noteOf(row));
}

QWidget *PreferencesPage::slider(const PreferenceRow &row)
{
    const bool isPercent = row.control == PreferenceControl::Percent;
    auto *slider = sliderFor(row.key, isPercent ? NumberSlider::Unit::Percent : NumberSlider::Unit::Points);
    const auto &key = *std::get<const SettingKey<double> *>(row.key);
    m_with.binding.bind(*slider, key);
    slider->setObjectName(QLatin1StringView(key.name));
    return PreferenceLayout::controlRow(preferenceText(row.label), slider, noteOf(row));
}

QWidget *PreferencesPage::quality(const PreferenceRow &row)
{
    struct Format {
        ExportFormat format;
        const SettingKey<double> &key;
    };
    auto *sliders = new QWidget;
    auto *grid = new QGridLayout(sliders);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    for (const Format &each : { Format { ExportFormat::Jpeg, SettingKeys::jpegQuality },
             Format { ExportFormat::Webp, SettingKeys::webpQuality } }) {
        auto *slider = sliderFor(&each.key, NumberSlider::Unit::Percent);
        m_with.binding.bind(*slider, each.key);
        slider->setObjectName(QLatin1StringView(each.key.name));
        auto *name = new QLabel(label(each.format));
        const int line = grid->rowCount();
        grid->addWidget(name, line, 0);
        grid->addWidget(slider, line, 1);
        //: A slider's name: what it is for, then the format of pictures
        slider->slider().setAccessibleName(tr("%1, %2").arg(preferenceText(row.label), label(each.format)));
        name->setBuddy(&slider->slider());
    }
    return PreferenceLayout::controlRow(preferenceText(row.label), sliders, noteOf(row));
}

QWidget *PreferencesPage::color(const PreferenceRow &row)
{
    auto *button = new ColorButton(preferenceText(row.label));
    const auto &key = *std::get<const SettingKey<const char *> *>(row.key);
    m_with.binding.bind(*button, key);
    button->setObjectName(QLatin1StringView(key.name));
    return PreferenceLayout::controlRow(preferenceText(row.label), button, noteOf(row));
}

QWidget *PreferencesPage::language(const PreferenceRow &row)
{
    PreferenceRow plain = row;
    plain.note = "";
    QWidget *made = choice(plain);
    QuietLabel *note = noteOf(row);
    made->layout()->addWidget(note);
    note->setObjectName(QStringLiteral("restartNote"));
    m_with.binding.follow(*note, SettingKeys::appLanguage,
        [note, start = m_with.startLanguage](const QString &language) { note->setVisible(language != start); });
    return made;
}

} // namespace tessaly
