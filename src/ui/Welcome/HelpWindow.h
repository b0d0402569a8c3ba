// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QLineEdit;
class QTextBrowser;

namespace tessaly {

/// The help, with a field that finds words in it. It deletes itself when it is closed; Escape closes it.
class HelpWindow : public QDialog {
    Q_OBJECT

public:
    HelpWindow();

private:
    void addKeys();
    /// From the top again when there is nothing further on.
    void find(bool backward);

    QLineEdit *m_field;
    QTextBrowser *m_page;
};

} // namespace tessaly
