// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationStore.h"
#include "core/Annotation/SavedStyles.h"
#include "core/Editing/EditorZoom.h"
#include "core/Preferences/Settings.h"
#include "tests/support/DrawnMarks.h"
#include "tests/support/FakeDesktop.h"
#include "ui/Editor/Canvas/CanvasView.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>

namespace tessaly::test {

/// A shown canvas over a small white capture, at 100 % unless a test zooms, with a pointer that is told image points.
/// Snapping is off, so that places are those that a test names.
class EditedCanvas {
public:
    explicit EditedCanvas(QSize points = { 400, 300 }, int scale = 1) :
        store(plainCapture(points, Qt::white, scale), m_settings)
    {
        view.resize(700, 600);
        view.show();
        zoom.actualSize();
        QCoreApplication::processEvents();
        view.controller().setSnapping(false);
    }

    QUuid add(Annotation mark)
    {
        store.append(mark);
        return mark.id;
    }
    QUuid add(AnnotationKind kind, QPointF p1, QPointF p2)
    {
        Annotation mark(kind, p1, p2);
        mark.lineWidth = 4;
        return add(mark);
    }

    void press(QPointF image, Qt::KeyboardModifiers modifiers = {}, Qt::MouseButton button = Qt::LeftButton)
    {
        m_buttons |= button;
        send(QEvent::MouseButtonPress, image, modifiers, button);
    }
    void moveTo(QPointF image, Qt::KeyboardModifiers modifiers = {})
    {
        send(QEvent::MouseMove, image, modifiers, Qt::NoButton);
    }
    void release(Qt::KeyboardModifiers modifiers = {}, Qt::MouseButton button = Qt::LeftButton)
    {
        m_buttons &= ~Qt::MouseButtons(button);
        send(QEvent::MouseButtonRelease, m_pointer, modifiers, button);
    }
    void click(QPointF image, Qt::KeyboardModifiers modifiers = {}, Qt::MouseButton button = Qt::LeftButton)
    {
        press(image, modifiers, button);
        release(modifiers, button);
    }
    void doubleClick(QPointF image)
    {
        click(image);
        m_buttons |= Qt::LeftButton;
        send(QEvent::MouseButtonDblClick, image, {}, Qt::LeftButton);
        release();
    }
    /// Press, three moves on the way, and no release yet.
    void pull(QPointF from, QPointF to, Qt::KeyboardModifiers modifiers = {})
    {
        press(from, modifiers);
        for (const double share : { 0.3, 0.7, 1.0 })
            moveTo(from + (to - from) * share, modifiers);
    }
    void drag(QPointF from, QPointF to, Qt::KeyboardModifiers modifiers = {})
    {
        pull(from, to, modifiers);
        release(modifiers);
    }
    void turnWheel(QPointF image, int notches, Qt::KeyboardModifiers modifiers = {})
    {
        const QPointF position = viewPosition(image);
        QWheelEvent event(position, view.mapToGlobal(position), {}, { 0, 120 * notches }, m_buttons, modifiers,
            Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &event);
    }
    void key(int code, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&view, Qt::Key(code), modifiers); }
    void holdKey(int code) { QTest::keyPress(&view, Qt::Key(code), modifierOf(code)); }
    void letGoKey(int code) { QTest::keyRelease(&view, Qt::Key(code)); }

    QPointF viewPosition(QPointF image) { return view.controller().transform().toView(image); }

    /// How many undo steps there are; everything is as it was afterwards.
    int undoSteps()
    {
        const auto selected = store.selectedID();
        const bool unsaved = store.hasUnsavedChanges();
        int steps = 0;
        for (; store.canUndo(); ++steps)
            store.undo();
        for (int step = 0; step < steps; ++step)
            store.redo();
        store.setSelectedID(selected);
        store.setHasUnsavedChanges(unsaved);
        return steps;
    }

    qsizetype count() const { return store.annotations().size(); }
    const Annotation &last() const { return store.annotations().last(); }
    std::optional<Handle> handle(HandleRole role)
    {
        for (const Handle &handle : view.controller().adornments().handles) {
            if (handle.role == role)
                return handle;
        }
        return std::nullopt;
    }
    /// Where a handle of the selected mark is grabbed, as an image point.
    QPointF handlePoint(HandleRole role)
    {
        const auto found = handle(role).value_or(Handle { role, { 1e6, 1e6 }, {} });
        return found.position + found.viewOffset / view.controller().transform().scale;
    }

private:
    Settings m_settings { QString() };

public:
    AnnotationStore store;
    EditorZoom zoom;
    FakeClipboard clipboard;
    SavedStyles styles { m_settings };
    CopiedStyle copiedStyle;
    FakeClock clock;
    CanvasView view { store, zoom, { clipboard, styles, copiedStyle, clock } };

private:
    static Qt::KeyboardModifiers modifierOf(int code)
    {
        return code == Qt::Key_Shift  ? Qt::ShiftModifier
            : code == Qt::Key_Control ? Qt::ControlModifier
            : code == Qt::Key_Alt     ? Qt::AltModifier
                                      : Qt::NoModifier;
    }

    void send(QEvent::Type type, QPointF image, Qt::KeyboardModifiers modifiers, Qt::MouseButton button)
    {
        m_pointer = image;
        const QPointF position = viewPosition(image);
        QMouseEvent event(type, position, view.mapToGlobal(position), button, m_buttons, modifiers);
        QApplication::sendEvent(&view, &event);
    }

    QPointF m_pointer;
    Qt::MouseButtons m_buttons;
};

} // namespace tessaly::test
