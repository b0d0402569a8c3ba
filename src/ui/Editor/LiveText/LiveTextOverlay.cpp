// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/LiveText/LiveTextOverlay.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Desktop/Clipboard.h"
#include "core/Desktop/Links.h"
#include "core/Desktop/TextOffer.h"
#include "core/Text/TextCopier.h"
#include "ui/Editor/Canvas/CanvasView.h"

#include <QEvent>

namespace tessaly {

using namespace std::chrono_literals;

LiveTextOverlay::LiveTextOverlay(AnnotationStore &store, CanvasView &canvas, const Services &services) :
    m_store(store),
    m_canvas(canvas),
    m_services(services),
    m_model(services.recognizer),
    m_layer(store, canvas),
    m_badge(new LiveTextBadge(canvas))
{
    canvas.setLayer(m_layer);
    canvas.installEventFilter(this);
    connect(&store, &AnnotationStore::changed, this, &LiveTextOverlay::follow);
    connect(&m_model, &LiveTextModel::changed, this, &LiveTextOverlay::showStatus);
    connect(&m_layer, &LiveTextLayer::copyRequested, this, &LiveTextOverlay::copyText);
    connect(&m_layer.menu(), &LiveTextMenu::copyCodeRequested, this, &LiveTextOverlay::copyCode);
    connect(&m_layer.menu(), &LiveTextMenu::openRequested, this, &LiveTextOverlay::openLink);
}

void LiveTextOverlay::setEnabled(bool enabled)
{
    if (std::exchange(m_isEnabled, enabled) == enabled)
        return;
    m_picture.reset();
    if (enabled)
        follow();
    else
        m_model.stop();
}

/// Changes of marks come often and cost nothing here; a new picture is read again once it has stood for a moment.
void LiveTextOverlay::follow()
{
    if (!m_isEnabled)
        return;
    const qint64 picture = m_store.image().pixels.cacheKey();
    if (m_picture != picture && m_canvas.isVisible()) {
        m_picture = picture;
        m_model.analyze(m_store.image(), m_services.delay);
    } else if (m_picture == picture) {
        m_layer.followMarks();
    }
}

void LiveTextOverlay::showStatus()
{
    m_layer.setContent(m_model.analysis().value_or(RecognizedContent()));
    constexpr auto moment = 2s, longer = 6s;
    const auto &status = m_model.status();
    const auto *ready = std::get_if<LiveTextModel::Ready>(&status);
    if (std::holds_alternative<LiveTextModel::Analyzing>(status))
        m_badge->showText(tr("Analyzing text…"), QStringLiteral("text-viewfinder"));
    else if (std::holds_alternative<LiveTextModel::Unsupported>(status))
        m_badge->showText(tr("Live Text isn't available on this Mac"), QStringLiteral("alert-warning"), longer);
    else if (ready && !ready->hasText && m_model.analysis())
        m_badge->showText(tr("No text in this image"), QStringLiteral("text-viewfinder"), moment);
    else
        m_badge->hideText();
}

void LiveTextOverlay::copyText(const QString &text)
{
    m_services.clipboard.offer(std::make_unique<TextOffer>(text));
    Q_EMIT m_canvas.message(tr("Text copied to clipboard"));
}

void LiveTextOverlay::copyCode(const RecognizedContent::Code &code)
{
    m_services.copier.deliver({ {}, { code } });
    Q_EMIT m_canvas.message(tr("Code content copied to clipboard"));
}

void LiveTextOverlay::openLink(const QUrl &link)
{
    if (!m_services.links.open(link))
        Q_EMIT m_canvas.message(tr("Couldn't open the link"));
}

bool LiveTextOverlay::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show)
        follow();
    return QObject::eventFilter(watched, event);
}

} // namespace tessaly
