// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryEntry.h"

#include "core/History/HistoryEntryJson.h"
#include "core/History/HistoryIndexScanner.h"

#include <QCoreApplication>
#include <QJsonDocument>

namespace tessaly {

namespace {

using history::fields;

/// The first key that must be there and is not, or null.
const char *missingKey(const QJsonObject &object)
{
    const char *missing = nullptr;
    const auto check = [&]<class Member>(const json::Field<HistoryEntry, Member> &field) {
        constexpr bool isOptional = std::is_same_v<Member, std::optional<QString>>;
        if (!isOptional && !missing && !object.contains(QLatin1StringView(field.key)))
            missing = field.key;
    };
    std::apply([&](const auto &...field) { (check(field), ...); }, fields);
    return missing;
}

template <class... Arguments>
Failure failure(const char *sentence, const Arguments &...arguments)
{
    return { QCoreApplication::translate("HistoryEntry", sentence).arg(QString(arguments)...) };
}

/// Newer above older; the text of the identifier decides between those of one instant.
bool isBefore(const HistoryEntry &one, const HistoryEntry &other)
{
    if (one.created != other.created)
        return one.created > other.created;
    return one.id.toString(QUuid::WithoutBraces) < other.id.toString(QUuid::WithoutBraces);
}

Failure noIndex(const QString &reason)
{
    return failure(QT_TRANSLATE_NOOP("HistoryEntry", "The index of the history cannot be used: %1."), reason);
}

} // namespace

QJsonObject HistoryEntry::toJson() const { return json::write(*this, fields); }

Result<HistoryEntry> HistoryEntry::fromJson(const QJsonObject &object)
{
    HistoryEntry entry;
    if (const char *key = json::readOver(entry, object, fields))
        return failure(
            QT_TRANSLATE_NOOP("HistoryEntry", "The “%1” of the capture cannot be read."), QLatin1StringView(key));
    if (const char *key = missingKey(object))
        return failure(QT_TRANSLATE_NOOP("HistoryEntry", "The capture has no “%1”."), QLatin1StringView(key));
    return entry;
}

QList<HistoryEntry> sorted(QList<HistoryEntry> entries)
{
    if (!std::ranges::is_sorted(std::as_const(entries), isBefore))
        std::ranges::sort(entries, isBefore);
    return entries;
}

QByteArray HistoryIndex::encoded() const
{
    QJsonArray list;
    for (const HistoryEntry &entry : entries)
        list.append(entry.toJson());
    const QJsonObject object { { QStringLiteral("version"), version }, { QStringLiteral("entries"), list } };
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

Result<HistoryIndex> HistoryIndex::decoded(const QByteArray &json)
{
    if (auto entries = HistoryIndexScanner(json).entries())
        return HistoryIndex { .entries = *std::move(entries) };
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return noIndex(error.errorString());
    const QJsonObject object = document.object();
    HistoryIndex index;
    if (!json::Codec<int>::read(object.value(u"version"), index.version) || !object.value(u"entries").isArray())
        return noIndex(QCoreApplication::translate("HistoryEntry", "it has no version or no entries"));
    if (index.version != currentVersion)
        return noIndex(QCoreApplication::translate("HistoryEntry", "it is of version %1").arg(index.version));
    const QJsonArray list = object.value(u"entries").toArray();
    index.entries.reserve(list.size());
    for (const QJsonValue &element : list) {
        auto entry = HistoryEntry::fromJson(element.toObject());
        if (!entry)
            return noIndex(entry.failure().message.chopped(1));
        index.entries.append(*std::move(entry));
    }
    return index;
}

} // namespace tessaly
