// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/CropOptions.h"

#include "core/Annotation/AnnotationLabels.h"
#include "ui/Editor/Options/OptionControls.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

namespace tessaly {

namespace {

bool isCropping(const OptionSubject &subject) { return subject.topic == OptionSubject::Topic::Crop; }

QSpinBox *pixelField(const QString &name, int maximum)
{
    auto *field = new QSpinBox;
    field->setRange(1, maximum);
    field->setKeyboardTracking(false);
    field->setAccessibleName(name);
    field->setToolTip(name);
    return field;
}

} // namespace

CropOptions::CropOptions(AnnotationStore &store, QObject *parent) : QObject(parent), m_store(store) { }

OptionItem CropOptions::aspect()
{
    QStringList texts;
    for (const auto &row : optionLabels<CropAspect>)
        texts += label(row.value);
    QComboBox *aspect = OptionControls::choice(QCoreApplication::translate("Options", "Aspect Ratio"), texts);
    aspect->setObjectName(QStringLiteral("cropAspect"));
    connect(aspect, &QComboBox::activated, this,
        [this](int index) { m_store.setCropAspect(optionLabels<CropAspect>[size_t(index)].value); });
    return { OptionControls::titled(QCoreApplication::translate("Options", "Aspect"), aspect), isCropping,
        [this, aspect](const OptionSubject &) {
            for (size_t index = 0; index < optionLabels<CropAspect>.size(); ++index) {
                if (optionLabels<CropAspect>[index].value == m_store.cropAspect())
                    aspect->setCurrentIndex(int(index));
            }
        } };
}

OptionItem CropOptions::size()
{
    auto *fields = new QWidget;
    fields->setObjectName(QStringLiteral("cropSize"));
    auto *layout = new QHBoxLayout(fields);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    const QSize pixels = m_store.pixelDimensions();
    m_width = pixelField(QCoreApplication::translate("Options", "Width in pixels"), std::max(1, pixels.width()));
    m_height = pixelField(QCoreApplication::translate("Options", "Height in pixels"), std::max(1, pixels.height()));
    layout->addWidget(m_width);
    layout->addWidget(new QLabel(QStringLiteral("×")));
    layout->addWidget(m_height);
    layout->addWidget(new QLabel(QCoreApplication::translate("Options", "pixels")));
    connect(m_width, &QSpinBox::valueChanged, this, [this](int width) { m_store.setCropWidth(width); });
    connect(m_height, &QSpinBox::valueChanged, this, [this](int height) { m_store.setCropHeight(height); });
    return { fields, isCropping, [this](const OptionSubject &) {
                const QSignalBlocker noWidth(m_width), noHeight(m_height);
                const QSize picture = m_store.pixelDimensions();
                const QSizeF crop = m_store.cropRect().size() * m_store.pixelScale();
                m_width->setMaximum(std::max(1, picture.width()));
                m_height->setMaximum(std::max(1, picture.height()));
                m_width->setValue(qRound(crop.width()));
                m_height->setValue(qRound(crop.height()));
            } };
}

OptionItem CropOptions::lock()
{
    auto *lock = OptionControls::toggle(QCoreApplication::translate("Options", "Lock Ratio"), QLatin1StringView("lock"),
        QCoreApplication::translate("Options", "Keep the present ratio of width to height (Shift while dragging)"));
    lock->setObjectName(QStringLiteral("cropLock"));
    connect(lock, &QToolButton::clicked, this, [this](bool on) { m_store.setCropLock(on); });
    return { lock, isCropping, [this, lock](const OptionSubject &) {
                lock->setChecked(m_store.cropLock() || m_store.cropAspect() != CropAspect::Free);
                lock->setEnabled(m_store.cropAspect() == CropAspect::Free);
            } };
}

OptionItem CropOptions::ending(
    const char *name, const QString &title, const QString &help, void (CropOptions::*signal)())
{
    auto *button = new QPushButton(title);
    button->setToolTip(help);
    button->setAccessibleName(title);
    button->setFocusPolicy(Qt::TabFocus);
    button->setDefault(signal == &CropOptions::applyRequested); // the one that Return stands for
    button->setObjectName(QLatin1StringView(name));
    connect(button, &QPushButton::clicked, this, signal);
    return { button, isCropping, [](const OptionSubject &) {} };
}

QList<OptionItem> CropOptions::makeItems()
{
    return {
        aspect(),
        size(),
        lock(),
        ending("cropCancel", QCoreApplication::translate("Options", "Cancel"),
            QCoreApplication::translate("Options", "Leave the picture as it is (Esc)"), &CropOptions::cancelRequested),
        ending("cropApply", QCoreApplication::translate("Options", "Crop"),
            QCoreApplication::translate("Options", "Cut the picture to the rectangle (Return)"),
            &CropOptions::applyRequested),
    };
}

} // namespace tessaly
