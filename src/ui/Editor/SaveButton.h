// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/ExportFormat.h"

#include <QWidget>

class QAction;
class QToolButton;

namespace tessaly {

class MenuButton;

/// Save, and beside it the menu of formats: two buttons that look like one.
class SaveButton : public QWidget {
    Q_OBJECT

public:
    /// `save` and `saveAsDocument` are the window's actions.
    SaveButton(QAction *save, QAction *saveAsDocument, QWidget *parent = nullptr);

    void setIconSize(QSize size);
    void setToolButtonStyle(Qt::ToolButtonStyle style);

Q_SIGNALS:
    void formatChosen(ExportFormat format);

private:
    QToolButton *m_save;
    MenuButton *m_menu;
};

} // namespace tessaly
