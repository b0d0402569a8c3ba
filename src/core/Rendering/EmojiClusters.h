// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QStringView>

namespace tessaly {

struct TextSpan {
    qsizetype start = 0;
    qsizetype length = 0;

    bool operator==(const TextSpan &) const = default;
};

/// The parts of a text that are shown as colour pictures: characters that are emoji by themselves, and sequences that
/// ask for it (variation selector 16, keycaps, flags, joined families). Neighbours are one span.
QList<TextSpan> emojiSpans(QStringView text);

} // namespace tessaly
