// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QKeyEvent;

namespace tessaly {

class TextEditor;

/// What the keys mean while a text is edited.
namespace TextKeys {

/// Whether the key belongs to the text, so that no shortcut of the window may take it.
bool belongsToText(const QKeyEvent &event);

/// Does what the key means; keys that mean nothing to a text do nothing.
void press(const QKeyEvent &event, TextEditor &editor);

} // namespace TextKeys

} // namespace tessaly
