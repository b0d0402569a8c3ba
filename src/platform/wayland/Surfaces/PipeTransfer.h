// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

class QObject;

/// Bytes between programs that share a pipe, as clipboards hand them over.
namespace tessaly::PipeTransfer {

/// Writes the bytes in the background and closes the file, which it takes. A reader that takes nothing for half a
/// minute, or that goes away, is left. Ends with `owner`.
void write(QObject &owner, int file, QByteArray bytes);

/// All that another program writes until it closes the pipe; does not close `file`. Empty when nothing comes for so
/// long. When it takes longer than a blink this program's own events are handled meanwhile, except those of the user:
/// the other side may be a part of it.
QByteArray readAll(int file, int millisecondsOfSilence);

} // namespace tessaly::PipeTransfer
