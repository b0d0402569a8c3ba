// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Text/TextRecognizer.h"

#include <QByteArray>
#include <QCborMap>

#include <unistd.h>

#include <optional>

/// What the recognition process and the one that started it say to each other, over a socket between them: frames of a
/// length (four bytes, the machine's order) and a CBOR map. A picture goes along as the descriptor of sealed memory.
namespace tessaly::WorkerMessages {

/// A descriptor that is closed with its owner.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int descriptor) : m_descriptor(descriptor) { }
    Descriptor(Descriptor &&other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) { }
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~Descriptor() { reset(); }

    int get() const { return m_descriptor; }
    bool isValid() const { return m_descriptor >= 0; }
    void reset()
    {
        if (m_descriptor >= 0)
            ::close(std::exchange(m_descriptor, -1));
    }

private:
    int m_descriptor = -1;
};

enum class Kind { Load = 1, Recognize, Cancel, Finished, Failed, Cancelled };

/// To the worker. `Load` has models and level, `Cancel` the number alone.
struct Order {
    Kind kind = Kind::Load;
    qint64 number = 0; ///< of the recognition
    QStringList models;
    TextRecognizer::Level level = TextRecognizer::Level::Accurate;
    TextRecognizer::Codes codes = TextRecognizer::Codes::Detect;
    TextRecognizer::Urgency urgency = TextRecognizer::Urgency::User;
    QSize pixelSize; ///< of the picture in Format_Grayscale8, row after row without gaps

    bool operator==(const Order &) const = default;
};

/// From the worker.
struct Answer {
    Kind kind = Kind::Finished;
    qint64 number = 0;
    QString message; ///< of a failure
    RecognizedContent content;

    bool operator==(const Answer &) const = default;
};

/// Longer frames end the connection.
constexpr qsizetype maximumOrderLength = 64 * 1024, maximumAnswerLength = 256 * 1024 * 1024;
/// Larger pictures are refused.
constexpr qint64 maximumPixels = 400'000'000;

QByteArray encoded(const Order &order);
QByteArray encoded(const Answer &answer);
/// Empty for anything that the encoders do not write.
std::optional<Order> decodedOrder(const QByteArray &body);
std::optional<Answer> decodedAnswer(const QByteArray &body);

/// The body with its length before it.
QByteArray framed(const QByteArray &body);
/// Takes the first whole frame out of the bytes received so far; empty when it is not whole yet, a failure when it is
/// longer than allowed.
Result<std::optional<QByteArray>> takeFrame(QByteArray &received, qsizetype maximumLength);

/// Memory with the rows of a picture in Format_Grayscale8 that nobody can change any more. Invalid when there is none.
Descriptor sealedPicture(const QImage &gray);
/// The picture in such memory, which must be sealed and of exactly this size; it keeps the memory mapped. Null
/// otherwise.
QImage mappedPicture(const Descriptor &memory, QSize pixelSize);

/// Sends everything, waiting where `socket` does; a descriptor that is not negative goes along.
bool send(int socket, const QByteArray &bytes, int descriptor = -1);
/// Appends what can be read at once; a descriptor that came along replaces `descriptor`. False at the end.
bool receive(int socket, QByteArray &received, Descriptor *descriptor = nullptr);

} // namespace tessaly::WorkerMessages
