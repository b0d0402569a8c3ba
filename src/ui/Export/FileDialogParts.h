// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QAbstractItemView;
class QFileDialog;
class QLineEdit;
class QWidget;

/// The parts of Qt's own file dialog, which are known by their names only. The dialog must be Qt's own.
namespace tessaly::FileDialogParts {

QLineEdit *nameField(const QFileDialog &dialog);

/// The two views of the folder; they share one selection.
QAbstractItemView *listView(const QFileDialog &dialog);
QAbstractItemView *detailView(const QFileDialog &dialog);

/// A size and columns in which usual names and dates can be read.
void makeRoom(QFileDialog &dialog);

/// Keeps the dialog from reading the files that it lists.
void readNamesOnly(QFileDialog &dialog);

/// Shows what is selected beside the list of files.
void addPreview(QFileDialog &dialog);

/// Puts a widget below the name in place of the choice of file types.
void addAccessory(QFileDialog &dialog, QWidget &accessory);
void hideFileTypes(QFileDialog &dialog);

/// The names of pictures that can be read, as patterns.
QStringList imagePatterns();

} // namespace tessaly::FileDialogParts
