// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/FileDialogParts.h"

#include "ui/Export/FileKinds.h"
#include "ui/Export/FilePreview.h"

#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QSplitter>
#include <QTreeView>

namespace tessaly::FileDialogParts {

QLineEdit *nameField(const QFileDialog &dialog)
{
    auto *field = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    Q_ASSERT(field);
    return field;
}

QAbstractItemView *listView(const QFileDialog &dialog)
{
    auto *view = dialog.findChild<QListView *>(QStringLiteral("listView"));
    Q_ASSERT(view);
    return view;
}

QAbstractItemView *detailView(const QFileDialog &dialog)
{
    auto *view = dialog.findChild<QTreeView *>(QStringLiteral("treeView"));
    Q_ASSERT(view);
    return view;
}

void makeRoom(QFileDialog &dialog)
{
    const int letter = dialog.fontMetrics().averageCharWidth();
    dialog.resize(QSize(letter * 120, letter * 84).boundedTo(dialog.screen()->availableSize()));
    auto *header = qobject_cast<QTreeView *>(detailView(dialog))->header();
    constexpr std::array columns { 38, 11, 19, 24 }; // name, size, type, date; in letters
    for (int column = 0; column < static_cast<int>(columns.size()); ++column)
        header->resizeSection(column, letter * columns.at(static_cast<size_t>(column)));
}

void readNamesOnly(QFileDialog &dialog) { dialog.setIconProvider(new FileKinds(&dialog)); }

void addPreview(QFileDialog &dialog)
{
    auto *parts = dialog.findChild<QSplitter *>(QStringLiteral("splitter"));
    Q_ASSERT(parts);
    auto *preview = new FilePreview;
    parts->addWidget(preview);
    parts->setCollapsible(parts->indexOf(preview), true);
    const int letter = dialog.fontMetrics().averageCharWidth();
    dialog.resize(QSize(letter * 150, dialog.height()).boundedTo(dialog.screen()->availableSize()));
    preview->follow(*listView(dialog)->selectionModel());
}

void addAccessory(QFileDialog &dialog, QWidget &accessory)
{
    hideFileTypes(dialog);
    auto *grid = qobject_cast<QGridLayout *>(dialog.layout());
    Q_ASSERT(grid);
    grid->addWidget(&accessory, grid->rowCount(), 0, 1, grid->columnCount(), Qt::AlignHCenter);
}

void hideFileTypes(QFileDialog &dialog)
{
    if (auto *types = dialog.findChild<QComboBox *>(QStringLiteral("fileTypeCombo")))
        types->hide();
    if (auto *label = dialog.findChild<QLabel *>(QStringLiteral("fileTypeLabel")))
        label->hide();
}

QStringList imagePatterns()
{
    QStringList patterns;
    for (const QByteArray &format : QImageReader::supportedImageFormats())
        patterns += QStringLiteral("*.") + QString::fromLatin1(format);
    return patterns;
}

} // namespace tessaly::FileDialogParts
