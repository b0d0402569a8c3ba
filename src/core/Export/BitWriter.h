// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QtEndian>

#include <cstring>

namespace tessaly {

/// Appends bits to a byte array, the lowest first, as DEFLATE orders them.
///
/// Fast because nothing is checked for each value: reserve() room first, and flush() before more than 56 bits wait.
class BitWriter {
public:
    explicit BitWriter(QByteArray &target) : m_target(target), m_size(target.size()) { }

    /// Makes room for so many more bits. It must come before the put() calls that write them.
    void reserve(quint64 bits)
    {
        m_target.resize(m_size + static_cast<qsizetype>(bits / 8) + 16);
        m_next = reinterpret_cast<uchar *>(m_target.data()) + m_size;
    }

    void put(quint64 value, int count)
    {
        m_waiting |= value << m_waitingCount;
        m_waitingCount += count;
    }

    /// Writes out whole bytes; at most 7 bits go on waiting.
    void flush()
    {
        qToLittleEndian(m_waiting, m_next);
        m_next += m_waitingCount >> 3;
        m_waiting >>= m_waitingCount & ~7;
        m_waitingCount &= 7;
    }

    /// Fills the last byte with zero bits.
    void alignToByte()
    {
        m_waitingCount = (m_waitingCount + 7) & ~7;
        flush();
    }

    /// Goes on where a copy of this writer stopped.
    void takeOver(const BitWriter &copy)
    {
        m_next = copy.m_next;
        m_waiting = copy.m_waiting;
        m_waitingCount = copy.m_waitingCount;
        release();
    }

    /// Cuts the room that was not used off; waiting bits stay.
    void release()
    {
        m_size = m_next - reinterpret_cast<const uchar *>(m_target.constData());
        m_target.resize(m_size);
    }

private:
    QByteArray &m_target;
    qsizetype m_size; ///< of what is written
    uchar *m_next = nullptr;
    quint64 m_waiting = 0;
    int m_waitingCount = 0;
};

} // namespace tessaly
