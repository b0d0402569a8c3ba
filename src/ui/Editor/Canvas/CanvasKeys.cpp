// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/CanvasKeys.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Editing/CanvasController.h"
#include "ui/Editor/Canvas/CanvasCommands.h"
#include "ui/Editor/Canvas/CanvasLayer.h"
#include "ui/Editor/Canvas/CanvasPointer.h"
#include "ui/Editor/Canvas/TextEditor.h"
#include "ui/Editor/Canvas/TextKeys.h"
#include "ui/Menu/ToolTable.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>
#include <utility>

namespace tessaly {

namespace {

constexpr std::array modifierKeys { std::pair { Qt::Key_Shift, Qt::ShiftModifier },
    std::pair { Qt::Key_Control, Qt::ControlModifier }, std::pair { Qt::Key_Alt, Qt::AltModifier } };

constexpr std::array arrows { std::pair { Qt::Key_Left, QPoint(-1, 0) }, std::pair { Qt::Key_Right, QPoint(1, 0) },
    std::pair { Qt::Key_Up, QPoint(0, -1) }, std::pair { Qt::Key_Down, QPoint(0, 1) } };

/// The digits of a number pad, and its Enter, are the same keys.
Qt::KeyboardModifiers modifiersOf(const QKeyEvent &event) { return event.modifiers() & ~Qt::KeypadModifier; }

/// Shift+Tab arrives under a name of its own.
QKeyCombination combinationOf(const QKeyEvent &event)
{
    const auto key = event.key() == Qt::Key_Backtab ? Qt::Key_Tab : static_cast<Qt::Key>(event.key());
    return QKeyCombination(modifiersOf(event), key);
}

bool isKeyOf(const CommandRow &row, QKeyCombination pressed)
{
    const auto keys = commandKeys(row);
    return std::ranges::any_of(keys, [pressed](const QKeySequence &key) {
        return key.count() == 1 && key[0].key() == pressed.key()
            && key[0].keyboardModifiers() == pressed.keyboardModifiers();
    });
}

} // namespace

CanvasKeys::CanvasKeys(AnnotationStore &store, CanvasController &controller, CanvasPointer &pointer,
    CanvasCommands &commands, TextEditor &text, const CanvasLayerSlot &layer) :
    m_store(store),
    m_controller(controller),
    m_pointer(pointer),
    m_commands(commands),
    m_text(text),
    m_layer(layer)
{
}

bool CanvasKeys::claims(const QKeyEvent &event) const
{
    if (m_text.isActive())
        return TextKeys::belongsToText(event);
    // A tool has the key of pasting a style; it gets it where there is nothing to paste or to paste it on.
    return std::ranges::any_of(commandTable(), [&](const CommandRow &row) {
        return row.scope == KeyScope::Canvas && isKeyOf(row, combinationOf(event)) && m_commands.canPerform(row.id);
    });
}

bool CanvasKeys::passModifier(const QKeyEvent &event, bool isPressed)
{
    const auto key = std::ranges::find(modifierKeys, event.key(), [](const auto &row) { return int(row.first); });
    if (key == modifierKeys.end())
        return false;
    Qt::KeyboardModifiers modifiers = modifiersOf(event);
    modifiers.setFlag(key->second, isPressed);
    m_controller.setModifiers(modifiers);
    return true;
}

bool CanvasKeys::press(const QKeyEvent &event)
{
    if (passModifier(event, true))
        return true;
    if (m_text.isActive()) {
        if (event.key() == Qt::Key_Escape && m_controller.cancelGesture())
            return true;
        TextKeys::press(event, m_text);
        return TextKeys::belongsToText(event);
    }
    return m_layer->key(event) || pressSpecial(event) || nudge(event) || pressDigit(event) || pressCommand(event)
        || pressToolLetter(event);
}

bool CanvasKeys::release(const QKeyEvent &event)
{
    if (event.key() == Qt::Key_Space) {
        if (!event.isAutoRepeat())
            m_pointer.setSpaceHeld(false);
        return true;
    }
    return passModifier(event, false);
}

bool CanvasKeys::pressSpecial(const QKeyEvent &event)
{
    const QKeyCombination pressed = combinationOf(event);
    const bool isTab = pressed.key() == Qt::Key_Tab && !(pressed.keyboardModifiers() & ~Qt::ShiftModifier);
    if (pressed.key() == Qt::Key_Escape) {
        m_pointer.cancelPan();
        m_controller.escape();
    } else if (pressed.key() == Qt::Key_F6 || (isTab && m_store.annotations().isEmpty())) {
        Q_EMIT focusLeaves(pressed.keyboardModifiers() & Qt::ShiftModifier);
    } else if (pressed.key() == Qt::Key_Menu || pressed == (Qt::SHIFT | Qt::Key_F10)) {
        Q_EMIT menuRequested();
    } else if (pressed == QKeyCombination(Qt::Key_Space)) {
        if (!event.isAutoRepeat())
            m_pointer.setSpaceHeld(true);
    } else if (m_store.isCropping() && (pressed.key() == Qt::Key_Return || pressed.key() == Qt::Key_Enter)) {
        m_controller.applyCrop();
    } else {
        return false;
    }
    return true;
}

bool CanvasKeys::nudge(const QKeyEvent &event)
{
    const auto arrow = std::ranges::find(arrows, event.key(), [](const auto &row) { return int(row.first); });
    if (arrow == arrows.end() || modifiersOf(event) & (Qt::AltModifier | Qt::MetaModifier))
        return false;
    m_controller.nudge(arrow->second, modifiersOf(event));
    return true;
}

bool CanvasKeys::pressDigit(const QKeyEvent &event)
{
    const int number = event.key() - Qt::Key_0;
    if (number < 1 || number > 9 || m_controller.isGestureActive())
        return false;
    if (modifiersOf(event) == Qt::NoModifier)
        m_commands.marks().applyPaletteColor(number);
    else if (modifiersOf(event) == Qt::AltModifier)
        m_commands.marks().applySavedStyle(number);
    else
        return false;
    return true;
}

bool CanvasKeys::pressCommand(const QKeyEvent &event)
{
    for (const CommandRow &row : commandTable()) {
        if (!m_commands.knows(row.id) || !isKeyOf(row, combinationOf(event)))
            continue;
        m_commands.perform(row.id);
        return true;
    }
    return false;
}

bool CanvasKeys::pressToolLetter(const QKeyEvent &event)
{
    if (modifiersOf(event) != Qt::NoModifier || event.key() < Qt::Key_A || event.key() > Qt::Key_Z)
        return false;
    const auto tool = toolOfLetter(QChar(event.key()));
    if (tool && !m_pointer.isButtonDown() && !m_controller.isGestureActive())
        m_store.activate(*tool);
    return tool.has_value();
}

} // namespace tessaly
