// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QtEndian>

namespace tessaly {

/// Numbers and parts of a file that may be damaged: what lies outside reads as 0, or as an empty part.
/// It refers to bytes that must outlive it. Big-endian until told otherwise.
class ByteView {
public:
    explicit ByteView(QByteArrayView bytes) : m_bytes(bytes) { }

    void setBigEndian(bool big) { m_bigEndian = big; }

    qint64 size() const { return m_bytes.size(); }
    bool has(qint64 at, qint64 count) const { return at >= 0 && count >= 0 && at <= size() - count; }
    bool startsWith(QByteArrayView prefix) const { return m_bytes.startsWith(prefix); }

    /// As much of the part as there is.
    QByteArrayView part(qint64 at, qint64 count) const
    {
        return has(at, 0) && count > 0 ? m_bytes.sliced(at, std::min(count, size() - at)) : QByteArrayView();
    }

    quint8 u8(qint64 at) const { return number<quint8>(at); }
    quint16 u16(qint64 at) const { return number<quint16>(at); }
    quint32 u32(qint64 at) const { return number<quint32>(at); }

private:
    template <class Integer>
    Integer number(qint64 at) const
    {
        if (!has(at, sizeof(Integer)))
            return 0;
        const char *bytes = m_bytes.data() + at;
        return m_bigEndian ? qFromBigEndian<Integer>(bytes) : qFromLittleEndian<Integer>(bytes);
    }

    QByteArrayView m_bytes;
    bool m_bigEndian = true;
};

} // namespace tessaly
