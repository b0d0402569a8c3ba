// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

#include <QByteArray>

/// Bytes from and to what the system calls a file: a file, a pipe, a device.
namespace tessaly::ByteStream {

/// Everything that the descriptor gives. Fails when that is more than `limit` bytes, without reading further.
Result<QByteArray> readAll(int descriptor, const QString &name, qint64 limit);

/// The same of what stands at `path`; "-" is standard input.
Result<QByteArray> readAllOf(const QString &path, qint64 limit);

/// Returns 0, or the error number of the write that failed.
int writeAll(int descriptor, const QByteArray &bytes);

/// The system's words for an error number.
QString reason(int error);

/// How a path reads in a message: "-" is called by its name.
QString displayName(const QString &path);

} // namespace tessaly::ByteStream
