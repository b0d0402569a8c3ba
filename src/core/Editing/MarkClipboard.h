// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"

namespace tessaly {

class AnnotationStore;
class Clipboard;

/// Marks on the clipboard: as their JSON, in which other windows paste them, and as a picture for other programs.
class MarkClipboard {
public:
    static constexpr char mimeType[] = "application/x-tessaly-marks+json";

    /// Keeps the reference.
    explicit MarkClipboard(Clipboard &clipboard);

    /// The selected mark; nothing when none is.
    void copy(const AnnotationStore &store);
    void cut(AnnotationStore &store);

    /// Whether there is a mark, an image or a text to paste; also while that is not known yet.
    bool canPaste() const;

    /// Puts what there is into the capture as one undo step and selects it: a mark at its place moved by +10, +10, or
    /// with its centre `at` an image point; an image as an image mark; a text as a text mark. A number stamp takes the
    /// next number. Fails with a sentence when the content cannot be read.
    Outcome paste(AnnotationStore &store, std::optional<QPointF> at = {});

private:
    Clipboard &m_clipboard;
};

/// Puts a picture into the capture as an image mark, scaled down to fit, as one undo step, and selects it.
Outcome insertImage(
    AnnotationStore &store, const QByteArray &imageFile, const QString &name, std::optional<QPointF> at);

/// The same with the content of a file.
Outcome insertImageFile(AnnotationStore &store, const QString &path, std::optional<QPointF> at);

} // namespace tessaly
