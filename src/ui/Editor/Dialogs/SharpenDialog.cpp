// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Dialogs/SharpenDialog.h"

#include "core/Imaging/ImageEdit.h"
#include "core/Preferences/Settings.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

namespace tessaly {

namespace {

constexpr QSize previewSize { 220, 165 }; // points

/// The sum of the differences between neighbours on every 4th row.
qint64 edges(const QImage &pixels, const QRect &area)
{
    qint64 sum = 0;
    for (int y = area.top(); y <= area.bottom(); y += 4) {
        const auto *row = reinterpret_cast<const QRgb *>(pixels.constScanLine(y));
        for (int x = area.left() + 1; x <= area.right(); ++x)
            sum += std::abs(qGreen(row[x]) - qGreen(row[x - 1]));
    }
    return sum;
}

QLabel *preview(const QString &name)
{
    auto *label = new QLabel;
    label->setFrameStyle(QFrame::StyledPanel | QFrame::Plain); // a white picture on a light ground has an edge
    label->setFixedSize(previewSize + 2 * QSize(label->frameWidth(), label->frameWidth()));
    label->setAlignment(Qt::AlignCenter);
    label->setAccessibleName(name);
    label->setToolTip(name);
    return label;
}

} // namespace

QRect detailOf(const QImage &pixels, QSize pixelSize)
{
    const QSize size = pixelSize.boundedTo(pixels.size());
    constexpr int steps = 5;
    QRect best({}, size);
    qint64 most = -1;
    for (int place = 0; place < steps * steps; ++place) {
        const QPoint corner((pixels.width() - size.width()) * (place % steps) / (steps - 1),
            (pixels.height() - size.height()) * (place / steps) / (steps - 1));
        const qint64 found = edges(pixels, { corner, size });
        if (found > most) {
            most = found;
            best = { corner, size };
        }
    }
    return best;
}

SharpenDialog::SharpenDialog(const RasterImage &image, Settings &settings, QWidget *parent) :
    QDialog(parent),
    m_settings(settings),
    m_slider(new QSlider(Qt::Horizontal)),
    m_percent(new QLabel),
    m_before(preview(tr("Before"))),
    m_after(preview(tr("After")))
{
    setWindowTitle(tr("Sharpen Image"));
    const double ratio = devicePixelRatioF();
    const QImage detail = image.pixels.copy(detailOf(image.pixels, (QSizeF(previewSize) * ratio).toSize()));
    m_detail = RasterImage::fromPixels(detail, image.pixelScale());

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(16);
    auto *pair = new QGridLayout;
    pair->setHorizontalSpacing(16);
    pair->setVerticalSpacing(4);
    pair->addWidget(new QLabel(tr("Before")), 0, 0);
    pair->addWidget(new QLabel(tr("After")), 0, 1);
    pair->addWidget(m_before, 1, 0);
    pair->addWidget(m_after, 1, 1);
    layout->addLayout(pair);

    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    auto *label = new QLabel(tr("Amount"));
    label->setBuddy(m_slider);
    row->addWidget(label);
    row->addWidget(m_slider, 1);
    row->addWidget(m_percent);
    layout->addLayout(row);
    m_slider->setObjectName(QStringLiteral("amount"));
    m_slider->setRange(0, maxPercent);
    m_slider->setPageStep(10);
    m_slider->setAccessibleName(tr("Amount"));
    m_slider->setToolTip(tr("How strongly edges are sharpened"));
    m_percent->setMinimumWidth(fontMetrics().horizontalAdvance(tr("%1 %").arg(maxPercent)));
    m_slider->setValue(qRound(std::clamp(settings.value(SettingKeys::sharpenAmount), 0.0, double(maxPercent))));

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton *apply = buttons->addButton(tr("Apply"), QDialogButtonBox::AcceptRole);
    apply->setDefault(true);
    apply->setToolTip(tr("Sharpen the picture (Return)"));
    buttons->button(QDialogButtonBox::Cancel)->setToolTip(tr("Cancel (Esc)"));
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false); // Return never means it
    m_slider->setFocus();
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    m_preview.setSingleShot(true);
    connect(&m_preview, &QTimer::timeout, this, &SharpenDialog::showAfter);
    connect(m_slider, &QSlider::valueChanged, this, &SharpenDialog::showAmount);
    QPixmap before = QPixmap::fromImage(detail);
    before.setDevicePixelRatio(ratio);
    m_before->setPixmap(before);
    showAmount();
    showAfter();
}

double SharpenDialog::amount() const { return m_slider->value() / 100.0; }

Outcome SharpenDialog::remember() const { return m_settings.set(SettingKeys::sharpenAmount, m_slider->value()); }

void SharpenDialog::showAmount()
{
    m_percent->setText(tr("%1 %").arg(m_slider->value()));
    m_preview.start(0);
}

void SharpenDialog::showAfter()
{
    const auto sharpened = applied(m_detail, ImageEdit::sharpen(amount()));
    QPixmap picture = QPixmap::fromImage(sharpened ? sharpened->pixels : m_detail.pixels);
    picture.setDevicePixelRatio(devicePixelRatioF());
    m_after->setPixmap(picture);
}

} // namespace tessaly
