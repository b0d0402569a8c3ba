// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/WatermarkOptions.h"

#include "core/Desktop/Alerts.h"
#include "core/Frame/FrameSettings.h"
#include "ui/Editor/Options/ColorSwatches.h"
#include "ui/Editor/Options/OptionControls.h"
#include "ui/Editor/Options/Popover.h"
#include "ui/Editor/Options/ValueSlider.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QCoreApplication>
#include <QEvent>
#include <QFileDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace tessaly {

namespace {

QString translated(const char *text) { return QCoreApplication::translate("Options", text); }

struct PositionRow {
    WatermarkPosition position;
    const char *sign; ///< an arrow towards the place
    const char *name;
};

constexpr PositionRow positions[] {
    { WatermarkPosition::TopLeft, "↖", QT_TRANSLATE_NOOP("Options", "Top left") },
    { WatermarkPosition::Top, "↑", QT_TRANSLATE_NOOP("Options", "Top") },
    { WatermarkPosition::TopRight, "↗", QT_TRANSLATE_NOOP("Options", "Top right") },
    { WatermarkPosition::Left, "←", QT_TRANSLATE_NOOP("Options", "Left") },
    { WatermarkPosition::Center, "•", QT_TRANSLATE_NOOP("Options", "Center") },
    { WatermarkPosition::Right, "→", QT_TRANSLATE_NOOP("Options", "Right") },
    { WatermarkPosition::BottomLeft, "↙", QT_TRANSLATE_NOOP("Options", "Bottom left") },
    { WatermarkPosition::Bottom, "↓", QT_TRANSLATE_NOOP("Options", "Bottom") },
    { WatermarkPosition::BottomRight, "↘", QT_TRANSLATE_NOOP("Options", "Bottom right") },
    { WatermarkPosition::Tile, "▦", QT_TRANSLATE_NOOP("Options", "Tiled over the whole picture") },
};

struct WatermarkSliderRow {
    const char *name;
    const char *title;
    const char *help;
    SliderRange range;
    double Watermark::*field;
};

constexpr WatermarkSliderRow sliderRows[] {
    { "watermarkOpacity", QT_TRANSLATE_NOOP("Options", "Opacity"),
        QT_TRANSLATE_NOOP("Options", "Opacity of the watermark"), { 0.05, 1, 0.05, ValueUnit::Percent },
        &Watermark::opacity },
    { "watermarkSize", QT_TRANSLATE_NOOP("Options", "Size"),
        QT_TRANSLATE_NOOP("Options", "Size of the watermark relative to the picture"),
        { 0.05, 1, 0.05, ValueUnit::Percent }, &Watermark::size },
};

} // namespace

WatermarkOptions::WatermarkOptions(
    AnnotationStore &store, FrameSettings &frameSettings, Alerts &alerts, QObject *parent) :
    QObject(parent),
    m_store(store),
    m_frameSettings(frameSettings),
    m_alerts(alerts)
{
}

Watermark WatermarkOptions::watermark() const
{
    return m_store.watermark().value_or(m_frameSettings.rememberedWatermark());
}

void WatermarkOptions::remember()
{
    if (const Outcome outcome = m_frameSettings.remember(m_store.watermark()); !outcome)
        Q_EMIT failed(outcome.failure().message);
}

void WatermarkOptions::change(const std::function<void(Watermark &)> &edit)
{
    Watermark mark = watermark();
    edit(mark);
    if (m_store.watermark() == mark)
        return;
    m_store.setWatermark(mark, m_adjustment.next());
    if (!m_adjustment.isActive())
        remember();
}

void WatermarkOptions::setOn(bool on)
{
    m_store.setWatermark(on ? std::optional(m_frameSettings.rememberedWatermark()) : std::nullopt, Undo::Record);
    remember();
}

void WatermarkOptions::useLogo(const QString &path)
{
    const Result<QByteArray> logo = m_frameSettings.importLogo(path);
    if (!logo) {
        m_alerts.warn(
            QCoreApplication::translate("Options", "Couldn't use this image as a watermark"), logo.failure().message);
        return;
    }
    change([&](Watermark &mark) {
        mark.kind = WatermarkKind::Image;
        mark.imageData = *logo;
    });
}

