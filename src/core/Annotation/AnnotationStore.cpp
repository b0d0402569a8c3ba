// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationStore.h"

namespace tessaly {

AnnotationStore::AnnotationStore(RasterImage image, const Settings &, QObject *parent) :
    QObject(parent),
    m_content { .image = std::move(image) }
{
}

void AnnotationStore::restore(const Snapshot &snapshot)
{
    m_content = snapshot;
    Q_EMIT changed();
}

bool AnnotationStore::hasPresentation() const
{
    return m_content.frame || (m_content.watermark && m_content.watermark->isVisible());
}

} // namespace tessaly
