// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/RequestReading.h"

#include <QCoreApplication>
#include <QStringList>

#include <cmath>
#include <limits>

namespace tessaly::RequestReading {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(RequestReading)
};

Failure notUnderstood(const QString &name, const QVariant &value)
{
    return { Text::tr("The option %1 of a capture cannot be \"%2\".").arg(name, value.toString()) };
}

std::optional<qint64> wholeNumber(const QVariant &value, qint64 lowest, qint64 highest)
{
    bool ok = false;
    const qint64 number = value.toLongLong(&ok);
    return ok && number >= lowest && number <= highest ? std::optional(number) : std::nullopt;
}

/// Takes one option over into the request; false when its value is of no use.
using Take = bool (*)(const QVariant &value, const QList<Display> &displays, CaptureRequest &request);

bool takeSink(const QVariant &value, const QList<Display> &, CaptureRequest &request)
{
    const auto sink = enumFromRaw<CaptureSink>(value.toString());
    request.sink = sink.value_or(request.sink);
    return sink.has_value();
}

bool takeOutput(const QVariant &value, const QList<Display> &, CaptureRequest &request)
{
    request.outputPath = value.toString();
    return request.outputPath->startsWith(u'/');
}

bool takeDelay(const QVariant &value, const QList<Display> &, CaptureRequest &request)
{
    constexpr int longest = 3600;
    const auto seconds = wholeNumber(value, 0, longest);
    request.delaySeconds = static_cast<int>(seconds.value_or(0));
    return seconds.has_value();
}

bool takeDisplay(const QVariant &value, const QList<Display> &displays, CaptureRequest &request)
{
    const auto number = wholeNumber(value, 1, displays.size());
    if (number)
        request.display = displays[*number - 1].id();
    return number.has_value();
}

bool takeRect(const QVariant &value, const QList<Display> &, CaptureRequest &request)
{
    request.rect = rectFrom(value.toString());
    return request.rect && request.subject == CaptureSubject::Region;
}

bool takeWindow(const QVariant &value, const QList<Display> &, CaptureRequest &request)
{
    const auto number = wholeNumber(value, 1, std::numeric_limits<qint64>::max());
    request.window = static_cast<quint64>(number.value_or(0));
    return number && request.subject == CaptureSubject::Window;
}

constexpr std::pair<QLatin1StringView, Take> options[] = {
    { QLatin1StringView("to"), takeSink },
    { QLatin1StringView("output"), takeOutput },
    { QLatin1StringView("delay"), takeDelay },
    { QLatin1StringView("display"), takeDisplay },
    { QLatin1StringView("rect"), takeRect },
    { QLatin1StringView("window"), takeWindow },
};

Take takerOf(const QString &name)
{
    for (const auto &[known, take] : options) {
        if (name == known)
            return take;
    }
    return nullptr;
}

} // namespace

std::optional<QRectF> rectFrom(const QString &text)
{
    QList<double> numbers;
    for (const QString &part : text.split(u',')) {
        bool ok = false;
        numbers += part.toDouble(&ok);
        if (!ok || !std::isfinite(numbers.last()))
            return std::nullopt;
    }
    if (numbers.size() != 4 || numbers[2] <= 0 || numbers[3] <= 0)
        return std::nullopt;
    return QRectF(numbers[0], numbers[1], numbers[2], numbers[3]);
}

Result<CaptureRequest> read(const QString &subject, const QVariantMap &given, const QList<Display> &displays)
{
    const auto what = enumFromRaw<CaptureSubject>(subject);
    if (!what)
        return Failure { Text::tr("\"%1\" is nothing that can be captured.").arg(subject) };
    CaptureRequest request { .subject = *what };
    if (given.contains(QStringLiteral("output")))
        request.sink = CaptureSink::File;
    for (const auto &[name, value] : given.asKeyValueRange()) {
        const Take take = takerOf(name);
        if (!take)
            return Failure { Text::tr("A capture has no option %1.").arg(name) };
        if (!take(value, displays, request))
            return notUnderstood(name, value);
    }
    if (request.outputPath && request.sink != CaptureSink::File)
        return notUnderstood(QStringLiteral("to"), given.value(QStringLiteral("to")));
    return request;
}

QVariantMap optionsFrom(const QStringList &texts)
{
    QVariantMap map;
    for (const QString &text : texts)
        map.insert(text.section(u'=', 0, 0), text.section(u'=', 1));
    return map;
}

} // namespace tessaly::RequestReading
