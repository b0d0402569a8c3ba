// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

/// The letters that reach controls with Alt, in whatever language their texts are.
namespace tessaly::Mnemonics {

/// Gives every tick box, button and label with a buddy below `page` a letter of its own text that no other has, as far
/// as there are enough, and every such control a tooltip that names it.
void assign(QWidget &page);

} // namespace tessaly::Mnemonics
