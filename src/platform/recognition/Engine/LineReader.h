// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/LongWork.h"
#include "core/Text/TextRecognizer.h"

#include <QImage>

#include <memory>

namespace tessaly {

/// What is loaded to read text: models by Tesseract's names ("eng"), the first being tried first.
struct ReadingModels {
    QStringList names;
    TextRecognizer::Level level = TextRecognizer::Level::Accurate;

    bool operator==(const ReadingModels &) const = default;
};

/// Reads lines of text by Tesseract. One thread at a time.
class LineReader {
public:
    /// A sign of a word, roughly between two columns of the strip.
    struct Sign {
        QString text;
        double left = 0, right = 0;
    };
    /// A word of the strip, between two of its columns.
    struct Word {
        QString text;
        double left = 0, right = 0;
        double confidence = 0; ///< 0 to 100
        QList<Sign> signs = {}; ///< make up the text
    };

    /// Loads the models from Tesseract's own folder, or that of TESSDATA_PREFIX. Some 70 ms for each.
    static Result<std::unique_ptr<LineReader>> create(const ReadingModels &models);
    ~LineReader();

    /// The words of one line, dark on white in Format_Grayscale8; none when it was cancelled.
    QList<Word> read(const QImage &strip, const Cancellation &cancellation);

private:
    LineReader();

    struct Api;
    static std::unique_ptr<Api> loaded(const ReadingModels &models);

    std::unique_ptr<Api> m_api;
    std::unique_ptr<Api> m_reversed; ///< with the last model first; none where there is one model alone
};

} // namespace tessaly