void WatermarkOptions::chooseLogo(QWidget *parent)
{
    const QString message
        = QCoreApplication::translate("Options", "Choose an image for your watermark. Tessaly keeps its own copy.");
    const QString path = QFileDialog::getOpenFileName(parent, message, {},
        QCoreApplication::translate("Options", "Images (*.png *.jpg *.jpeg *.webp *.svg *.gif *.tiff *.tif *.bmp)"));
    if (!path.isEmpty())
        useLogo(path);
}

void WatermarkOptions::addSwitch(QVBoxLayout &layout)
{
    auto *on = new QCheckBox(QCoreApplication::translate("Options", "Watermark"));
    on->setObjectName(QStringLiteral("watermarkOn"));
    on->setToolTip(QCoreApplication::translate("Options", "Draw a text or a logo over the finished picture"));
    on->setAccessibleName(QCoreApplication::translate("Options", "Watermark"));
    connect(on, &QCheckBox::clicked, this, &WatermarkOptions::setOn);
    layout.addWidget(on);
    m_refreshers += [this, on](const Watermark &) { on->setChecked(m_store.watermark().has_value()); };
}

void WatermarkOptions::addContent(QFormLayout &form, QWidget *panel)
{
    QComboBox *kind = OptionControls::choice(QCoreApplication::translate("Options", "Kind of watermark"),
        { QCoreApplication::translate("Options", "Text"), QCoreApplication::translate("Options", "Logo") });
    kind->setObjectName(QStringLiteral("watermarkKind"));
    kind->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    form.addRow(QCoreApplication::translate("Options", "Kind"), kind);
    auto *logo = new QPushButton(QCoreApplication::translate("Options", "Choose Image…"));
    logo->setObjectName(QStringLiteral("watermarkLogo"));
    logo->setToolTip(QCoreApplication::translate("Options", "Choose another logo"));
    logo->setAccessibleName(QCoreApplication::translate("Options", "Choose another logo"));
    logo->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    form.addRow(QCoreApplication::translate("Options", "Logo"), logo);
    connect(logo, &QPushButton::clicked, this, [this, panel] { chooseLogo(panel); });
    connect(kind, &QComboBox::activated, this, [this, panel](int index) {
        const WatermarkKind chosen = index == 0 ? WatermarkKind::Text : WatermarkKind::Image;
        if (chosen == WatermarkKind::Image && !watermark().imageData)
            chooseLogo(panel); // sets the kind too, unless it is cancelled
        else
            change([&](Watermark &mark) { mark.kind = chosen; });
        refresh();
    });
    m_refreshers += [kind, logo, &form](const Watermark &mark) {
        const bool isText = mark.kind == WatermarkKind::Text;
        kind->setCurrentIndex(isText ? 0 : 1);
        form.setRowVisible(logo, !isText);
    };
}

void WatermarkOptions::addText(QFormLayout &form)
{
    auto *text = new QLineEdit;
    text->setObjectName(QStringLiteral("watermarkText"));
    text->setPlaceholderText(QCoreApplication::translate("Options", "Your name or notice"));
    text->setToolTip(QCoreApplication::translate("Options", "The text of the watermark"));
    text->setAccessibleName(QCoreApplication::translate("Options", "Watermark text"));
    text->setMinimumWidth(text->fontMetrics().averageCharWidth() * 28);
    text->installEventFilter(this);
    form.addRow(QCoreApplication::translate("Options", "Text"), text);
    auto *missing = new QLabel(QCoreApplication::translate("Options", "Nothing is drawn until there is a text."));
    missing->setObjectName(QStringLiteral("watermarkTextMissing"));
    form.addRow(QString(), missing);
    connect(text, &QLineEdit::textEdited, this,
        [this](const QString &typed) { change([&](Watermark &mark) { mark.text = typed; }); });
    m_refreshers += [text, missing, &form](const Watermark &mark) {
        const bool isText = mark.kind == WatermarkKind::Text;
        form.setRowVisible(text, isText);
        form.setRowVisible(missing, isText && !mark.isVisible());
        if (text->text() != mark.text)
            text->setText(mark.text);
    };
}

