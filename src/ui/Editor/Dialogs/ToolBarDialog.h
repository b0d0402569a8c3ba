// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QAction;
class QCheckBox;

namespace tessaly {

/// Lets the user choose which parts of a tool bar are there; each choice shows at once.
class ToolBarDialog : public QDialog {
    Q_OBJECT

public:
    /// The text of a part's action is its name, its visibility whether it is there.
    explicit ToolBarDialog(const QList<QAction *> &parts, QWidget *parent = nullptr);

private:
    QList<QCheckBox *> m_boxes;
};

} // namespace tessaly
