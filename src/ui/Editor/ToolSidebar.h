// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Tool.h"

#include <QWidget>

class QButtonGroup;
class QGridLayout;

namespace tessaly {

class AnnotationStore;

/// The tools as a column of buttons, of which the active one is down; in a low window they stand in several columns.
/// Up and Down walk through them.
class ToolSidebar : public QWidget {
    Q_OBJECT

public:
    /// Keeps the reference.
    explicit ToolSidebar(AnnotationStore &store, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void chosen(Tool tool);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void arrange(int columns);
    void refresh();
    void step(int direction);

    AnnotationStore &m_store;
    QButtonGroup *m_group;
    QGridLayout *m_grid;
    int m_columns = 0;
};

} // namespace tessaly
