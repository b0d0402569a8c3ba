// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text/TextRecognizer.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <variant>

namespace tessaly {

class Clipboard;
class Links;
class Toasts;

/// Reads a picture and puts what it says on the clipboard, with a short notice. Codes go before text.
class TextCopier : public QObject {
    Q_OBJECT

public:
    struct CopiedText {
        QString text;
        bool operator==(const CopiedText &) const = default;
    };
    struct CopiedCode {
        QString text; ///< all payloads
        std::optional<QUrl> url; ///< when it was one code and that a web link
        bool operator==(const CopiedCode &) const = default;
    };
    /// Nothing was found; the clipboard is as it was.
    struct Nothing {
        bool operator==(const Nothing &) const = default;
    };
    using Outcome = std::variant<Nothing, CopiedText, CopiedCode>;

    /// How long a recognition may take before the user is told of it.
    static constexpr std::chrono::milliseconds usualPatience { 600 };

    /// Keeps the references.
    TextCopier(TextRecognizer &recognizer, Clipboard &clipboard, Toasts &toasts, Links &links,
        std::chrono::milliseconds patience = usualPatience);
    ~TextCopier() override;

    /// Whether pictures can be read on this computer.
    bool isSupported() const { return m_recognizer.isSupported(); }

    /// Recognises, delivers and announces. A copy that is under way is cancelled. "Recognizing text…" is shown when it
    /// takes longer than 0.6 s.
    void copyText(const RasterImage &image);
    bool isReading() const { return m_reading; }

    /// Puts it on the clipboard; leaves that as it is when there is nothing.
    Outcome deliver(const RecognizedContent &content);
    /// Tells the user. A link is opened only when they ask for it.
    void announce(const Outcome &outcome);

Q_SIGNALS:
    /// isReading() has become false, and the user has been told.
    void finished();

private:
    TextRecognizer &m_recognizer;
    Clipboard &m_clipboard;
    Toasts &m_toasts;
    Links &m_links;
    std::unique_ptr<RecognitionTask> m_task;
    QTimer m_wait;
    bool m_reading = false;
};

} // namespace tessaly
