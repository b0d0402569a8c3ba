// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text/TextRecognizer.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <variant>

namespace tessaly {

/// The text that can be selected on one editor's picture. One an editor; main thread only.
class LiveTextModel : public QObject {
    Q_OBJECT

public:
    struct Ready {
        bool hasText = false;
        bool operator==(const Ready &) const = default;
    };
    struct Off {
        bool operator==(const Off &) const = default;
    };
    struct Analyzing {
        bool operator==(const Analyzing &) const = default;
    };
    struct Unsupported {
        bool operator==(const Unsupported &) const = default;
    };
    using Status = std::variant<Off, Analyzing, Ready, Unsupported>;

    /// Keeps the recogniser.
    explicit LiveTextModel(TextRecognizer &recognizer, QObject *parent = nullptr);
    ~LiveTextModel() override;

    const Status &status() const { return m_status; }
    /// What was read in the picture that was given last; empty until that is done. A failure has found nothing.
    const std::optional<RecognizedContent> &analysis() const { return m_analysis; }

    /// Reads the picture after the delay. What had been read is forgotten at once; an analysis under way is cancelled
    /// and changes nothing any more.
    void analyze(const RasterImage &image, std::chrono::milliseconds delay);
    /// Forgets what was read.
    void stop();

Q_SIGNALS:
    void changed();

private:
    void cancel();
    void begin();
    void set(Status status);

    TextRecognizer &m_recognizer;
    Status m_status;
    RasterImage m_image; ///< that waits for the delay
    std::optional<RecognizedContent> m_analysis;
    std::unique_ptr<RecognitionTask> m_task;
    QTimer m_delay;
};

} // namespace tessaly
