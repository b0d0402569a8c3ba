// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/EditorToolBar.h"

#include "ui/Editor/EditorStatus.h"
#include "ui/Editor/Options/MenuButton.h"
#include "ui/Editor/SaveButton.h"
#include "ui/Menu/CommandActions.h"

#include <QMenu>
#include <QToolButton>

namespace tessaly {

namespace {

constexpr double zoomSteps[] { 0.25, 0.5, 0.75, 1, 1.5, 2, 4 };

QWidget *stretch()
{
    auto *space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    return space;
}

} // namespace

EditorToolBar::EditorToolBar(CommandActions &actions, bool canShare, QToolButton *dragHandle, QWidget *parent) :
    QToolBar(tr("Tool Bar"), parent)
{
    setObjectName(QStringLiteral("toolBar"));
    setMovable(false);
    setFloatable(false);
    setIconSize({ 22, 22 });
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setMinimumHeight(standardHeight);

    addCommand(actions.action(CommandId::Undo), "undo", tr("Undo"));
    addCommand(actions.action(CommandId::Redo), "redo", tr("Redo"));
    addSeparator();
    addCommand(actions.action(CommandId::CopyImage), "copy", tr("Copy"));
    auto *save = new SaveButton(actions.action(CommandId::Save), actions.action(CommandId::SaveAsDocument));
    save->setIconSize(iconSize());
    save->setToolButtonStyle(toolButtonStyle());
    connect(save, &SaveButton::formatChosen, this, &EditorToolBar::formatChosen);
    addPart(save, "save", tr("Save"));
    if (canShare)
        addCommand(actions.action(CommandId::Share), "share", tr("Share"));
    dragHandle->setIconSize(iconSize());
    dragHandle->setToolButtonStyle(toolButtonStyle());
    addPart(dragHandle, "drag", dragHandle->text());
    addWidget(stretch());
    addCommand(actions.action(CommandId::ZoomOut), "zoomOut", tr("Zoom Out"));
    addZoomMenu(actions);
    addCommand(actions.action(CommandId::ZoomIn), "zoomIn", tr("Zoom In"));
    addCommand(actions.action(CommandId::ZoomToFit), "fit", tr("Fit"));
}

QAction *EditorToolBar::addPart(QWidget *widget, const char *name, const QString &title)
{
    QAction *part = addWidget(widget);
    part->setObjectName(QLatin1StringView(name));
    part->setText(title);
    m_parts += part;
    return part;
}

void EditorToolBar::addCommand(QAction *action, const char *name, const QString &shortTitle)
{
    auto *button = new QToolButton;
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setIconSize(iconSize());
    button->setToolButtonStyle(toolButtonStyle());
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(shortTitle);
    QAction *part = addPart(button, name, shortTitle);
    // The button takes the action's longer title with every change of the action, and its state from the part.
    const auto follow = [button, part, action, shortTitle] {
        button->setText(shortTitle);
        part->setEnabled(action->isEnabled());
        button->setEnabled(action->isEnabled());
    };
    connect(action, &QAction::changed, button, follow);
    follow();
}

QString EditorToolBar::hiddenParts() const
{
    QStringList names;
    for (const QAction *part : m_parts) {
        if (!part->isVisible())
            names += part->objectName();
    }
    return names.join(u' ');
}

void EditorToolBar::setHiddenParts(const QString &names)
{
    const QStringList hidden = names.split(u' ', Qt::SkipEmptyParts);
    for (QAction *part : std::as_const(m_parts))
        part->setVisible(!hidden.contains(part->objectName()));
}

void EditorToolBar::addZoomMenu(CommandActions &actions)
{
    m_percentage = new MenuButton({}, tr("Zoom"), tr("Zoom (Ctrl+wheel on the canvas)"));
    auto *menu = new QMenu(m_percentage);
    for (const double scale : zoomSteps) {
        connect(
            menu->addAction(zoomText(scale)), &QAction::triggered, this, [this, scale] { Q_EMIT zoomChosen(scale); });
    }
    menu->addSeparator();
    menu->addAction(actions.action(CommandId::ActualSize));
    menu->addAction(actions.action(CommandId::ZoomToFit));
    m_percentage->setMenu(menu);
    addPart(m_percentage, "zoom", tr("Zoom"));
    setZoom(1);
}

void EditorToolBar::setZoom(double scale)
{
    m_percentage->setText(zoomText(scale));
    m_percentage->setMinimumWidth(std::max(m_percentage->minimumWidth(), m_percentage->sizeHint().width()));
    m_percentage->setAccessibleDescription(zoomText(scale));
}

} // namespace tessaly
