// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/TextReading.h"

#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/Text.h"

#include <QEventLoop>

namespace tessaly {

Result<TextReading> TextReading::create(CommandContext &context)
{
    context.requireApplication();
    std::unique_ptr<TextRecognizer> recognizer = context.environment().textRecognizer();
    if (!recognizer || !recognizer->isSupported())
        return Failure { Text::tr("Text cannot be read here: tessaly-recognition is not installed, or no language data "
                                  "for it such as the package tesseract-ocr-eng.") };
    recognizer->notice = [&console = context.console()](const QString &sentence) { console.message(sentence); };
    return TextReading(std::move(recognizer));
}

Result<RecognizedContent> TextReading::read(RasterImage image, TextRecognizer::Codes codes)
{
    QEventLoop loop;
    std::optional<Result<RecognizedContent>> answer;
    const auto task = m_recognizer->recognize(
        { .image = std::move(image), .codes = codes }, [&](Result<RecognizedContent> content) {
            answer = std::move(content);
            loop.quit();
        });
    if (!answer)
        loop.exec();
    return std::move(*answer);
}

} // namespace tessaly
