// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text/RecognizedContent.h"

#include <QObject>
#include <QPointer>

class QMenu;
class QWidget;

namespace tessaly {

/// What can be done with selected text and with a code.
class LiveTextMenu : public QObject {
    Q_OBJECT

public:
    explicit LiveTextMenu(QWidget &canvas);

    /// At a position of the canvas.
    void openForText(QPointF view);
    void openForCode(QPointF view, const RecognizedContent::Code &code);

Q_SIGNALS:
    void copyRequested();
    void selectAllRequested();
    void copyCodeRequested(const tessaly::RecognizedContent::Code &code);
    void openRequested(const QUrl &link);

private:
    QMenu &make();
    void open(QPointF view);

    QWidget &m_canvas;
    QPointer<QMenu> m_menu;
};

} // namespace tessaly
