// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text/TextRecognizer.h"

namespace tessaly {

class CommandContext;

/// Recognition for commands, which have nothing to do until they have its answer.
class TextReading {
public:
    /// Makes the context's recogniser, whose notices go to the console; fails where nothing can be recognised.
    static Result<TextReading> create(CommandContext &context);

    Result<RecognizedContent> read(RasterImage image, TextRecognizer::Codes codes);

private:
    explicit TextReading(std::unique_ptr<TextRecognizer> recognizer) : m_recognizer(std::move(recognizer)) { }

    std::unique_ptr<TextRecognizer> m_recognizer;
};

} // namespace tessaly
