// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationDocument.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <algorithm>
#include <cstring>

namespace tessaly {

namespace {

template <class... Arguments>
Failure failure(const char *sentence, const Arguments &...arguments)
{
    const QString text = QCoreApplication::translate("AnnotationDocument", sentence);
    if constexpr (sizeof...(arguments) == 0)
        return { text };
    else
        return { text.arg(QString(arguments)...) };
}

Failure tooManyMarks(qsizetype count)
{
    return failure(QT_TRANSLATE_NOOP("AnnotationDocument", "There are %1 marks; a document holds at most %2."),
        QString::number(count), QString::number(AnnotationDocument::maxAnnotations));
}

Failure tooLong()
{
    return failure(QT_TRANSLATE_NOOP("AnnotationDocument", "The JSON text is longer than %1 MiB."),
        QString::number(AnnotationDocument::maxJsonBytes >> 20));
}

/// Whether the quotation mark at `quote` stands for itself: an odd number of backslashes comes before it.
bool isEscaped(const char *text, const char *quote)
{
    const char *before = quote;
    while (before > text && before[-1] == '\\')
        --before;
    return (quote - before) % 2 == 1;
}

bool separates(char letter) { return letter == ',' || letter == '[' || letter == '{' || letter == ':'; }

/// How many keys and values the text holds at most: each but the first follows a bracket, a brace, a colon or a comma.
qsizetype valueCount(const QByteArray &json)
{
    qsizetype count = 1;
    const char *const end = json.constData() + json.size();
    for (const char *at = json.constData(); at < end; ++at) {
        count += separates(*at);
        if (*at != '"')
            continue;
        do {
            at = static_cast<const char *>(std::memchr(at + 1, '"', static_cast<std::size_t>(end - at - 1)));
            if (!at)
                return count;
        } while (isEscaped(json.constData(), at));
    }
    return count;
}

Result<QJsonDocument> parsed(const QByteArray &json)
{
    if (json.size() > AnnotationDocument::maxJsonBytes)
        return tooLong();
    // The fast count takes what stands inside texts along; only where that is too much does it have to be looked at.
    constexpr auto most = AnnotationDocument::maxJsonValues;
    if (std::ranges::count_if(json, separates) > most && valueCount(json) > most) {
        return failure(
            QT_TRANSLATE_NOOP("AnnotationDocument", "The JSON text holds more than %1 values."), QString::number(most));
    }
    QJsonParseError error;
    QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error == QJsonParseError::NoError)
        return document;
    return failure(QT_TRANSLATE_NOOP("AnnotationDocument", "The text is not JSON: %1 at byte %2."), error.errorString(),
        QString::number(error.offset));
}

/// The readers below fill `target` from one key, which may be missing or null, and give the sentence of what is wrong.
using Problem = std::optional<Failure>;

template <class T>
Problem readKey(const QJsonObject &object, const char *key, T &target, const char *sentence)
{
    const QJsonValue value = object.value(QLatin1StringView(key));
    if (value.isUndefined() || value.isNull() || json::Codec<T>::read(value, target))
        return std::nullopt;
    return failure(sentence, QLatin1StringView(key));
}

Problem readKey(const QJsonObject &object, const char *key, int &target)
{
    return readKey(object, key, target, QT_TRANSLATE_NOOP("AnnotationDocument", "“%1” is not a whole number."));
}

Problem readKey(const QJsonObject &object, const char *key, std::optional<QString> &target)
{
    return readKey(object, key, target, QT_TRANSLATE_NOOP("AnnotationDocument", "“%1” is not a text."));
}

Problem readKey(const QJsonObject &object, const char *key, QSizeF &target)
{
    QPointF pair(target.width(), target.height());
    const auto problem
        = readKey(object, key, pair, QT_TRANSLATE_NOOP("AnnotationDocument", "“%1” is not a pair of numbers."));
    target = { pair.x(), pair.y() };
    return problem;
}

Problem readKey(const QJsonObject &object, const char *key, std::optional<QSizeF> &target)
{
    const QJsonValue value = object.value(QLatin1StringView(key));
    return value.isUndefined() || value.isNull() ? std::nullopt : readKey(object, key, target.emplace());
}

/// Frame and watermark: a record that says itself what is wrong in it.
template <class Record>
Problem readRecord(const QJsonObject &object, const char *key, std::optional<Record> &target)
{
    const QJsonValue value = object.value(QLatin1StringView(key));
    if (value.isUndefined() || value.isNull())
        return std::nullopt;
    if (!value.isObject())
        return failure(QT_TRANSLATE_NOOP("AnnotationDocument", "“%1” is not an object."), QLatin1StringView(key));
    auto record = Record::fromJson(value.toObject());
    if (!record)
        return record.failure();
    target = *std::move(record);
    return std::nullopt;
}

Result<Annotation> readMark(const QJsonValue &element)
{
    if (!element.isObject())
        return failure(QT_TRANSLATE_NOOP("AnnotationDocument", "The mark is not an object."));
    return Annotation::fromJson(element.toObject());
}

/// Each element is read on its own, so that one that cannot be read costs no other.
Problem readMarks(const QJsonValue &value, AnnotationDocument &document)
{
    if (value.isUndefined() || value.isNull())
        return std::nullopt;
    if (!value.isArray())
        return failure(QT_TRANSLATE_NOOP("AnnotationDocument", "“annotations” is not a list."));
    const QJsonArray elements = value.toArray();
    if (elements.size() > AnnotationDocument::maxAnnotations)
        return tooManyMarks(elements.size());
    document.annotations.reserve(elements.size());
    for (qsizetype index = 0; index < elements.size(); ++index) {
        if (auto mark = readMark(elements.at(index))) {
            document.annotations.append(*std::move(mark));
        } else if (++document.skippedAnnotations == 1) {
            document.firstSkippedReason = failure(QT_TRANSLATE_NOOP("AnnotationDocument", "Mark %1: %2"),
                QString::number(index + 1), mark.failure().message)
                                              .message;
        }
    }
    return std::nullopt;
}

Result<AnnotationDocument> documentOf(const QJsonObject &object)
{
    AnnotationDocument document;
    if (object.value(u"canvasSize").isUndefined() || object.value(u"canvasSize").isNull())
        return failure(QT_TRANSLATE_NOOP("AnnotationDocument", "“canvasSize” is missing."));
    for (const Problem &problem :
        { readKey(object, "version", document.version), readKey(object, "canvasSize", document.canvasSize),
            readKey(object, "nextStampNumber", document.nextStampNumber),
            readKey(object, "pixelSize", document.pixelSize), readKey(object, "generator", document.generator),
            readRecord(object, "frame", document.frame), readRecord(object, "watermark", document.watermark),
            readMarks(object.value(u"annotations"), document) }) {
        if (problem)
            return *problem;
    }
    return document;
}

QJsonArray sizeJson(QSizeF size) { return json::Codec<QPointF>::write({ size.width(), size.height() }).toArray(); }

/// Which number of the document JSON cannot hold, as “key” or as the key of a mark.
Problem unwritable(const AnnotationDocument &document)
{
    const auto inDocument = [](const char *key) {
        return failure(
            QT_TRANSLATE_NOOP("AnnotationDocument", "“%1” has a number that is not finite."), QLatin1StringView(key));
    };
    const auto isWritable = [](QSizeF size) { return json::isWritable(QPointF(size.width(), size.height())); };
    if (!isWritable(document.canvasSize))
        return inDocument("canvasSize");
    if (document.pixelSize && !isWritable(*document.pixelSize))
        return inDocument("pixelSize");
    if (document.frame && document.frame->unwritableKey())
        return inDocument(document.frame->unwritableKey());
    if (document.watermark && document.watermark->unwritableKey())
        return inDocument(document.watermark->unwritableKey());
    for (qsizetype index = 0; index < document.annotations.size(); ++index) {
        if (const char *key = document.annotations[index].unwritableKey()) {
            return failure(
                QT_TRANSLATE_NOOP("AnnotationDocument", "The “%1” of mark %2 has a number that is not finite."),
                QLatin1StringView(key), QString::number(index + 1));
        }
    }
    return std::nullopt;
}

QJsonObject objectOf(const AnnotationDocument &document)
{
    QJsonArray marks;
    for (const Annotation &mark : document.annotations)
        marks.append(mark.toJson());
    QJsonObject object { { QStringLiteral("version"), document.version },
        { QStringLiteral("canvasSize"), sizeJson(document.canvasSize) }, { QStringLiteral("annotations"), marks },
        { QStringLiteral("nextStampNumber"), document.nextStampNumber } };
    if (document.pixelSize)
        object.insert(u"pixelSize", sizeJson(*document.pixelSize));
    if (document.generator)
        object.insert(u"generator", *document.generator);
    if (document.frame)
        object.insert(u"frame", document.frame->toJson());
    if (document.watermark)
        object.insert(u"watermark", document.watermark->toJson());
    return object;
}

/// A record of a file that holds it alone, or as one key of a document.
template <class Record>
Result<Record> recordIn(const QByteArray &json, const char *key, const char *missingSentence)
{
    const auto document = parsed(json);
    if (!document)
        return document.failure();
    const QJsonObject object = document->object();
    if (object.contains(QLatin1StringView(key))) {
        std::optional<Record> record;
        if (const auto problem = readRecord(object, key, record))
            return *problem;
        if (record)
            return *record;
    }
    if (!document->isObject() || object.contains(u"canvasSize") || object.contains(QLatin1StringView(key)))
        return failure(missingSentence);
    return Record::fromJson(object);
}

} // namespace

