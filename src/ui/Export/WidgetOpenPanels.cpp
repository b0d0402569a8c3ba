// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/WidgetOpenPanels.h"

#include "ui/Export/FileDialogParts.h"

#include <QApplication>
#include <QFileDialog>

namespace tessaly {

std::optional<QStringList> WidgetOpenPanels::chooseImages()
{
    QFileDialog dialog(QApplication::activeWindow(), QCoreApplication::translate("WidgetOpenPanels", "Open Images"));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOption(QFileDialog::HideNameFilterDetails); // which do not fit
    FileDialogParts::readNamesOnly(dialog);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    const QString images = QCoreApplication::translate("WidgetOpenPanels", "Images")
        + QStringLiteral(" (%1)").arg(FileDialogParts::imagePatterns().join(u' '));
    dialog.setNameFilters(
        { images, QCoreApplication::translate("WidgetOpenPanels", "All files") + QStringLiteral(" (*)") });
    FileDialogParts::makeRoom(dialog);
    FileDialogParts::addPreview(dialog);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.selectedFiles()) : std::nullopt;
}

std::optional<QString> WidgetOpenPanels::chooseFolder(
    const QString &message, const QString &prompt, const QString &folder)
{
    QFileDialog dialog(QApplication::activeWindow(), message, folder);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setLabelText(QFileDialog::Accept, prompt);
    FileDialogParts::makeRoom(dialog);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.selectedFiles().value(0)) : std::nullopt;
}

} // namespace tessaly
