// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QString>

namespace tessaly::bench {

/// What was read compared with what was written: the fewest letters to replace, insert or remove.
class CharacterErrors {
public:
    void add(const QString &written, const QString &read);
    void add(const CharacterErrors &other);

    qsizetype characters() const { return m_characters; } ///< written
    qsizetype errors() const { return m_errors; }
    /// Errors a hundred characters.
    double percent() const { return m_characters == 0 ? 0 : 100.0 * double(m_errors) / double(m_characters); }
    /// How often each kind occurred, such as "l>I", ">x" (read without being written) and "x>" (missed).
    const QMap<QString, int> &kinds() const { return m_kinds; }

private:
    void count(const QString &kind);

    qsizetype m_characters = 0, m_errors = 0;
    QMap<QString, int> m_kinds;
};

} // namespace tessaly::bench
