// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text/TextCopier.h"
#include "tests/support/FakeRecognition.h"
#include "tests/ui/Editor/Canvas/EditedCanvas.h"
#include "ui/Editor/LiveText/LiveTextOverlay.h"

#include <QMenu>

namespace tessaly::test {

/// A canvas of 400 × 300 points on which two lines and two codes are read:
///
///     Hello big world      at 40,40 to 240,60; the words at 40–100, 110–150, 160–240
///     second line          at 40,80 to 180,100; the words at 40–120, 130–180
///
/// and at 300,40 a link, at 300,150 a number, 60 points large.
class ReadCanvas {
public:
    explicit ReadCanvas(int scale = 1) : canvas({ 400, 300 }, scale) { }

    static QRectF part(double x, double y, double width, double height)
    {
        return { x / 400, y / 300, width / 400, height / 300 };
    }

    static RecognizedContent content()
    {
        return { { { "Hello big world", part(40, 40, 200, 20),
                       { { "Hello", part(40, 42, 60, 16) }, { "big", part(110, 40, 40, 20) },
                           { "world", part(160, 42, 80, 16) } } },
                     { "second line", part(40, 80, 140, 20),
                         { { "second", part(40, 80, 80, 20) }, { "line", part(130, 80, 50, 20) } } } },
            { { "https://example.org/a", true, part(300, 40, 60, 60) }, { "12345", false, part(300, 150, 60, 60) } } };
    }

    /// Switches live text on and waits until the capture is read.
    void read(const RecognizedContent &found = content())
    {
        overlay.setEnabled(true);
        QTRY_COMPARE(recognizer.pending.size(), 1);
        recognizer.answer(found);
    }

    /// What Ctrl+C gives; empty when it asked for the picture.
    QString copied()
    {
        canvas.clipboard.content.reset();
        canvas.key(Qt::Key_C, Qt::ControlModifier);
        return QString::fromUtf8(canvas.clipboard.data(QStringLiteral("text/plain")));
    }

    QMenu *menu()
    {
        for (QMenu *menu : canvas.view.findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly))
            if (menu->isVisible())
                return menu;
        return nullptr;
    }

    QAction *action(const QString &title)
    {
        for (QAction *action : menu() ? menu()->actions() : QList<QAction *>())
            if (action->text().section(u'\t', 0, 0) == title)
                return action;
        return nullptr;
    }

    void rightClick(QPointF image)
    {
        canvas.press(image, {}, Qt::RightButton);
        const QPoint position = canvas.viewPosition(image).toPoint();
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, canvas.view.mapToGlobal(position));
        QApplication::sendEvent(&canvas.view, &event);
        canvas.release({}, Qt::RightButton);
    }

    FakeRecognizer recognizer;
    FakeToasts toasts;
    FakeLinks links;
    EditedCanvas canvas;
    TextCopier copier { recognizer, canvas.clipboard, toasts, links };
    LiveTextOverlay overlay { canvas.store, canvas.view,
        { recognizer, copier, canvas.clipboard, links, std::chrono::milliseconds(1) } };
};

} // namespace tessaly::test
