// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/CaptureRequest.h"
#include "core/Screen/Display.h"

#include <QVariantMap>

/// Captures as other programs ask for them, by names and values.
namespace tessaly::RequestReading {

/// The request of a subject ("region", "front-window") with options: "to" ("editor", "clipboard", "file", "text"),
/// "output" (a file's path), "delay" (seconds), "display" (counted from 1 among `displays`), "rect" ("X,Y,W,H" in
/// points of the display) and "window" (its number). A number may be a text. Anything else is a failure that says what
/// is wrong.
Result<CaptureRequest> read(const QString &subject, const QVariantMap &options, const QList<Display> &displays);

/// "X,Y,W,H", four numbers of which the last two are above 0; empty for anything else.
std::optional<QRectF> rectFrom(const QString &text);

/// Texts of the form "name=value".
QVariantMap optionsFrom(const QStringList &texts);

} // namespace tessaly::RequestReading
