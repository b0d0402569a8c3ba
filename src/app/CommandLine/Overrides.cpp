// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/Overrides.h"

#include "app/CommandLine/ByteStream.h"
#include "app/CommandLine/Console.h"
#include "app/CommandLine/MarkCheck.h"
#include "app/CommandLine/Text.h"

#include <QJsonDocument>

namespace tessaly {

namespace {

Failure about(const QString &path, const QString &sentence)
{
    return { sentence.contains(path) ? sentence : path + QStringLiteral(": ") + sentence };
}

/// A record that stands alone in a file as a JSON object.
template <class Record>
Result<Record> readRecord(const QString &path)
{
    const auto json = ByteStream::readAllOf(path, AnnotationDocument::maxJsonBytes);
    if (!json)
        return json.failure();
    QJsonParseError error;
    const QJsonDocument parsed = QJsonDocument::fromJson(*json, &error);
    if (!parsed.isObject()) {
        const QString reason
            = error.error == QJsonParseError::NoError ? Text::tr("it is not an object") : error.errorString();
        return about(path, Text::tr("The JSON cannot be used: %1.").arg(reason));
    }
    auto record = Record::fromJson(parsed.object());
    if (!record)
        return about(path, record.failure().message);
    return record;
}

Result<AnnotationDocument> readAnnotations(const QString &path)
{
    const auto json = ByteStream::readAllOf(path, AnnotationDocument::maxJsonBytes);
    if (!json)
        return json.failure();
    auto document = AnnotationDocument::decodedDocumentOrList(*json);
    if (!document)
        return about(path, document.failure().message);
    return document;
}

/// An empty option asks for nothing, which is what the outer absence of a result says.
Result<std::optional<std::optional<FrameStyle>>> readFrame(const std::optional<QString> &option)
{
    using Choice = std::optional<std::optional<FrameStyle>>;
    if (!option)
        return Choice();
    if (*option == u"none")
        return Choice(std::in_place);
    if (*option == u"default")
        return Choice(FrameStyle {});
    auto frame = readRecord<FrameStyle>(*option);
    return frame ? Result<Choice>(Choice(std::move(*frame))) : frame.failure();
}

Result<std::optional<std::optional<Watermark>>> readWatermark(const InputOptions &options)
{
    using Choice = std::optional<std::optional<Watermark>>;
    if (!options.watermark)
        return Choice();
    if (*options.watermark == u"none")
        return Choice(std::in_place);
    auto watermark = readRecord<Watermark>(*options.watermark);
    if (!watermark)
        return watermark.failure();
    if (const auto problem = MarkCheck::problem(*watermark, options.reading()))
        return about(*options.watermark, *problem);
    return Choice(std::move(*watermark));
}

} // namespace

std::optional<Overrides> Overrides::read(const InputOptions &options, Console &console)
{
    const auto give = [&console](auto result, auto &target) {
        if (result)
            target = std::move(*result);
        else
            console.message(result.failure().message);
        return static_cast<bool>(result);
    };
    Overrides overrides;
    if (options.annotations && !give(readAnnotations(*options.annotations), overrides.annotations.emplace()))
        return std::nullopt;
    if (!give(readFrame(options.frame), overrides.frame) || !give(readWatermark(options), overrides.watermark))
        return std::nullopt;
    if (overrides.annotations) {
        if (const auto remark = MarkCheck::setAside(*overrides.annotations, options.reading()))
            console.message(*options.annotations, *remark);
    }
    return overrides;
}

void Overrides::applyTo(AnnotationDocument &document) const
{
    if (annotations) {
        document.annotations = annotations->annotations;
        document.nextStampNumber = annotations->nextStampNumber;
        if (annotations->frame)
            document.frame = annotations->frame;
        if (annotations->watermark)
            document.watermark = annotations->watermark;
    }
    document.frame = frame.value_or(document.frame);
    document.watermark = watermark.value_or(document.watermark);
}

} // namespace tessaly
