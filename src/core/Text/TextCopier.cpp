// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Text/TextCopier.h"

#include "core/Desktop/Clipboard.h"
#include "core/Desktop/Links.h"
#include "core/Desktop/TextOffer.h"
#include "core/Desktop/Toasts.h"

namespace tessaly {

using namespace std::chrono_literals;

namespace {

/// Joined by line feeds.
QString payloadsOf(const QList<RecognizedContent::Code> &codes)
{
    QStringList payloads;
    for (const RecognizedContent::Code &code : codes)
        payloads += code.payload;
    return payloads.join(u'\n');
}

} // namespace

TextCopier::TextCopier(TextRecognizer &recognizer, Clipboard &clipboard, Toasts &toasts, Links &links,
    std::chrono::milliseconds patience) :
    m_recognizer(recognizer),
    m_clipboard(clipboard),
    m_toasts(toasts),
    m_links(links)
{
    m_wait.setSingleShot(true);
    m_wait.setInterval(patience);
    connect(&m_wait, &QTimer::timeout, this, [this] {
        constexpr auto untilReplaced = 90s;
        m_toasts.show(tr("Recognizing text…"), untilReplaced);
    });
}

TextCopier::~TextCopier() = default;

void TextCopier::copyText(const RasterImage &image)
{
    m_task.reset();
    m_wait.start();
    m_reading = true;
    TextRecognizer::Request request { .image = image };
    m_task = m_recognizer.recognize(std::move(request), [this](const Result<RecognizedContent> &result) {
        m_wait.stop();
        m_reading = false;
        // A recognition that failed has found nothing.
        announce(result ? deliver(*result) : Nothing {});
        Q_EMIT finished();
    });
}

TextCopier::Outcome TextCopier::deliver(const RecognizedContent &content)
{
    if (!content.codes.isEmpty()) {
        const std::optional<QUrl> link = content.codes.size() == 1 ? content.codes.first().webURL() : std::nullopt;
        const QString payloads = payloadsOf(content.codes);
        m_clipboard.offer(std::make_unique<TextOffer>(payloads, link));
        return CopiedCode { payloads, link };
    }
    const QString text = content.text();
    if (text.isEmpty())
        return Nothing {};
    m_clipboard.offer(std::make_unique<TextOffer>(text));
    return CopiedText { text };
}

void TextCopier::announce(const Outcome &outcome)
{
    if (std::holds_alternative<Nothing>(outcome))
        return m_toasts.show(tr("No text found"));
    const auto *code = std::get_if<CopiedCode>(&outcome);
    if (!code)
        return m_toasts.show(tr("Text copied to clipboard"));
    if (!code->url)
        return m_toasts.show(tr("Code content copied to clipboard"));
    m_toasts.showLink(
        tr("QR code link copied"), code->url->host(), [&links = m_links, url = *code->url] { links.open(url); });
}

} // namespace tessaly
