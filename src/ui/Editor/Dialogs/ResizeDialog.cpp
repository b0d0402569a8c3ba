// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Dialogs/ResizeDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace tessaly {

namespace {

QSpinBox *pixelField(const QString &objectName, const QString &name)
{
    auto *field = new QSpinBox;
    field->setObjectName(objectName);
    field->setRange(0, ResizeDialog::maxSide); // an emptied field is 0, which Apply refuses
    field->setSuffix(ResizeDialog::tr(" px"));
    field->setAccelerated(true);
    field->setAccessibleName(name);
    field->setToolTip(ResizeDialog::tr("%1 in pixels").arg(name));
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 16);
    return field;
}

} // namespace

QSize resizedByPercentage(QSize original, int percent)
{
    const auto side = [percent](int pixels) { return int(std::max<qint64>(qint64(pixels) * percent / 100, 1)); };
    return { side(original.width()), side(original.height()) };
}

ResizeDialog::ResizeDialog(QSize original, QWidget *parent) :
    QDialog(parent),
    m_original(original),
    m_width(pixelField(QStringLiteral("width"), tr("Width"))),
    m_height(pixelField(QStringLiteral("height"), tr("Height"))),
    m_lockRatio(new QCheckBox(tr("Keep proportions")))
{
    setWindowTitle(tr("Resize Image"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(16);

    auto *form = new QFormLayout;
    form->setHorizontalSpacing(8);
    form->setVerticalSpacing(8);
    form->addRow(tr("Width"), m_width);
    form->addRow(tr("Height"), m_height);
    m_lockRatio->setObjectName(QStringLiteral("lockRatio"));
    m_lockRatio->setChecked(true);
    m_lockRatio->setToolTip(tr("Width and height keep their ratio"));
    form->addRow(QString(), m_lockRatio);
    layout->addLayout(form);

    auto *quick = new QHBoxLayout;
    quick->setSpacing(4);
    for (const int percent : percentages) {
        auto *button = new QPushButton(tr("%1 %").arg(percent));
        button->setAutoDefault(false);
        button->setToolTip(tr("%1 % of the present size").arg(percent));
        connect(button, &QPushButton::clicked, this, [this, percent] { applyPercentage(percent); });
        quick->addWidget(button);
    }
    layout->addLayout(quick);
    auto *present = new QLabel(tr("Now %1 × %2 pixels").arg(original.width()).arg(original.height()));
    layout->addWidget(present);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_apply = buttons->addButton(tr("Apply"), QDialogButtonBox::AcceptRole);
    m_apply->setObjectName(QStringLiteral("apply"));
    m_apply->setDefault(true);
    m_apply->setToolTip(tr("Resize the picture (Return)"));
    buttons->button(QDialogButtonBox::Cancel)->setToolTip(tr("Cancel (Esc)"));
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false); // Return never means it
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    set(original);
    connect(m_width, &QSpinBox::valueChanged, this, [this] { follow(*m_width); });
    connect(m_height, &QSpinBox::valueChanged, this, [this] { follow(*m_height); });
    m_width->setFocus();
    m_width->selectAll();
}

QSize ResizeDialog::pixelSize() const { return { m_width->value(), m_height->value() }; }

void ResizeDialog::set(QSize size)
{
    m_syncing = true;
    m_width->setValue(size.width());
    m_height->setValue(size.height());
    m_syncing = false;
    updateApply();
}

void ResizeDialog::follow(const QSpinBox &changed)
{
    if (m_syncing)
        return;
    QSize size = pixelSize();
    if (m_lockRatio->isChecked() && !m_original.isEmpty()) {
        const double ratio = double(m_original.width()) / m_original.height();
        if (&changed == m_width)
            size.setHeight(int(std::lround(size.width() / ratio)));
        else
            size.setWidth(int(std::lround(size.height() * ratio)));
    }
    set(size);
}

void ResizeDialog::applyPercentage(int percent) { set(resizedByPercentage(m_original, percent)); }

void ResizeDialog::updateApply()
{
    const QSize size = pixelSize();
    m_apply->setEnabled(size.width() >= 1 && size.height() >= 1 && size != m_original);
}

} // namespace tessaly
