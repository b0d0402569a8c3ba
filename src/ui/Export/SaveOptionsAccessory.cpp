// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/SaveOptionsAccessory.h"

#include "core/Preferences/Settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QSlider>

#include <cmath>

namespace tessaly {

namespace {

// The slider counts in twentieths: 0.3 to 1.0 in steps of 0.05.
constexpr int ticksPerUnit = 20;
constexpr int firstTick = 6;
constexpr int lastTick = 20;

QString qualityTip(ExportFormat format)
{
    return format == ExportFormat::Webp ? QCoreApplication::translate("SaveOptionsAccessory",
               "Lower values produce smaller files but more compression artefacts. 100% is lossless.")
                                        : QCoreApplication::translate("SaveOptionsAccessory",
                                            "Lower values produce smaller files but more compression artefacts.");
}

} // namespace

SaveOptionsAccessory::SaveOptionsAccessory(
    ExportFormat format, bool offersDocument, Settings &settings, QWidget *parent) :
    QWidget(parent),
    m_settings(settings),
    m_format(format),
    m_quality(storedQuality(format, settings)),
    m_offersDocument(offersDocument),
    m_grid(new QGridLayout(this)),
    m_formats(new QComboBox(this)),
    m_qualityLabel(new QLabel(QCoreApplication::translate("SaveOptionsAccessory", "Quality") + u':', this)),
    m_qualityRow(new QWidget(this)),
    m_slider(new QSlider(Qt::Horizontal, m_qualityRow)),
    m_percent(new QLabel(m_qualityRow)),
    m_document(new QCheckBox(QCoreApplication::translate("SaveOptionsAccessory", "Also save Tessaly document"), this))
{
    m_grid->setContentsMargins(12, 20, 12, 20);
    m_grid->setHorizontalSpacing(8);
    m_grid->setVerticalSpacing(10);
    m_grid->setColumnStretch(1, 1);
    addFormatRow();
    addQualityRow();
    addDocumentRow();
    showQuality();
}

void SaveOptionsAccessory::addFormatRow()
{
    for (const auto &[format, name] : enumNames<ExportFormat>)
        m_formats->addItem(label(format), QString(name));
    m_formats->setCurrentIndex(std::max(m_formats->findData(QString(rawValue(m_format))), 0));
    m_formats->setObjectName(QStringLiteral("format"));
    m_formats->setAccessibleName(QCoreApplication::translate("SaveOptionsAccessory", "Format"));
    m_formats->setToolTip(QCoreApplication::translate("SaveOptionsAccessory", "The kind of file to write"));
    connect(m_formats, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (const auto chosen = enumFromRaw<ExportFormat>(m_formats->itemData(index).toString()))
            setFormat(*chosen);
    });
    auto *label = new QLabel(QCoreApplication::translate("SaveOptionsAccessory", "Format") + u':', this);
    label->setBuddy(m_formats);
    m_grid->addWidget(label, 0, 0, Qt::AlignRight | Qt::AlignVCenter);
    m_grid->addWidget(m_formats, 0, 1, Qt::AlignLeft);
}

void SaveOptionsAccessory::addQualityRow()
{
    m_slider->setObjectName(QStringLiteral("quality"));
    m_slider->setAccessibleName(QCoreApplication::translate("SaveOptionsAccessory", "Quality"));
    m_slider->setRange(firstTick, lastTick);
    m_slider->setTickPosition(QSlider::TicksBelow);
    m_slider->setTickInterval(1);
    m_slider->setPageStep(2);
    m_slider->setFixedWidth(160);
    connect(m_slider, &QSlider::valueChanged, this, &SaveOptionsAccessory::takeQuality);
    m_percent->setObjectName(QStringLiteral("percent"));
    QFont digits = font();
    digits.setFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    m_percent->setFont(digits);
    m_percent->setFixedWidth(std::max(44, QFontMetrics(digits).horizontalAdvance(QStringLiteral("100%"))));
    m_qualityLabel->setBuddy(m_slider);
    auto *row = new QHBoxLayout(m_qualityRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(m_slider);
    row->addWidget(m_percent);
    m_grid->addWidget(m_qualityLabel, 1, 0, Qt::AlignRight | Qt::AlignVCenter);
    m_grid->addWidget(m_qualityRow, 1, 1, Qt::AlignLeft);
}

void SaveOptionsAccessory::addDocumentRow()
{
    m_document->setObjectName(QStringLiteral("document"));
    m_document->setToolTip(QCoreApplication::translate("SaveOptionsAccessory",
        "Saves an .tessaly file next to the image, so you can reopen it later and keep editing "
        "the annotations."));
    m_document->setChecked(m_settings.value(SettingKeys::alsoSaveTessalyDocument));
    m_document->setVisible(m_offersDocument);
    connect(m_document, &QCheckBox::toggled, this, [this](bool on) {
        // A setting that cannot be written holds for this run.
        static_cast<void>(m_settings.set(SettingKeys::alsoSaveTessalyDocument, on));
    });
    m_grid->addWidget(m_document, 2, 1, Qt::AlignLeft);
}

bool SaveOptionsAccessory::alsoDocument() const { return m_offersDocument && m_document->isChecked(); }

void SaveOptionsAccessory::setFormat(ExportFormat format)
{
    if (format == m_format)
        return;
    m_format = format;
    m_quality = storedQuality(format, m_settings);
    m_formats->setCurrentIndex(m_formats->findData(QString(rawValue(format))));
    showQuality();
    if (onFormatChange)
        onFormatChange(format);
}

void SaveOptionsAccessory::showQuality()
{
    const double quality = m_quality;
    {
        // A stored quality between two ticks stays what it is until the slider is moved.
        const QSignalBlocker blocker(m_slider);
        m_slider->setValue(static_cast<int>(std::lround(quality * ticksPerUnit)));
    }
    m_percent->setText(QStringLiteral("%1%").arg(std::lround(quality * 100)));
    m_slider->setToolTip(qualityTip(m_format));
    m_qualityLabel->setVisible(isLossy(m_format));
    m_qualityRow->setVisible(isLossy(m_format));
}

void SaveOptionsAccessory::takeQuality(int tick)
{
    m_quality = static_cast<double>(tick) / ticksPerUnit;
    showQuality();
}

} // namespace tessaly
