// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Editor/Options/Adjustment.h"
#include "ui/Editor/Options/OptionItem.h"

#include <QObject>

namespace tessaly {

/// The options that are fields of a mark's style. What is changed holds for the selected mark and for new ones.
class MarkStyleOptions : public QObject {
    Q_OBJECT

public:
    /// Keeps the reference.
    explicit MarkStyleOptions(AnnotationStore &store, QObject *parent = nullptr);

    /// The controls in the order in which they stand; the caller takes the widgets over.
    QList<OptionItem> makeItems();

private:
    void change(const std::function<void(ToolStyle &)> &edit);
    OptionItem colors();
    template <class Row>
    OptionItem slider(const Row &row);
    template <class Row>
    OptionItem toggle(const Row &row);
    template <class Enum>
    OptionItem choice(unsigned kinds, const char *name, const char *title, Enum ToolStyle::*field);
    OptionItem shape(AnnotationKind kind, const char *name, bool ToolStyle::*isRound);
    OptionItem font();
    OptionItem emoji();

    AnnotationStore &m_store;
    Adjustment m_adjustment;
};

} // namespace tessaly
