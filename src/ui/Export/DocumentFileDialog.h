// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileDialog>

class QPushButton;

namespace tessaly {

/// A file dialog in which a document, which is a folder, is chosen like a file and not entered.
class DocumentFileDialog final : public QFileDialog {
public:
    enum class Purpose { Open, Save };
    /// For opening it also shows pictures, and several can be chosen; a name to save under gets the documents'
    /// extension.
    DocumentFileDialog(Purpose purpose, QWidget *parent);

    /// Absolute; what was chosen when the dialog was accepted.
    const QStringList &chosenPaths() const { return m_chosen; }

    void accept() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void acceptOpening();
    void acceptSaving();
    void choose(const QStringList &paths);
    void nameSelected();
    QPushButton *saveButton() const;
    void labelSaving();
    bool chooseActivated(const QModelIndex &index);

    Purpose m_purpose;
    QStringList m_chosen;
};

} // namespace tessaly
