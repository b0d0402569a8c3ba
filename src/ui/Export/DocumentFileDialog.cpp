// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/DocumentFileDialog.h"

#include "core/Document/TessalyDocument.h"
#include "ui/Export/FileDialogParts.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileSystemModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>

namespace tessaly {

namespace {

QString pathOf(const QModelIndex &index) { return index.data(QFileSystemModel::FilePathRole).toString(); }

bool isDocumentFolder(const QString &path) { return QFileInfo(path).isDir() && TessalyDocument::isDocument(path); }

QString openFilter()
{
    const QStringList patterns = QStringList(QStringLiteral("*.tessaly")) + FileDialogParts::imagePatterns();
    return QCoreApplication::translate("DocumentFileDialog", "Images and Tessaly documents")
        + QStringLiteral(" (%1)").arg(patterns.join(u' '));
}

} // namespace

DocumentFileDialog::DocumentFileDialog(Purpose purpose, QWidget *parent) : QFileDialog(parent), m_purpose(purpose)
{
    const bool opens = purpose == Purpose::Open;
    setOption(DontUseNativeDialog);
    setOption(HideNameFilterDetails); // which do not fit
    FileDialogParts::readNamesOnly(*this);
    setWindowTitle(opens ? QCoreApplication::translate("DocumentFileDialog", "Open")
                         : QCoreApplication::translate("DocumentFileDialog", "Save Document"));
    setAcceptMode(opens ? AcceptOpen : AcceptSave);
    setFileMode(opens ? ExistingFiles : AnyFile);
    if (opens)
        setNameFilters(
            { openFilter(), QCoreApplication::translate("DocumentFileDialog", "All files") + QStringLiteral(" (*)") });
    else
        FileDialogParts::hideFileTypes(*this);
    FileDialogParts::makeRoom(*this);
    if (opens)
        FileDialogParts::addPreview(*this);
    for (QAbstractItemView *view : { FileDialogParts::listView(*this), FileDialogParts::detailView(*this) }) {
        view->installEventFilter(this);
        view->viewport()->installEventFilter(this);
    }
    connect(FileDialogParts::listView(*this)->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &DocumentFileDialog::nameSelected);
    if (!opens)
        saveButton()->installEventFilter(this);
}

void DocumentFileDialog::accept()
{
    if (m_purpose == Purpose::Open)
        acceptOpening();
    else
        acceptSaving();
}

void DocumentFileDialog::acceptOpening()
{
    const QStringList paths = selectedFiles();
    const bool isComplete = !paths.isEmpty() && std::ranges::all_of(paths, [](const QString &path) {
        const QFileInfo file(path);
        return file.exists() && (!file.isDir() || isDocumentFolder(path)); // a pipe too: opening it says what is wrong
    });
    if (isComplete)
        choose(paths);
    else
        QFileDialog::accept(); // enters a folder, or says that there is no such file
}

void DocumentFileDialog::acceptSaving()
{
    QLineEdit *name = FileDialogParts::nameField(*this);
    const QString typed = selectedFiles().value(0);
    if (name->text().isEmpty() || (QFileInfo(typed).isDir() && !isDocumentFolder(typed))) {
        QFileDialog::accept();
        return;
    }
    if (!name->text().endsWith(QStringLiteral(".tessaly")))
        name->setText(name->text() + QStringLiteral(".tessaly"));
    const QString path = selectedFiles().value(0);
    if (QFileInfo::exists(path)) {
        const QString question
            = QCoreApplication::translate("QFileDialog", "%1 already exists.\nDo you want to replace it?");
        if (QMessageBox::warning(this, windowTitle(), question.arg(QFileInfo(path).fileName()),
                QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
            != QMessageBox::Yes)
            return;
    }
    choose({ path });
}

void DocumentFileDialog::choose(const QStringList &paths)
{
    m_chosen = paths;
    QDialog::accept(); // past the rules for plain folders
}

/// Shows the names of selected documents, which the dialog leaves out as those of folders. While a name is typed the
/// dialog selects what comes closest to it; that must not change the name.
void DocumentFileDialog::nameSelected()
{
    if (FileDialogParts::nameField(*this)->hasFocus())
        return;
    const QModelIndexList rows = FileDialogParts::listView(*this)->selectionModel()->selectedRows();
    const auto isFolder = [](const QModelIndex &row) { return QFileInfo(pathOf(row)).isDir(); };
    const auto isDocument = [](const QModelIndex &row) { return isDocumentFolder(pathOf(row)); };
    if (std::ranges::none_of(rows, isDocument)
        || std::ranges::any_of(rows, [&](const auto &row) { return isFolder(row) && !isDocument(row); }))
        return;
    QStringList names;
    for (const QModelIndex &row : rows)
        names += rows.size() == 1 ? row.data().toString() : QStringLiteral("\"%1\"").arg(row.data().toString());
    FileDialogParts::nameField(*this)->setText(names.join(u' '));
}

QPushButton *DocumentFileDialog::saveButton() const
{
    return findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save);
}

/// The dialog offers to open what it takes for a folder, whenever it looks at it anew; but a document is replaced.
void DocumentFileDialog::labelSaving()
{
    const QString label = QCoreApplication::translate("QFileDialog", "&Save");
    if (saveButton()->text() != label && isDocumentFolder(selectedFiles().value(0)))
        saveButton()->setText(label);
}

bool DocumentFileDialog::chooseActivated(const QModelIndex &index)
{
    if (!index.isValid() || !isDocumentFolder(pathOf(index)))
        return false;
    FileDialogParts::nameField(*this)->setText(index.siblingAtColumn(0).data().toString());
    accept();
    return true;
}

bool DocumentFileDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonDblClick) {
        const auto *view = qobject_cast<QAbstractItemView *>(watched->parent());
        if (view && chooseActivated(view->indexAt(static_cast<QMouseEvent *>(event)->position().toPoint())))
            return true;
    } else if (event->type() == QEvent::KeyPress) {
        const auto *view = qobject_cast<QAbstractItemView *>(watched);
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (view && (key == Qt::Key_Return || key == Qt::Key_Enter) && chooseActivated(view->currentIndex()))
            return true;
    } else if (event->type() == QEvent::Paint && qobject_cast<QPushButton *>(watched))
        labelSaving();
    return QFileDialog::eventFilter(watched, event);
}

} // namespace tessaly
