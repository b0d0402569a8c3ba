// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/ExportFormat.h"

#include <QToolBar>

namespace tessaly {

class CommandActions;
class MenuButton;

/// The tool bar of an editor window, for whichever editor is current.
class EditorToolBar : public QToolBar {
    Q_OBJECT

public:
    /// The height in points at the default font; a larger font makes it higher.
    static constexpr int standardHeight = 77;

    /// Keeps `actions`, which belong to the same window. `dragHandle` is taken over.
    EditorToolBar(CommandActions &actions, bool canShare, QToolButton *dragHandle, QWidget *parent = nullptr);

    /// Shows the magnification of the current editor.
    void setZoom(double scale);
    /// The parts that can be left out, each an action whose visibility says whether it is there.
    const QList<QAction *> &parts() const { return m_parts; }
    /// The names of the parts that are left out, divided by blanks, as settings hold them.
    QString hiddenParts() const;
    void setHiddenParts(const QString &names);

Q_SIGNALS:
    void formatChosen(ExportFormat format);
    void zoomChosen(double scale);

private:
    QAction *addPart(QWidget *widget, const char *name, const QString &title);
    void addCommand(QAction *action, const char *name, const QString &shortTitle);
    void addZoomMenu(CommandActions &actions);

    QList<QAction *> m_parts;
    MenuButton *m_percentage = nullptr;
};

} // namespace tessaly
