// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/EditorStatus.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Editing/EditorZoom.h"
#include "ui/Style/Appearance.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPainter>

#include <chrono>

namespace tessaly {

QString zoomText(double scale)
{
    return EditorStatus::tr("%1 %").arg(QLocale().toString(std::round(scale * 100), 'f', 0));
}

EditorStatus::EditorStatus(const AnnotationStore &store, const EditorZoom &zoom, QWidget *parent) :
    QWidget(parent),
    m_store(store),
    m_zoom(zoom),
    m_message(new QLabel),
    m_size(new QLabel),
    m_scale(new QLabel)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 5, 12, 4);
    layout->setSpacing(16);
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_message->setObjectName(QStringLiteral("statusMessage"));
    layout->addWidget(m_message, 1);
    m_size->setObjectName(QStringLiteral("documentSize"));
    m_size->setToolTip(tr("Document size in real pixels and its resolution. Retina captures are 2× (144 dpi) and some "
                          "apps paste them at half size — turn on “Copy to clipboard at full size” in Settings ▸ "
                          "Capture to always paste at 1×."));
    layout->addWidget(m_size);
    m_scale->setObjectName(QStringLiteral("zoom"));
    m_scale->setToolTip(tr("Zoom"));
    m_scale->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_scale->setMinimumWidth(fontMetrics().horizontalAdvance(zoomText(EditorZoom::max)));
    layout->addWidget(m_scale);
    m_passing.setSingleShot(true);
    m_passing.setInterval(std::chrono::seconds(5));
    connect(&m_passing, &QTimer::timeout, m_message, &QLabel::clear);
    connect(&store, &AnnotationStore::changed, this, &EditorStatus::refresh);
    connect(&zoom, &EditorZoom::changed, this, &EditorStatus::refresh);
    refresh();
}

void EditorStatus::showMessage(const QString &sentence)
{
    m_message->setText(sentence);
    m_message->setToolTip(sentence); // where the line is too short for it
    m_passing.start();
}

void EditorStatus::refresh()
{
    const QSize pixels = m_store.pixelDimensions();
    m_size->setText(tr("%1 × %2 px · %3 dpi").arg(pixels.width()).arg(pixels.height()).arg(m_store.dpi()));
    m_scale->setText(zoomText(m_zoom.scale()));
}

void EditorStatus::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(QRect(0, 0, width(), 1), Colors::separator());
}

} // namespace tessaly
