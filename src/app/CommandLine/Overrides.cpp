// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/Overrides.h"

#include "app/CommandLine/ByteStream.h"
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

} // namespace

Result<Overrides> Overrides::read(const InputOptions &options)
{
    Overrides overrides;
    if (options.annotations) {
        auto document = readAnnotations(*options.annotations);
        if (!document)
            return document.failure();
        if (const auto remark = MarkCheck::setAside(*document, options.reading()))
            overrides.remarks.append({ *options.annotations, *remark });
        overrides.annotations = std::move(*document);
    }
    if (options.frame && !isWord(*options.frame)) {
        auto frame = readRecord<FrameStyle>(*options.frame);
        if (!frame)
            return frame.failure();
        overrides.frame = std::move(*frame);
    } else if (options.frame) {
        overrides.frame = *options.frame == u"default" ? std::optional(FrameStyle {}) : std::nullopt;
    }
    if (options.watermark && *options.watermark != u"none") {
        auto watermark = readRecord<Watermark>(*options.watermark);
        if (!watermark)
            return watermark.failure();
        if (const auto problem = MarkCheck::problem(*watermark, options.reading()))
            return about(*options.watermark, *problem);
        overrides.watermark = std::move(*watermark);
    } else if (options.watermark) {
        overrides.watermark.emplace();
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
