// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/CharacterErrors.h"

#include <vector>

namespace tessaly::bench {

namespace {

/// Typographic variants of the same sign are no errors; white space counts as one blank.
QString comparable(QString text)
{
    static constexpr std::pair<char16_t, const char *> variants[] { { u'…', "..." }, { u'’', "'" }, { u'‘', "'" },
        { u'“', "\"" }, { u'”', "\"" }, { u'–', "-" }, { u'—', "-" } };
    for (const auto &[variant, plain] : variants)
        text.replace(QChar(variant), QString::fromLatin1(plain));
    return text.simplified();
}

} // namespace

void CharacterErrors::count(const QString &kind)
{
    ++m_errors;
    ++m_kinds[kind];
}

void CharacterErrors::add(const QString &written, const QString &read)
{
    const QString from = comparable(written), to = comparable(read);
    const auto rows = std::size_t(from.size()) + 1, columns = std::size_t(to.size()) + 1;
    std::vector<int> distance(rows * columns);
    const auto at = [&](std::size_t row, std::size_t column) -> int & { return distance[row * columns + column]; };
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            if (row == 0 || column == 0) {
                at(row, column) = int(row + column);
                continue;
            }
            const bool same = from[qsizetype(row) - 1] == to[qsizetype(column) - 1];
            at(row, column) = std::min(
                { at(row - 1, column - 1) + (same ? 0 : 1), at(row - 1, column) + 1, at(row, column - 1) + 1 });
        }
    }
    m_characters += from.size();
    for (std::size_t row = rows - 1, column = columns - 1; row + column > 0;) {
        const QString lost = row > 0 ? QString(from[qsizetype(row) - 1]) : QString();
        const QString found = column > 0 ? QString(to[qsizetype(column) - 1]) : QString();
        if (row > 0 && column > 0 && at(row, column) == at(row - 1, column - 1) + (lost == found ? 0 : 1)) {
            if (lost != found)
                count(lost + u'>' + found);
            --row;
            --column;
        } else if (row > 0 && at(row, column) == at(row - 1, column) + 1) {
            count(lost + u'>');
            --row;
        } else {
            count(u'>' + found);
            --column;
        }
    }
}

void CharacterErrors::add(const CharacterErrors &other)
{
    m_characters += other.m_characters;
    m_errors += other.m_errors;
    for (auto kind = other.m_kinds.begin(); kind != other.m_kinds.end(); ++kind)
        m_kinds[kind.key()] += kind.value();
}

} // namespace tessaly::bench
