// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/EmojiClusters.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace tessaly {

namespace {

struct Range {
    char32_t first, last;
};

/// Characters that Unicode shows as emoji when nothing asks for text (Emoji_Presentation), with the flags' letters.
constexpr Range emojiByDefault[] { { 0x231A, 0x231B }, { 0x23E9, 0x23EC }, { 0x23F0, 0x23F0 }, { 0x23F3, 0x23F3 },
    { 0x25FD, 0x25FE }, { 0x2614, 0x2615 }, { 0x2648, 0x2653 }, { 0x267F, 0x267F }, { 0x2693, 0x2693 },
    { 0x26A1, 0x26A1 }, { 0x26AA, 0x26AB }, { 0x26BD, 0x26BE }, { 0x26C4, 0x26C5 }, { 0x26CE, 0x26CE },
    { 0x26D4, 0x26D4 }, { 0x26EA, 0x26EA }, { 0x26F2, 0x26F3 }, { 0x26F5, 0x26F5 }, { 0x26FA, 0x26FA },
    { 0x26FD, 0x26FD }, { 0x2705, 0x2705 }, { 0x270A, 0x270B }, { 0x2728, 0x2728 }, { 0x274C, 0x274C },
    { 0x274E, 0x274E }, { 0x2753, 0x2755 }, { 0x2757, 0x2757 }, { 0x2795, 0x2797 }, { 0x27B0, 0x27B0 },
    { 0x27BF, 0x27BF }, { 0x2B1B, 0x2B1C }, { 0x2B50, 0x2B50 }, { 0x2B55, 0x2B55 }, { 0x1F004, 0x1F004 },
    { 0x1F0CF, 0x1F0CF }, { 0x1F18E, 0x1F18E }, { 0x1F191, 0x1F19A }, { 0x1F1E6, 0x1F1FF }, { 0x1F201, 0x1F201 },
    { 0x1F21A, 0x1F21A }, { 0x1F22F, 0x1F22F }, { 0x1F232, 0x1F236 }, { 0x1F238, 0x1F23A }, { 0x1F250, 0x1F251 },
    { 0x1F300, 0x1F320 }, { 0x1F32D, 0x1F335 }, { 0x1F337, 0x1F37C }, { 0x1F37E, 0x1F393 }, { 0x1F3A0, 0x1F3CA },
    { 0x1F3CF, 0x1F3D3 }, { 0x1F3E0, 0x1F3F0 }, { 0x1F3F4, 0x1F3F4 }, { 0x1F3F8, 0x1F43E }, { 0x1F440, 0x1F440 },
    { 0x1F442, 0x1F4FC }, { 0x1F4FF, 0x1F53D }, { 0x1F54B, 0x1F54E }, { 0x1F550, 0x1F567 }, { 0x1F57A, 0x1F57A },
    { 0x1F595, 0x1F596 }, { 0x1F5A4, 0x1F5A4 }, { 0x1F5FB, 0x1F64F }, { 0x1F680, 0x1F6C5 }, { 0x1F6CC, 0x1F6CC },
    { 0x1F6D0, 0x1F6D2 }, { 0x1F6D5, 0x1F6D7 }, { 0x1F6DC, 0x1F6DF }, { 0x1F6EB, 0x1F6EC }, { 0x1F6F4, 0x1F6FC },
    { 0x1F7E0, 0x1F7EB }, { 0x1F7F0, 0x1F7F0 }, { 0x1F90C, 0x1F93A }, { 0x1F93C, 0x1F945 }, { 0x1F947, 0x1F9FF },
    { 0x1FA70, 0x1FAFF } };

bool isEmojiByDefault(char32_t character)
{
    return std::any_of(std::begin(emojiByDefault), std::end(emojiByDefault),
        [character](const Range &range) { return character >= range.first && character <= range.last; });
}

bool isEmojiCluster(QStringView cluster)
{
    constexpr QChar asText(0xFE0E), asEmoji(0xFE0F), keycap(0x20E3);
    if (cluster.contains(asText))
        return false;
    const bool pair = cluster.size() > 1 && cluster[0].isHighSurrogate() && cluster[1].isLowSurrogate();
    const char32_t first = pair ? QChar::surrogateToUcs4(cluster[0], cluster[1]) : cluster[0].unicode();
    return isEmojiByDefault(first) || cluster.contains(asEmoji) || cluster.contains(keycap);
}

} // namespace

QList<TextSpan> emojiSpans(QStringView text)
{
    constexpr char16_t firstPossible = 0x20E3; // all sequences hold a character from here on
    QList<TextSpan> spans;
    if (std::all_of(text.begin(), text.end(), [](QChar character) { return character < QChar(firstPossible); }))
        return spans;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.data(), text.size());
    qsizetype start = 0;
    for (qsizetype end = finder.toNextBoundary(); end > start; start = end, end = finder.toNextBoundary()) {
        if (!isEmojiCluster(text.mid(start, end - start)))
            continue;
        if (!spans.isEmpty() && spans.last().start + spans.last().length == start)
            spans.last().length += end - start;
        else
            spans += TextSpan { start, end - start };
    }
    return spans;
}

} // namespace tessaly
