// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/SaveImageDialog.h"

#include "ui/Export/FileDialogParts.h"
#include "ui/Export/SaveOptionsAccessory.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLineEdit>

namespace tessaly {

namespace {

QString filterOf(ExportFormat format)
{
    QString patterns = QStringLiteral("*.") + extension(format);
    if (format == ExportFormat::Jpeg)
        patterns += QStringLiteral(" *.jpeg");
    if (format == ExportFormat::Tiff)
        patterns += QStringLiteral(" *.tif");
    return QStringLiteral("%1 (%2)").arg(label(format), patterns);
}

} // namespace

SaveImageDialog::SaveImageDialog(const SavePanels::ImageRequest &request, Settings &settings, QWidget *parent) :
    QFileDialog(parent, QCoreApplication::translate("SaveImageDialog", "Save Image"))
{
    setOption(DontUseNativeDialog);
    FileDialogParts::readNamesOnly(*this);
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    if (!request.folder.isEmpty())
        setDirectory(request.folder);
    m_name = FileDialogParts::nameField(*this);
    m_options = new SaveOptionsAccessory(request.format, request.offersDocument, settings, this);
    m_options->onFormatChange = [this](ExportFormat format) { follow(format); };
    FileDialogParts::makeRoom(*this);
    FileDialogParts::addAccessory(*this, *m_options);
    setNameFilter(filterOf(request.format));
    selectFile(request.baseName + u'.' + extension(request.format));
    connect(m_name, &QLineEdit::textEdited, this, &SaveImageDialog::followName);
}

SavePanels::ImageChoice SaveImageDialog::choice() const
{
    return { .path = selectedFiles().value(0),
        .format = m_options->format(),
        .quality = m_options->quality(),
        .alsoDocument = m_options->alsoDocument() };
}

/// Renames the file for the format.
void SaveImageDialog::follow(ExportFormat format)
{
    const QString name = m_name->text();
    setNameFilter(filterOf(format)); // which renames by rules of its own
    if (formatOfExtension(QFileInfo(name).suffix()) == format) {
        m_name->setText(name);
        return;
    }
    QString base = name.left(name.lastIndexOf(u'.'));
    if (base.isEmpty())
        base = QCoreApplication::translate("SaveImageDialog", "Screenshot");
    m_name->setText(base + u'.' + extension(format));
}

/// An extension that the user types chooses the format.
void SaveImageDialog::followName(const QString &name)
{
    if (const auto format = formatOfExtension(QFileInfo(name).suffix()))
        m_options->setFormat(*format);
}

void SaveImageDialog::accept()
{
    const QString name = m_name->text();
    const bool isFolder = QFileInfo(selectedFiles().value(0)).isDir(); // one to go into
    if (!isFolder && !name.isEmpty() && formatOfExtension(QFileInfo(name).suffix()) != m_options->format())
        m_name->setText(name + u'.' + extension(m_options->format()));
    QFileDialog::accept();
}

} // namespace tessaly
