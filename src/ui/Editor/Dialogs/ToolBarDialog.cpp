// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Dialogs/ToolBarDialog.h"

#include <QAction>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessaly {

ToolBarDialog::ToolBarDialog(const QList<QAction *> &parts, QWidget *parent) : QDialog(parent)
{
    setWindowTitle(tr("Customize Toolbar"));
    setMinimumWidth(fontMetrics().averageCharWidth() * 44); // room for the title too
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(8);
    layout->addWidget(new QLabel(tr("Show in the toolbar:")));
    for (QAction *part : parts) {
        auto *box = new QCheckBox(part->text());
        box->setChecked(part->isVisible());
        box->setToolTip(tr("Show “%1” in the toolbar").arg(part->text()));
        connect(box, &QCheckBox::toggled, part, &QAction::setVisible);
        layout->addWidget(box);
        m_boxes += box;
    }
    layout->addSpacing(8);
    auto *buttons = new QDialogButtonBox;
    auto *all = buttons->addButton(tr("Restore Defaults"), QDialogButtonBox::ResetRole);
    all->setToolTip(tr("Show everything"));
    all->setAutoDefault(false);
    connect(all, &QPushButton::clicked, this, [this] {
        for (QCheckBox *box : std::as_const(m_boxes))
            box->setChecked(true);
    });
    auto *done = buttons->addButton(tr("Done"), QDialogButtonBox::AcceptRole);
    done->setToolTip(tr("Done (Return)"));
    done->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    layout->addWidget(buttons);
}

} // namespace tessaly
