// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/MarkStyleOptions.h"

#include "core/Annotation/AnnotationLabels.h"
#include "core/Editing/MarkCommands.h"
#include "ui/Editor/Options/ColorSwatches.h"
#include "ui/Editor/Options/EmojiButton.h"
#include "ui/Editor/Options/IconChoice.h"
#include "ui/Editor/Options/OptionControls.h"
#include "ui/Editor/Options/ValueSlider.h"

#include <QAbstractItemView>
#include <QFontDatabase>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>

namespace tessaly {

namespace {

using Kind = AnnotationKind;

template <class... Kinds>
constexpr unsigned kinds(Kinds... members)
{
    return ((1U << static_cast<unsigned>(members)) | ...);
}

auto appliesTo(unsigned kindSet)
{
    return [kindSet](const OptionSubject &subject) {
        return subject.topic == OptionSubject::Topic::Marks && (kindSet & kinds(subject.kind));
    };
}

struct SliderRow {
    unsigned kinds;
    const char *name; ///< of the widget
    const char *title;
    const char *help;
    SliderRange range;
    double ToolStyle::*field;
};

constexpr SliderRow widthRow { kinds(Kind::Arrow, Kind::Rectangle, Kind::Ellipse, Kind::Line, Kind::Pen), "lineWidth",
    QT_TRANSLATE_NOOP("Options", "Width"),
    QT_TRANSLATE_NOOP("Options", "Line width (Alt+wheel over the selected mark)"), { 1, 60, 1, ValueUnit::Points },
    &ToolStyle::lineWidth };
constexpr SliderRow sizeRow { kinds(Kind::Text), "textSize", QT_TRANSLATE_NOOP("Options", "Size"),
    QT_TRANSLATE_NOOP("Options", "Text size (Alt+wheel over the selected mark)"), { 8, 144, 1, ValueUnit::Points },
    &ToolStyle::textSize };
constexpr SliderRow opacityRow { kinds(Kind::Highlight), "highlightOpacity", QT_TRANSLATE_NOOP("Options", "Opacity"),
    QT_TRANSLATE_NOOP("Options", "How strongly the highlight covers what lies below"),
    { 0.1, 1, 0.05, ValueUnit::Percent }, &ToolStyle::highlightOpacity };
constexpr SliderRow strengthRow { kinds(Kind::Pixelate), "obscureStrength", QT_TRANSLATE_NOOP("Options", "Strength"),
    QT_TRANSLATE_NOOP("Options", "Strength. For passwords, use Solid: it hides everything."),
    { 0.5, 3, 0.1, ValueUnit::Factor }, &ToolStyle::obscureStrength };
constexpr SliderRow dimRow { kinds(Kind::Spotlight), "spotDim", QT_TRANSLATE_NOOP("Options", "Dimming"),
    QT_TRANSLATE_NOOP("Options", "How dark it is outside the spotlight"), { 0.1, 0.9, 0.05, ValueUnit::Percent },
    &ToolStyle::spotDim };
constexpr SliderRow zoomRow { kinds(Kind::Magnifier), "magnifierZoom", QT_TRANSLATE_NOOP("Options", "Magnification"),
    QT_TRANSLATE_NOOP("Options", "How much the magnifier enlarges (Alt+wheel over the selected mark)"),
    { 1.25, 6, 0.25, ValueUnit::Factor }, &ToolStyle::magnifierZoom };

struct ToggleRow {
    unsigned kinds;
    const char *name;
    const char *title;
    const char *icon;
    bool ToolStyle::*field;
};

constexpr ToggleRow rectFilledRow { kinds(Kind::Rectangle), "rectFilled", QT_TRANSLATE_NOOP("Options", "Filled"),
    "shape-filled", &ToolStyle::rectFilled };
constexpr ToggleRow ellipseFilledRow { kinds(Kind::Ellipse), "ellipseFilled", QT_TRANSLATE_NOOP("Options", "Filled"),
    "ellipse-filled", &ToolStyle::ellipseFilled };
constexpr ToggleRow doubleRow { kinds(Kind::Arrow), "arrowDoubleHeaded", QT_TRANSLATE_NOOP("Options", "Both Ends"),
    "arrow-double", &ToolStyle::arrowDoubleHeaded };
constexpr ToggleRow curvedRow { kinds(Kind::Arrow), "arrowCurved", QT_TRANSLATE_NOOP("Options", "Curved"),
    "arrow-curved", &ToolStyle::arrowCurved };
constexpr ToggleRow boldRow { kinds(Kind::Text), "textBold", QT_TRANSLATE_NOOP("Options", "Bold"), "bold",
    &ToolStyle::textBold };
constexpr ToggleRow italicRow { kinds(Kind::Text), "textItalic", QT_TRANSLATE_NOOP("Options", "Italic"), "italic",
    &ToolStyle::textItalic };

template <class Enum>
QString iconOf(const OptionLabel<Enum> &row)
{
    return QLatin1StringView(row.symbol);
}
QString iconOf(const OptionLabel<ArrowHeadStyle> &row) { return QStringLiteral("arrowhead-") + rawValue(row.value); }
QString iconOf(const OptionLabel<ObscureStyle> &row)
{
    return row.value == ObscureStyle::Pixelate ? QStringLiteral("pixelate")
                                               : QStringLiteral("obscure-") + rawValue(row.value);
}

QString translated(const char *text) { return QCoreApplication::translate("Options", text); }

} // namespace

MarkStyleOptions::MarkStyleOptions(AnnotationStore &store, QObject *parent) : QObject(parent), m_store(store) { }

void MarkStyleOptions::change(const std::function<void(ToolStyle &)> &edit)
{
    const OptionSubject before = optionSubject(m_store);
    ToolStyle style = before.style;
    edit(style);
    if (style == before.style)
        return;
    m_store.setToolStyle(style);
    if (before.isSelection)
        m_store.applyStyleToSelection(m_adjustment.next());
}

OptionItem MarkStyleOptions::colors()
{
    QStringList palette;
    for (const char *color : paletteColors)
        palette += QLatin1StringView(color);
    auto *swatches = new ColorSwatches(QCoreApplication::translate("Options", "Color"), palette, true);
    swatches->setObjectName(QStringLiteral("color"));
    connect(swatches, &ColorSwatches::picked, this,
        [this](const QString &hex) { change([&](ToolStyle &style) { style.colorHex = hex; }); });
    return { swatches,
        appliesTo(kinds(Kind::Arrow, Kind::Text, Kind::Rectangle, Kind::Ellipse, Kind::Line, Kind::Highlight,
            Kind::Stamp, Kind::Pen)),
        [swatches](const OptionSubject &subject) { swatches->setColor(subject.style.colorHex); } };
}

template <class Row>
OptionItem MarkStyleOptions::slider(const Row &row)
{
    auto *slider = new ValueSlider(translated(row.title), translated(row.help), row.range);
    slider->setObjectName(QLatin1StringView(row.name));
    connect(slider, &ValueSlider::begun, this, [this] { m_adjustment.begin(); });
    connect(slider, &ValueSlider::ended, this, [this] { m_adjustment.end(); });
    connect(slider, &ValueSlider::changed, this,
        [this, field = row.field](double value) { change([&](ToolStyle &style) { style.*field = value; }); });
    return { slider, appliesTo(row.kinds),
        [slider, field = row.field](const OptionSubject &subject) { slider->setValue(subject.style.*field); } };
}

template <class Row>
OptionItem MarkStyleOptions::toggle(const Row &row)
{
    auto *toggle = OptionControls::toggle(translated(row.title), QLatin1StringView(row.icon), translated(row.title));
    toggle->setObjectName(QLatin1StringView(row.name));
    connect(toggle, &QToolButton::clicked, this,
        [this, field = row.field](bool on) { change([&](ToolStyle &style) { style.*field = on; }); });
    return { toggle, appliesTo(row.kinds),
        [toggle, field = row.field](const OptionSubject &subject) { toggle->setChecked(subject.style.*field); } };
}

template <class Enum>
OptionItem MarkStyleOptions::choice(unsigned kindSet, const char *name, const char *title, Enum ToolStyle::*field)
{
    QList<IconChoice::Row> rows;
    for (const auto &row : optionLabels<Enum>)
        rows += { label(row.value), iconOf(row) };
    auto *choice = new IconChoice(translated(title), rows);
    choice->setObjectName(QLatin1StringView(name));
    connect(choice, &IconChoice::chosen, this, [this, field](int index) {
        change([&](ToolStyle &style) { style.*field = optionLabels<Enum>[size_t(index)].value; });
    });
    return { choice, appliesTo(kindSet), [choice, field](const OptionSubject &subject) {
                for (size_t index = 0; index < optionLabels<Enum>.size(); ++index) {
                    if (optionLabels<Enum>[index].value == subject.style.*field)
                        choice->setCurrent(int(index));
                }
            } };
}

OptionItem MarkStyleOptions::shape(AnnotationKind kind, const char *name, bool ToolStyle::*isRound)
{
    auto *choice = new IconChoice(QCoreApplication::translate("Options", "Shape"),
        { { QCoreApplication::translate("Options", "Round"), QStringLiteral("ellipse") },
            { QCoreApplication::translate("Options", "Rectangle"), QStringLiteral("rectangle") } });
    choice->setObjectName(QLatin1StringView(name));
    connect(choice, &IconChoice::chosen, this,
        [this, isRound](int index) { change([&](ToolStyle &style) { style.*isRound = index == 0; }); });
    return { choice, appliesTo(kinds(kind)),
        [choice, isRound](const OptionSubject &subject) { choice->setCurrent(subject.style.*isRound ? 0 : 1); } };
}

OptionItem MarkStyleOptions::font()
{
    auto *fonts = new QComboBox;
    const QStringList families = QFontDatabase::families();
    fonts->addItem(QCoreApplication::translate("Options", "System Font"), QString());
    for (const QString &family : families) {
        if (!QFontDatabase::isPrivateFamily(family))
            fonts->addItem(family, family);
    }
    fonts->setObjectName(QStringLiteral("textFont"));
    fonts->setToolTip(QCoreApplication::translate("Options", "Font"));
    fonts->setAccessibleName(QCoreApplication::translate("Options", "Font"));
    fonts->setFocusPolicy(Qt::TabFocus);
    fonts->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    fonts->setMinimumContentsLength(14);
    fonts->setMaxVisibleItems(20);
    const int scrollBar = fonts->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    fonts->view()->setMinimumWidth(fonts->view()->sizeHintForColumn(0) + scrollBar + 8); // whole names
    connect(fonts, &QComboBox::activated, this, [this, fonts](int index) {
        change([&](ToolStyle &style) { style.textFont = fonts->itemData(index).toString(); });
    });
    return { fonts, appliesTo(kinds(Kind::Text)), [fonts](const OptionSubject &subject) {
                const QString &family = subject.style.textFont;
                if (fonts->findData(family) < 0)
                    fonts->addItem(family, family); // of a mark from a machine that has it
                fonts->setCurrentIndex(fonts->findData(family));
            } };
}

OptionItem MarkStyleOptions::emoji()
{
    auto *button = new EmojiButton;
    button->setObjectName(QStringLiteral("stickerEmoji"));
    connect(button, &EmojiButton::picked, this,
        [this](const QString &emoji) { change([&](ToolStyle &style) { style.stickerEmoji = emoji; }); });
    return { button, appliesTo(kinds(Kind::Sticker)),
        [button](const OptionSubject &subject) { button->setEmoji(subject.style.stickerEmoji); } };
}

QList<OptionItem> MarkStyleOptions::makeItems()
{
    OptionItem strength = slider(strengthRow);
    // Solid and stripes hide all there is at any strength.
    strength.refresh = [show = strength.refresh, widget = strength.widget](const OptionSubject &subject) {
        show(subject);
        const ObscureStyle style = subject.style.obscureStyle;
        widget->setEnabled(style == ObscureStyle::Pixelate || style == ObscureStyle::Blur);
    };
    return {
        choice(kinds(Kind::Stamp), "stampKind", QT_TRANSLATE_NOOP("Options", "Stamp"), &ToolStyle::stampKind),
        emoji(),
        choice(kinds(Kind::Pixelate), "obscureStyle", QT_TRANSLATE_NOOP("Options", "Hiding"), &ToolStyle::obscureStyle),
        strength,
        colors(),
        slider(widthRow),
        slider(sizeRow),
        slider(opacityRow),
        slider(dimRow),
        slider(zoomRow),
        toggle(rectFilledRow),
        toggle(ellipseFilledRow),
        choice(kinds(Kind::Arrow), "arrowHead", QT_TRANSLATE_NOOP("Options", "Arrow Head"), &ToolStyle::arrowHead),
        toggle(curvedRow),
        toggle(doubleRow),
        toggle(boldRow),
        toggle(italicRow),
        font(),
        shape(Kind::Spotlight, "spotEllipse", &ToolStyle::spotEllipse),
        shape(Kind::Magnifier, "magnifierRound", &ToolStyle::magnifierRound),
    };
}

} // namespace tessaly
