// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QUrl>

namespace tessaly {

/// Opens what lies outside of this program with the program that the user has chosen for it.
class Links {
public:
    virtual ~Links();

    /// False when nothing opens it.
    virtual bool open(const QUrl &url) = 0;
    /// Shows a file or folder in the file manager. False when there is none.
    virtual bool reveal(const QString &path) = 0;
};

} // namespace tessaly
