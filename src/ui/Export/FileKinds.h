// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileIconProvider>
#include <QIcon>
#include <QObject>

namespace tessaly {

/// What a file dialog says of files, told by their names alone. Qt's own looks into every file on the main thread,
/// which freezes the window for a slow network folder, and for good where reading waits, as under /proc.
class FileKinds final : public QObject, public QFileIconProvider {
public:
    /// The parent is the dialog: its model, which asks from a thread of its own, is an elder child and goes first.
    explicit FileKinds(QObject *parent);

    QIcon icon(const QFileInfo &info) const override;
    QString type(const QFileInfo &info) const override;
    using QFileIconProvider::icon;

private:
    const QIcon m_document; ///< made on the main thread
};

} // namespace tessaly
