// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Editor/Options/Adjustment.h"
#include "ui/Editor/Options/OptionItem.h"

#include <QObject>

namespace tessaly {

/// The options that belong to one mark and not to the style of those to come: a stamp's caption, tail and disc; the
/// file of an image.
class MarkContentOptions : public QObject {
    Q_OBJECT

public:
    /// Keeps the reference.
    explicit MarkContentOptions(AnnotationStore &store, QObject *parent = nullptr);

    QList<OptionItem> makeItems();

Q_SIGNALS:
    /// A picture file shall be chosen and inserted.
    void imageRequested();
    /// The user is done with a field; the canvas may have the keys again.
    void finished();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    OptionItem caption();
    OptionItem tail();
    OptionItem disc();
    OptionItem chooseImage();

    AnnotationStore &m_store;
    Adjustment m_adjustment;
};

/// Whether a stamp is drawn on a disc: as it says, or else when it is a number.
bool hasDisc(const Annotation &stamp);

} // namespace tessaly
