// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/ProgressPanel.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessaly {

ProgressPanel::ProgressPanel(const QString &title, std::function<void()> cancelled) :
    QDialog(QApplication::activeWindow()),
    m_cancelled(std::move(cancelled))
{
    setObjectName(QStringLiteral("progressPanel"));
    setWindowTitle(title);
    setWindowModality(Qt::ApplicationModal);
    auto *label = new QLabel(title, this);
    auto *bar = new QProgressBar(this);
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    bar->setMinimumWidth(280);
    bar->setAccessibleName(title);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(12);
    layout->addWidget(label);
    layout->addWidget(bar);
    if (!m_cancelled)
        return;
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton *cancel = buttons->button(QDialogButtonBox::Cancel);
    cancel->setToolTip(QCoreApplication::translate("ProgressPanel", "Stop and leave everything as it was (Esc)"));
    connect(buttons, &QDialogButtonBox::rejected, this, &ProgressPanel::reject);
    layout->addWidget(buttons);
}

void ProgressPanel::reject()
{
    if (!m_cancelled)
        return;
    m_cancelled();
    QDialog::reject();
}

} // namespace tessaly
