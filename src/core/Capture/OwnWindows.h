// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

namespace tessaly {

/// The windows of this program that would be in the picture.
class OwnWindows {
public:
    virtual ~OwnWindows();

    /// Hides every visible window that has a title bar or is a quick-access thumbnail, but those in full screen and
    /// those with a question open. What it hid, by QWindow::winId(); empty when there was nothing to hide.
    virtual QList<quint64> hide() = 0;

    /// Shows them again in their order, without taking the focus. Nothing when nothing is hidden.
    virtual void restore() = 0;
};

} // namespace tessaly
