// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/FrameOptions.h"

#include "core/Annotation/AnnotationLabels.h"
#include "core/Frame/FrameSettings.h"
#include "core/Imaging/ColorHex.h"
#include "core/Preferences/Settings.h"
#include "ui/Editor/Options/ColorSwatches.h"
#include "ui/Editor/Options/OptionControls.h"
#include "ui/Editor/Options/Popover.h"
#include "ui/Editor/Options/ValueSlider.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace tessaly {

namespace {

bool isFrame(const OptionSubject &subject) { return subject.topic == OptionSubject::Topic::Frame; }

QString translated(const char *text) { return QCoreApplication::translate("Options", text); }

struct FrameSliderRow {
    const char *name;
    const char *title;
    const char *help;
    SliderRange range;
    double FrameStyle::*field;
};

constexpr FrameSliderRow sliderRows[] {
    { "framePadding", QT_TRANSLATE_NOOP("Options", "Padding"),
        QT_TRANSLATE_NOOP("Options", "Margin around the picture"), { 0, 0.5, 0.01, ValueUnit::Percent },
        &FrameStyle::padding },
    { "frameCorners", QT_TRANSLATE_NOOP("Options", "Corners"),
        QT_TRANSLATE_NOOP("Options", "Radius of the picture's corners"), { 0, 60, 1, ValueUnit::Points },
        &FrameStyle::cornerRadius },
    { "frameShadow", QT_TRANSLATE_NOOP("Options", "Shadow"),
        QT_TRANSLATE_NOOP("Options", "Shadow that the picture throws"), { 0, 1, 0.05, ValueUnit::Percent },
        &FrameStyle::shadow },
};

/// The colours that a swatch of the style's background shows; none for a transparent one.
QStringList colorsOf(const FrameStyle &style)
{
    switch (style.background) {
    case FrameBackgroundKind::Gradient:
        return style.gradientColors;
    case FrameBackgroundKind::Solid:
        return { style.solidHex };
    case FrameBackgroundKind::Transparent:
        return {};
    }
    return {};
}

} // namespace

FrameOptions::FrameOptions(AnnotationStore &store, FrameSettings &frameSettings, Settings &settings, QObject *parent) :
    QObject(parent),
    m_store(store),
    m_frameSettings(frameSettings),
    m_settings(settings)
{
}

FrameStyle FrameOptions::frame() const { return m_store.frame().value_or(m_frameSettings.rememberedFrame()); }

void FrameOptions::remember()
{
    if (const Outcome outcome = m_frameSettings.remember(m_store.frame()); !outcome)
        Q_EMIT failed(outcome.failure().message);
}

void FrameOptions::change(const std::function<void(FrameStyle &)> &edit)
{
    FrameStyle style = frame();
    edit(style);
    if (m_store.frame() == style)
        return;
    m_store.setFrame(style, m_adjustment.next());
    if (!m_adjustment.isActive())
        remember();
}

void FrameOptions::setOn(bool on)
{
    m_store.setFrame(on ? std::optional(m_frameSettings.rememberedFrame()) : std::nullopt, Undo::Record);
    remember();
}

OptionItem FrameOptions::switchItem()
{
    auto *on = new QCheckBox(QCoreApplication::translate("Options", "Frame"));
    on->setObjectName(QStringLiteral("frameOn"));
    on->setToolTip(QCoreApplication::translate("Options", "Present the screenshot on a background"));
    on->setAccessibleName(QCoreApplication::translate("Options", "Frame"));
    on->setFocusPolicy(Qt::TabFocus);
    connect(on, &QCheckBox::clicked, this, &FrameOptions::setOn);
    return { on, isFrame, [this, on](const OptionSubject &) { on->setChecked(m_store.frame().has_value()); } };
}

SwatchButton *FrameOptions::addSwatch(QGridLayout &grid, int row, int column, const QStringList &colors,
    const QString &name, const std::function<void(FrameStyle &)> &edit)
{
    auto *swatch = new SwatchButton(colors, name);
    swatch->setCheckable(true);
    grid.addWidget(swatch, row, column);
    connect(swatch, &QAbstractButton::clicked, this, [this, edit] {
        change(edit);
        showBackground(frame()); // also when the same was chosen again
    });
    m_swatches += swatch;
    return swatch;
}

void FrameOptions::pickSolid(QWidget *parent)
{
    const QColor color = QColorDialog::getColor(
        ColorHex::toColor(frame().solidHex), parent, QCoreApplication::translate("Options", "Background Color"));
    if (color.isValid()) {
        change([&](FrameStyle &style) {
            style.background = FrameBackgroundKind::Solid;
            style.solidHex = ColorHex::toHex(color);
        });
    }
    showBackground(frame());
}

