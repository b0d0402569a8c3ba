// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/OwnWindows.h"

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace tessaly {

/// The windows of this program that are hidden for a capture: those with a title bar and those that say so by
/// CaptureProperties::hides. Those with CaptureProperties::ends, notices, are ended at once; pinned screenshots stay,
/// since they are part of what the user has laid out. There must be a QApplication.
class HiddenWindows final : public QObject, public OwnWindows {
    Q_OBJECT

public:
    HiddenWindows();

    QList<quint64> hide() override;
    void restore() override;

private:
    struct Hidden {
        QPointer<QWidget> widget;
        QPoint place; ///< of its frame
    };

    void noteFocus(QWindow *window);
    qsizetype height(const QWidget *widget) const;

    QList<QPointer<QWindow>> m_focused; ///< those that had the focus, the last one at the end
    QList<Hidden> m_hidden; ///< the lowest first
};

} // namespace tessaly
