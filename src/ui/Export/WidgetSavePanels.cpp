// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/WidgetSavePanels.h"

#include "ui/Export/DocumentFileDialog.h"
#include "ui/Export/SaveImageDialog.h"

#include <QApplication>

namespace tessaly {

WidgetSavePanels::WidgetSavePanels(Settings &settings) : m_settings(settings) { }

std::optional<SavePanels::ImageChoice> WidgetSavePanels::chooseImage(const ImageRequest &request)
{
    SaveImageDialog dialog(request, m_settings, QApplication::activeWindow());
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.choice()) : std::nullopt;
}

std::optional<QString> WidgetSavePanels::chooseDocument(const QString &fileName, const QString &folder)
{
    DocumentFileDialog dialog(DocumentFileDialog::Purpose::Save, QApplication::activeWindow());
    if (!folder.isEmpty())
        dialog.setDirectory(folder);
    dialog.selectFile(fileName);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.chosenPaths().value(0)) : std::nullopt;
}

} // namespace tessaly