void WatermarkOptions::addColors(QFormLayout &form)
{
    QStringList colors;
    for (const char *hex : Watermark::textColors)
        colors += QLatin1StringView(hex);
    auto *swatches = new ColorSwatches(QCoreApplication::translate("Options", "Color"), colors, false);
    swatches->setObjectName(QStringLiteral("watermarkColor"));
    swatches->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    form.addRow(QCoreApplication::translate("Options", "Color"), swatches);
    connect(swatches, &ColorSwatches::picked, this,
        [this](const QString &hex) { change([&](Watermark &mark) { mark.colorHex = hex; }); });
    m_refreshers += [swatches, &form](const Watermark &mark) {
        swatches->setColor(mark.colorHex);
        form.setRowVisible(swatches, mark.kind == WatermarkKind::Text);
    };
}

void WatermarkOptions::addPositions(QFormLayout &form)
{
    auto *cells = new QWidget;
    cells->setObjectName(QStringLiteral("watermarkPosition"));
    auto *grid = new QGridLayout(cells);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(4);
    auto *group = new QButtonGroup(cells);
    int index = 0;
    for (const PositionRow &row : positions) {
        QToolButton *cell = OptionControls::toggle(translated(row.name), {}, translated(row.name));
        cell->setText(QString::fromUtf8(row.sign));
        cell->setAccessibleName(translated(row.name));
        cell->setFixedWidth(cell->sizeHint().height() + 8);
        group->addButton(cell, index);
        grid->addWidget(cell, index % 9 / 3, index < 9 ? index % 3 : 4);
        ++index;
    }
    grid->setColumnMinimumWidth(3, 8);
    connect(group, &QButtonGroup::idClicked, this,
        [this](int id) { change([id](Watermark &mark) { mark.position = positions[id].position; }); });
    cells->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    form.addRow(QCoreApplication::translate("Options", "Position"), cells);
    m_refreshers += [group](const Watermark &mark) {
        for (int id = 0; id < int(std::size(positions)); ++id) {
            if (positions[id].position == mark.position)
                group->button(id)->setChecked(true);
        }
    };
}

void WatermarkOptions::addSliders(QFormLayout &form)
{
    for (const WatermarkSliderRow &row : sliderRows) {
        auto *slider = new ValueSlider(translated(row.title), translated(row.help), row.range);
        slider->setObjectName(QLatin1StringView(row.name));
        slider->slider().setMaximumWidth(QWIDGETSIZE_MAX);
        form.addRow(&slider->label(), slider);
        connect(slider, &ValueSlider::begun, this, [this] { m_adjustment.begin(); });
        connect(slider, &ValueSlider::ended, this, [this] {
            m_adjustment.end();
            remember();
        });
        connect(slider, &ValueSlider::changed, this,
            [this, field = row.field](double value) { change([&](Watermark &mark) { mark.*field = value; }); });
        m_refreshers += [slider, field = row.field](const Watermark &mark) { slider->setValue(mark.*field); };
    }
}

OptionItem WatermarkOptions::makeItem()
{
    auto *button = new PopoverButton(QCoreApplication::translate("Options", "Watermark"),
        QCoreApplication::translate("Options", "A text or a logo over the finished picture"));
    button->setObjectName(QStringLiteral("watermark"));
    addSwitch(button->content());
    auto *details = new QWidget;
    button->content().addWidget(details);
    auto *form = new QFormLayout(details);
    form->setContentsMargins(0, 0, 0, 0);
    form->setHorizontalSpacing(12);
    form->setVerticalSpacing(8);
    form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addContent(*form, &button->panel());
    addText(*form);
    addColors(*form);
    addPositions(*form);
    addSliders(*form);
    m_refreshers += [this, details](const Watermark &) { details->setEnabled(m_store.watermark().has_value()); };
    return { button, [](const OptionSubject &subject) { return subject.topic == OptionSubject::Topic::Frame; },
        [this](const OptionSubject &) { refresh(); } };
}

void WatermarkOptions::refresh()
{
    const Watermark mark = watermark();
    for (const auto &show : std::as_const(m_refreshers))
        show(mark);
}

bool WatermarkOptions::eventFilter(QObject *watched, QEvent *event)
{
    // All that is typed while the field has the focus is one undo step.
    if (event->type() == QEvent::FocusIn) {
        m_adjustment.begin();
    } else if (event->type() == QEvent::FocusOut && m_adjustment.isActive()) {
        m_adjustment.end();
        remember();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tessaly
