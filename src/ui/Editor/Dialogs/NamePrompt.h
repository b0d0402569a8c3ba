// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <optional>

class QLineEdit;

namespace tessaly {

/// Asks for a name.
class NamePrompt : public QDialog {
    Q_OBJECT

public:
    /// `button` is what confirms; `proposal` is selected, so that typing replaces it.
    NamePrompt(const QString &title, const QString &button, const QString &proposal, QWidget *parent = nullptr);

    QString name() const;

    /// Runs the prompt; empty when it was cancelled.
    static std::optional<QString> ask(
        const QString &title, const QString &button, const QString &proposal, QWidget *parent);

private:
    QLineEdit *m_field;
};

} // namespace tessaly
