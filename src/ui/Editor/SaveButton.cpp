// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/SaveButton.h"

#include "ui/Editor/Options/MenuButton.h"

#include <QAction>
#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>

namespace tessaly {

SaveButton::SaveButton(QAction *save, QAction *saveAsDocument, QWidget *parent) :
    QWidget(parent),
    m_save(new QToolButton),
    m_menu(new MenuButton({}, tr("Save format"), tr("Save format")))
{
    setObjectName(QStringLiteral("save"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_save->setDefaultAction(save);
    m_save->setAutoRaise(true);
    m_save->setText(tr("Save"));
    m_save->setAccessibleName(tr("Save"));
    m_save->setFocusPolicy(Qt::TabFocus);
    layout->addWidget(m_save);

    m_menu->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    layout->addWidget(m_menu);
    auto *formats = new QMenu(m_menu);
    for (const auto &row : enumNames<ExportFormat>) {
        connect(formats->addAction(label(row.value)), &QAction::triggered, this,
            [this, format = row.value] { Q_EMIT formatChosen(format); });
    }
    formats->addSeparator();
    formats->addAction(saveAsDocument);
    m_menu->setMenu(formats);
    // A changed title ("Save…") would come back with every change of the action.
    connect(save, &QAction::changed, m_save, [this] { m_save->setText(tr("Save")); });
}

void SaveButton::setIconSize(QSize size) { m_save->setIconSize(size); }
void SaveButton::setToolButtonStyle(Qt::ToolButtonStyle style) { m_save->setToolButtonStyle(style); }

} // namespace tessaly