Result<QByteArray> AnnotationDocument::encoded() const
{
    if (annotations.size() > maxAnnotations)
        return tooManyMarks(annotations.size());
    if (const auto problem = unwritable(*this))
        return *problem;
    QByteArray json = QJsonDocument(objectOf(*this)).toJson(QJsonDocument::Indented);
    if (json.size() > maxJsonBytes)
        return tooLong();
    return json;
}

Result<AnnotationDocument> AnnotationDocument::decoded(const QByteArray &json)
{
    const auto document = parsed(json);
    if (!document)
        return document.failure();
    if (!document->isObject())
        return failure(QT_TRANSLATE_NOOP("AnnotationDocument", "The JSON text is a list, not a document."));
    return documentOf(document->object());
}

Result<AnnotationDocument> AnnotationDocument::decodedDocumentOrList(const QByteArray &json)
{
    const auto document = parsed(json);
    if (!document)
        return document.failure();
    if (document->isObject())
        return documentOf(document->object());
    AnnotationDocument list;
    if (const auto problem = readMarks(document->array(), list))
        return *problem;
    return list;
}

int AnnotationDocument::probedVersion(const QByteArray &json)
{
    const auto document = parsed(json);
    int version = currentVersion;
    if (document && readKey(document->object(), "version", version))
        return currentVersion;
    return version;
}

bool AnnotationDocument::operator==(const AnnotationDocument &other) const
{
    const auto fields = [](const AnnotationDocument &document) {
        return std::tie(document.version, document.canvasSize, document.annotations, document.nextStampNumber,
            document.pixelSize, document.generator, document.frame, document.watermark, document.skippedAnnotations);
    };
    return fields(*this) == fields(other);
}

Result<FrameStyle> decodedFrame(const QByteArray &json)
{
    return recordIn<FrameStyle>(json, "frame", QT_TRANSLATE_NOOP("AnnotationDocument", "There is no frame in it."));
}

Result<Watermark> decodedWatermark(const QByteArray &json)
{
    return recordIn<Watermark>(
        json, "watermark", QT_TRANSLATE_NOOP("AnnotationDocument", "There is no watermark in it."));
}

} // namespace tessaly
