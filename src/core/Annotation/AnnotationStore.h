// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Snapshot.h"
#include "core/Frame/FrameLayout.h"

#include <QObject>

namespace tessaly {

class Settings;

/// The editing model of one open capture: the picture, its marks, frame and watermark, and their undo.
class AnnotationStore : public QObject {
    Q_OBJECT

public:
    AnnotationStore(RasterImage image, const Settings &settings, QObject *parent = nullptr);

    const RasterImage &image() const { return m_content.image; }
    const QList<Annotation> &annotations() const { return m_content.annotations; }
    int nextStampNumber() const { return m_content.nextStampNumber; }
    const std::optional<FrameStyle> &frame() const { return m_content.frame; }
    const std::optional<Watermark> &watermark() const { return m_content.watermark; }

    /// Takes over marks, next number, frame and watermark as they were stored; no undo step.
    void restore(const Snapshot &snapshot);
    const Snapshot &currentSnapshot() const { return m_content; }

    double pixelScale() const { return m_content.image.pixelScale(); }
    int dpi() const { return m_content.image.dpi(); }

    /// A frame is set, or a watermark that can be seen: exports then show the framed composition.
    bool hasPresentation() const;
    FrameLayout frameLayout() const { return { m_content.image.pointSize, m_content.frame, pixelScale() }; }

Q_SIGNALS:
    void changed();

private:
    Snapshot m_content;
};

} // namespace tessaly
