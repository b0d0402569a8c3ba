// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/ByteStream.h"
#include "app/CommandLine/Command.h"
#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/CommandOptions.h"
#include "app/CommandLine/LoadedInput.h"
#include "app/CommandLine/Text.h"
#include "app/CommandLine/TextReading.h"

#include <QJsonDocument>

namespace tessaly {

namespace {

struct TextOptions {
    QStringList inputs;
    bool json = false;
    bool codes = false;
    InputOptions input;
};

QJsonArray array(const QRectF &box) { return { box.x(), box.y(), box.width(), box.height() }; }

QJsonObject jsonObject(const RecognizedContent &content)
{
    QJsonArray lines, codes;
    for (const RecognizedContent::Line &line : content.lines)
        lines.append(QJsonObject { { "text", line.text }, { "boundingBox", array(line.boundingBox) } });
    for (const RecognizedContent::Code &code : content.codes) {
        codes.append(QJsonObject {
            { "payload", code.payload }, { "isQR", code.isQR }, { "boundingBox", array(code.boundingBox) } });
    }
    return { { "lines", lines }, { "codes", codes } };
}

/// The text, and below it what the codes say, each on a line of its own.
QByteArray plainText(const RecognizedContent &content)
{
    QStringList parts;
    if (!content.lines.isEmpty())
        parts += content.text();
    for (const RecognizedContent::Code &code : content.codes)
        parts += code.payload;
    return parts.isEmpty() ? QByteArray() : parts.join(u'\n').toUtf8() + '\n';
}

/// One run of `text` over its inputs.
class TextRun {
public:
    TextRun(const TextOptions &options, CommandContext &context) : m_options(options), m_context(context) { }

    ExitStatus run();

private:
    Result<RecognizedContent> readInput(const QString &input, TextReading &reading);
    void show(const QString &input, const RecognizedContent &content);
    ExitStatus printed();

    const TextOptions &m_options;
    CommandContext &m_context;
    QJsonArray m_objects;
    QByteArrayList m_texts;
};

ExitStatus TextRun::run()
{
    Console &console = m_context.console();
    if (m_options.inputs.count(QStringLiteral("-")) > 1) {
        console.message(Text::tr("Standard input can be read once only."));
        return ExitStatus::WrongUsage;
    }
    auto reading = TextReading::create(m_context);
    if (!reading) {
        console.message(reading.failure().message);
        return ExitStatus::Failed;
    }
    ExitStatus status = ExitStatus::Done;
    const auto total = static_cast<int>(m_options.inputs.size());
    for (int index = 0; index < total; ++index) {
        const QString &input = m_options.inputs[index];
        console.progress(index, total, ByteStream::displayName(input));
        const auto content = readInput(input, *reading);
        if (content) {
            show(input, *content);
            continue;
        }
        console.message(ByteStream::displayName(input), content.failure().message);
        status = ExitStatus::Failed;
    }
    console.endProgress();
    const ExitStatus output = printed();
    return output == ExitStatus::Done ? status : output;
}

Result<RecognizedContent> TextRun::readInput(const QString &input, TextReading &reading)
{
    const auto loaded = LoadedInput::read(input, m_options.input, {}, m_context);
    if (!loaded)
        return loaded.failure();
    auto picture = loaded->flattened(m_context, m_options.input.reading().maxPixels);
    if (!picture)
        return picture.failure();
    return reading.read(
        std::move(*picture), m_options.codes ? TextRecognizer::Codes::Detect : TextRecognizer::Codes::Skip);
}

void TextRun::show(const QString &input, const RecognizedContent &content)
{
    if (m_options.json) {
        QJsonObject object = jsonObject(content);
        if (m_options.inputs.size() > 1)
            object.insert("file", input);
        m_objects.append(object);
    } else if (const QByteArray text = plainText(content); !text.isEmpty()) {
        m_texts += text;
    }
}

ExitStatus TextRun::printed()
{
    if (!m_options.json)
        return m_context.print(m_texts.join('\n'));
    if (m_options.inputs.size() > 1)
        return m_context.print(QJsonDocument(m_objects).toJson());
    return m_objects.isEmpty() ? ExitStatus::Done
                               : m_context.print(QJsonDocument(m_objects.first().toObject()).toJson());
}

} // namespace

CommandBody setUpText(CommandOptions &options)
{
    auto chosen = std::make_shared<TextOptions>();
    options.inputs(chosen->inputs, "IMAGE",
        "Images, or .tessaly documents, which are read as they are shown; - is an image on standard input");
    options.flag(chosen->json, "--json",
        "Print lines and codes with their boxes in parts of the picture, 0 to 1 from the top left; of several images "
        "an array, in which \"file\" names each");
    options.flag(chosen->codes, "--codes", "Read QR codes and bar codes too; without --json they follow the text");
    chosen->input.declareScale(options);
    chosen->input.declareMaxPixels(options);
    options.closing("The texts of several images are set apart by empty lines. Where nothing is\n"
                    "found, nothing is printed. The languages are those of your locale that are\n"
                    "installed.\n"
                    "Example:\n"
                    "  tessaly text shot.png --json --codes");
    return [chosen](CommandContext &context) { return TextRun(*chosen, context).run(); };
}

} // namespace tessaly
