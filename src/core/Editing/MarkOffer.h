// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationStore.h"
#include "core/Desktop/Clipboard.h"

namespace tessaly {

/// A mark on the clipboard: its JSON for other canvases, a picture of it alone for other programs, a text mark's text.
/// Each is made only when it is asked for. Needs a QGuiApplication where texts are drawn.
class MarkOffer final : public ClipboardOffer {
public:
    MarkOffer(const Annotation &mark, const AnnotationStore &store);

    QStringList types() const override;
    QByteArray data(const QString &type) override;

    /// The mark on a transparent ground, cut to what can be seen of it, at the capture's scale; null when that is
    /// nothing.
    QImage picture() const;

private:
    QByteArray json() const;

    Annotation m_mark;
    RasterImage m_image; ///< what loupes and obscured areas show
    int m_nextStampNumber;
};

} // namespace tessaly