void FrameOptions::fillBackgroundPanel(PopoverButton &button)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(8);
    button.content().addLayout(grid);
    grid->addWidget(new QLabel(QCoreApplication::translate("Options", "Gradient")), 0, 0);
    int column = 1;
    for (const FrameStyle::Gradient &gradient : FrameStyle::gradients) {
        const QStringList colors { QLatin1StringView(gradient.colors[0]), QLatin1StringView(gradient.colors[1]) };
        addSwatch(*grid, 0, column++, colors, FrameStyle::gradientName(QString::fromLatin1(gradient.identifier)),
            [colors](FrameStyle &style) {
                style.background = FrameBackgroundKind::Gradient;
                style.gradientColors = colors;
            });
    }
    grid->addWidget(new QLabel(QCoreApplication::translate("Options", "Solid")), 1, 0);
    column = 1;
    for (const char *hex : FrameStyle::solidSwatches) {
        addSwatch(*grid, 1, column++, { QLatin1StringView(hex) },
            QCoreApplication::translate("Options", "Solid %1").arg(QLatin1StringView(hex)), [hex](FrameStyle &style) {
                style.background = FrameBackgroundKind::Solid;
                style.solidHex = QLatin1StringView(hex);
            });
    }
    m_otherSolid = new SwatchButton({}, QCoreApplication::translate("Options", "Other Color…"));
    m_otherSolid->setCheckable(true);
    grid->addWidget(m_otherSolid, 1, column);
    connect(m_otherSolid, &QAbstractButton::clicked, this, [this, &button] { pickSolid(&button); });
    grid->addWidget(new QLabel(QCoreApplication::translate("Options", "Transparent")), 2, 0);
    addSwatch(*grid, 2, 1, {}, QCoreApplication::translate("Options", "Transparent"),
        [](FrameStyle &style) { style.background = FrameBackgroundKind::Transparent; });
}

void FrameOptions::showBackground(const FrameStyle &style)
{
    const QStringList colors = colorsOf(style);
    bool known = false;
    for (SwatchButton *swatch : std::as_const(m_swatches)) {
        swatch->setChecked(swatch->colors() == colors);
        known = known || swatch->isChecked();
    }
    const bool other = !known && style.background == FrameBackgroundKind::Solid;
    m_otherSolid->setChecked(other);
    m_otherSolid->setColors(other ? colors : anyColorHues());
    m_current->setColors(colors);
}

OptionItem FrameOptions::background()
{
    auto *both = new QWidget;
    both->setObjectName(QStringLiteral("frameBackground"));
    auto *layout = new QHBoxLayout(both);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    auto *button = new PopoverButton(QCoreApplication::translate("Options", "Background"),
        QCoreApplication::translate("Options", "Gradient, color or transparency"));
    m_current = new SwatchButton({}, QCoreApplication::translate("Options", "Background"));
    m_current->setFocusPolicy(Qt::NoFocus);
    connect(m_current, &QAbstractButton::clicked, button, &QAbstractButton::click);
    layout->addWidget(m_current);
    layout->addWidget(button);
    fillBackgroundPanel(*button);
    return { both, isFrame, [this, both](const OptionSubject &) {
                showBackground(frame());
                both->setEnabled(m_store.frame().has_value());
            } };
}

template <class Row>
OptionItem FrameOptions::slider(const Row &row)
{
    auto *slider = new ValueSlider(translated(row.title), translated(row.help), row.range);
    slider->setObjectName(QLatin1StringView(row.name));
    connect(slider, &ValueSlider::begun, this, [this] { m_adjustment.begin(); });
    connect(slider, &ValueSlider::ended, this, [this] {
        m_adjustment.end();
        remember();
    });
    connect(slider, &ValueSlider::changed, this,
        [this, field = row.field](double value) { change([&](FrameStyle &style) { style.*field = value; }); });
    return { slider, isFrame, [this, slider, field = row.field](const OptionSubject &) {
                slider->setValue(frame().*field);
                slider->setEnabled(m_store.frame().has_value());
            } };
}

OptionItem FrameOptions::aspect()
{
    QStringList texts;
    for (const auto &row : optionLabels<CropAspect>)
        texts += label(row.value);
    QComboBox *aspect
        = OptionControls::choice(QCoreApplication::translate("Options", "Aspect ratio of the framed picture"), texts);
    aspect->setObjectName(QStringLiteral("frameAspect"));
    connect(aspect, &QComboBox::activated, this, [this](int index) {
        change([index](FrameStyle &style) { style.aspect = optionLabels<CropAspect>[size_t(index)].value; });
    });
    return { aspect, isFrame, [this, aspect](const OptionSubject &) {
                const CropAspect present = frame().aspect;
                for (size_t index = 0; index < optionLabels<CropAspect>.size(); ++index) {
                    if (optionLabels<CropAspect>[index].value == present)
                        aspect->setCurrentIndex(int(index));
                }
                aspect->setEnabled(m_store.frame().has_value());
            } };
}

OptionItem FrameOptions::applyToNew()
{
    auto *always = new QCheckBox(QCoreApplication::translate("Options", "Apply to new captures"));
    always->setObjectName(QStringLiteral("frameApplyAlways"));
    always->setToolTip(QCoreApplication::translate("Options",
        "New captures open with this frame and watermark. Off by default, so captures stay "
        "exactly as taken."));
    always->setAccessibleName(always->text());
    always->setAccessibleDescription(always->toolTip());
    always->setFocusPolicy(Qt::TabFocus);
    connect(always, &QCheckBox::clicked, this, [this](bool on) {
        if (const Outcome outcome = m_settings.set(SettingKeys::frameApplyAlways, on); !outcome)
            Q_EMIT failed(outcome.failure().message);
    });
    return { always, isFrame, [this, always](const OptionSubject &) {
                always->setChecked(m_settings.value(SettingKeys::frameApplyAlways));
            } };
}

QList<OptionItem> FrameOptions::makeItems()
{
    QList<OptionItem> items { switchItem(), background() };
    for (const FrameSliderRow &row : sliderRows)
        items += slider(row);
    items += aspect();
    items += applyToNew();
    return items;
}

} // namespace tessaly
