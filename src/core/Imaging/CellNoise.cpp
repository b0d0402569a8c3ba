// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/CellNoise.h"

#include <bit>
#include <cmath>

namespace tessaly::CellNoise {

namespace {

/// SipHash-1-3 of one 64-bit word.
class KeyedHash {
public:
    explicit KeyedHash(quint64 seed) :
        m_v0(seed ^ 0x736f6d6570736575),
        m_v1(~seed ^ 0x646f72616e646f6d),
        m_v2(seed ^ 0x6c7967656e657261),
        m_v3(~seed ^ 0x7465646279746573)
    {
    }

    quint64 of(quint64 word)
    {
        constexpr quint64 lengthWord = quint64(8) << 56;
        for (const quint64 block : { word, lengthWord }) {
            m_v3 ^= block;
            mix(1);
            m_v0 ^= block;
        }
        m_v2 ^= 0xff;
        mix(3);
        return m_v0 ^ m_v1 ^ m_v2 ^ m_v3;
    }

private:
    void mix(int rounds)
    {
        for (; rounds > 0; --rounds) {
            m_v0 += m_v1;
            m_v1 = std::rotl(m_v1, 13) ^ m_v0;
            m_v0 = std::rotl(m_v0, 32);
            m_v2 += m_v3;
            m_v3 = std::rotl(m_v3, 16) ^ m_v2;
            m_v0 += m_v3;
            m_v3 = std::rotl(m_v3, 21) ^ m_v0;
            m_v2 += m_v1;
            m_v1 = std::rotl(m_v1, 17) ^ m_v2;
            m_v2 = std::rotl(m_v2, 32);
        }
    }

    quint64 m_v0, m_v1, m_v2, m_v3;
};

} // namespace

float grey(quint64 seed, qint32 column, qint32 row)
{
    const quint64 random = KeyedHash(seed).of(quint64(quint32(column)) << 32 | quint32(row));
    const auto red = float(random & 255), green = float(random >> 8 & 255), blue = float(random >> 16 & 255);
    return 0.08f * (red + green + blue) / 255 + 0.38f;
}

float softLight(float below, float above)
{
    if (above <= 0.5f)
        return below - (1 - 2 * above) * below * (1 - below);
    const float lightened = below <= 0.25f ? ((16 * below - 12) * below + 4) * below : std::sqrt(below);
    return below + (2 * above - 1) * (lightened - below);
}

} // namespace tessaly::CellNoise
