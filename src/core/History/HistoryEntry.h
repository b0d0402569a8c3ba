// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

#include <QDateTime>
#include <QJsonObject>
#include <QList>
#include <QUuid>

#include <optional>

namespace tessaly {

/// One capture of the history, as the list of captures knows it.
struct HistoryEntry {
    QUuid id; ///< also names its package
    QString title; ///< of the source's application, or the editor's
    QDateTime created;
    QDateTime modified; ///< when its document was last written
    int pixelWidth = 0;
    int pixelHeight = 0;
    std::optional<QString> recognizedText; ///< absent until the picture was read

    QJsonObject toJson() const;
    /// Fails, saying which key, when one that must be there is missing or of another type. Unknown keys are ignored.
    static Result<HistoryEntry> fromJson(const QJsonObject &object);

    bool operator==(const HistoryEntry &) const = default;
};

/// The newest first; those of one instant by the text of their identifiers, ascending.
QList<HistoryEntry> sorted(QList<HistoryEntry> entries);

/// What "index.json" holds.
struct HistoryIndex {
    static constexpr int currentVersion = 1;

    int version = currentVersion;
    QList<HistoryEntry> entries;

    QByteArray encoded() const;
    /// Fails for text that is no index, for one of another version, and for an entry that cannot be read.
    static Result<HistoryIndex> decoded(const QByteArray &json);
};

} // namespace tessaly
