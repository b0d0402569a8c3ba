// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Dialogs/NamePrompt.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessaly {

NamePrompt::NamePrompt(const QString &title, const QString &button, const QString &proposal, QWidget *parent) :
    QDialog(parent),
    m_field(new QLineEdit(proposal))
{
    setWindowTitle(title);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(16);
    auto *form = new QFormLayout;
    form->addRow(tr("Name"), m_field);
    layout->addLayout(form);
    m_field->setAccessibleName(tr("Name"));
    m_field->setToolTip(tr("Name"));
    m_field->setMinimumWidth(m_field->fontMetrics().averageCharWidth() * 32);
    m_field->selectAll();

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton *confirm = buttons->addButton(button, QDialogButtonBox::AcceptRole);
    confirm->setDefault(true);
    confirm->setToolTip(tr("%1 (Return)").arg(button));
    buttons->button(QDialogButtonBox::Cancel)->setToolTip(tr("Cancel (Esc)"));
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false); // Return never means it
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    const auto allowNonEmpty = [this, confirm] { confirm->setEnabled(!name().isEmpty()); };
    connect(m_field, &QLineEdit::textChanged, confirm, allowNonEmpty);
    allowNonEmpty();
}

QString NamePrompt::name() const { return m_field->text().trimmed(); }

std::optional<QString> NamePrompt::ask(
    const QString &title, const QString &button, const QString &proposal, QWidget *parent)
{
    NamePrompt prompt(title, button, proposal, parent);
    return prompt.exec() == Accepted ? std::optional(prompt.name()) : std::nullopt;
}

} // namespace tessaly
