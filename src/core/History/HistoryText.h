// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Snapshot.h"

/// The text by which a capture is found: what was read in its picture, and what its marks and its watermark say.
///
/// An entry stores both in one text. The marks' stands on a page of its own, after a form feed, so that the other can
/// be told from it when only one of them changes.
namespace tessaly::HistoryText {

/// What text marks, stickers and the captions of stamps say, and a text watermark, a line each.
QString ofMarks(const QList<Annotation> &annotations, const std::optional<Watermark> &watermark);

/// `picture` is absent when it has not been read; the result is absent when then the marks say nothing.
std::optional<QString> joined(const std::optional<QString> &picture, const QString &marks);

/// The two parts of a stored text.
std::optional<QString> pictureOf(const std::optional<QString> &stored);
/// Whether pictureOf() has a text, which may be empty.
bool isRead(const std::optional<QString> &stored);
QString marksOf(const std::optional<QString> &stored);

} // namespace tessaly::HistoryText
