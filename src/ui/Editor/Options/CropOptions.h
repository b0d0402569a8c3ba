// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Editor/Options/OptionItem.h"

#include <QObject>

class QSpinBox;

namespace tessaly {

/// The options of the crop rectangle: its ratio, its size in pixels, and the buttons that end cropping.
class CropOptions : public QObject {
    Q_OBJECT

public:
    /// Keeps the reference.
    explicit CropOptions(AnnotationStore &store, QObject *parent = nullptr);

    QList<OptionItem> makeItems();

Q_SIGNALS:
    void applyRequested();
    void cancelRequested();

private:
    OptionItem aspect();
    OptionItem size();
    OptionItem lock();
    OptionItem ending(const char *name, const QString &title, const QString &help, void (CropOptions::*signal)());

    AnnotationStore &m_store;
    QSpinBox *m_width = nullptr;
    QSpinBox *m_height = nullptr;
};

} // namespace tessaly
