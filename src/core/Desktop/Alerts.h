// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace tessaly {

/// Tells the user something and waits until it is acknowledged or answered.
class Alerts {
public:
    struct Answer {
        QString label;
        QString shortcut = {}; ///< in Qt's portable form ("Ctrl+D"); may be empty
    };
    /// The first answer is the one that Return gives.
    struct Question {
        QString message;
        QString informativeText;
        QList<Answer> answers;
        int escapeAnswer = 0; ///< index given by Escape and by closing the alert
    };

    virtual ~Alerts();

    /// A failure, with the one button "OK".
    virtual void warn(const QString &message, const QString &informativeText) = 0;

    /// Something worth knowing, with the one button "OK".
    virtual void inform(const QString &message, const QString &informativeText) = 0;

    /// The index of the answer that the user chose.
    virtual int ask(const Question &question) = 0;
};

} // namespace tessaly
