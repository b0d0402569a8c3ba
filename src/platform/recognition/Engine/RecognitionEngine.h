// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/recognition/Engine/LineReader.h"

#include <vector>

namespace tessaly {

/// Reads text and codes out of pictures, on the calling thread and some that it starts. It keeps its models loaded.
class RecognitionEngine {
public:
    struct Options {
        ReadingModels models;
        TextRecognizer::Codes codes = TextRecognizer::Codes::Detect;
    };

    explicit RecognitionEngine(int threads = defaultThreads());

    /// Loads the models if others, or none, are loaded.
    Outcome load(const ReadingModels &models);

    /// What `gray`, in Format_Grayscale8, says. Nothing in particular when it was cancelled.
    Result<RecognizedContent> read(const QImage &gray, const Options &options, const Cancellation &cancellation);

    /// Two: each costs the memory of the models, and recognition is not all that the machine does.
    static int defaultThreads();

    /// Lets everything else on the machine go before the calling thread, and the threads that it starts, for good.
    static void lowerPriority();

private:
    int m_threads;
    ReadingModels m_loaded;
    std::vector<std::unique_ptr<LineReader>> m_readers; ///< one a thread
};

} // namespace tessaly
