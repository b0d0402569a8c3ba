// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QRectF>
#include <QString>
#include <QUrl>

#include <optional>

namespace tessaly {

/// What was read out of a picture. All boxes are in parts of the picture, 0 to 1 on both axes, origin top left.
struct RecognizedContent {
    /// A word of a line, for selecting text on the picture.
    struct Word {
        QString text; ///< never empty
        QRectF boundingBox;

        bool operator==(const Word &) const = default;
    };
    struct Line {
        QString text; ///< without white space around it; never empty
        QRectF boundingBox;
        QList<Word> words = {}; ///< from left to right; may be empty where the recogniser gave none

        bool operator==(const Line &) const = default;
    };
    struct Code {
        QString payload; ///< never empty
        bool isQR = false; ///< QR or Micro QR
        QRectF boundingBox;

        /// The link that the payload is: http or https with a host, in any case of letters. Empty for any other.
        std::optional<QUrl> webURL() const;
        bool operator==(const Code &) const = default;
    };

    QList<Line> lines; ///< in reading order
    QList<Code> codes; ///< top to bottom, then left to right

    bool isEmpty() const { return lines.isEmpty() && codes.isEmpty(); }

    /// The lines as one text: lines beside each other are joined by a blank, rows by a line feed.
    QString text() const;

    /// Takes over what a recogniser found: lines trimmed, without empty ones, and put in reading order; codes without
    /// empty and repeated payloads, in their order.
    static RecognizedContent arranged(QList<Line> lines, QList<Code> codes);

    /// Whether two lines stand beside each other: what they have in common of the height is more than half the smaller
    /// one's.
    static bool areBeside(const QRectF &one, const QRectF &other);

    bool operator==(const RecognizedContent &) const = default;
};

} // namespace tessaly
