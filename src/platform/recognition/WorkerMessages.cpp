// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/WorkerMessages.h"

#include <QCborArray>
#include <QCborValue>
#include <QImage>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>

namespace tessaly::WorkerMessages {

namespace {

enum Key {
    KindKey,
    NumberKey,
    ModelsKey,
    LevelKey,
    CodesKey,
    UrgencyKey,
    WidthKey,
    HeightKey,
    MessageKey,
    LinesKey,
    FoundCodesKey
};

QByteArray bytesOf(const QCborMap &map) { return QCborValue(map).toCbor(); }

std::optional<QCborMap> mapOf(const QByteArray &body)
{
    QCborParserError error;
    const QCborValue value = QCborValue::fromCbor(body, &error);
    if (error.error != QCborError::NoError || !value.isMap())
        return std::nullopt;
    return value.toMap();
}

/// The enumerator of a number that must be one of the first `count`, from `first`.
template <class Enumeration>
bool take(const QCborMap &map, Key key, int first, int count, Enumeration &to)
{
    const qint64 value = map.value(qint64(key)).toInteger(-1);
    to = Enumeration(value);
    return value >= first && value < first + count;
}

QCborArray encodedBox(const QRectF &box) { return { box.x(), box.y(), box.width(), box.height() }; }

QRectF decodedBox(const QCborValue &value)
{
    const QCborArray numbers = value.toArray();
    return { numbers.at(0).toDouble(), numbers.at(1).toDouble(), numbers.at(2).toDouble(), numbers.at(3).toDouble() };
}

QCborArray encodedLine(const RecognizedContent::Line &line)
{
    QCborArray words;
    for (const RecognizedContent::Word &word : line.words)
        words.append(QCborArray { word.text, encodedBox(word.boundingBox) });
    return { line.text, encodedBox(line.boundingBox), words };
}

RecognizedContent::Line decodedLine(const QCborArray &from)
{
    RecognizedContent::Line line { from.at(0).toString(), decodedBox(from.at(1)) };
    for (const auto &word : from.at(2).toArray())
        line.words += { word.toArray().at(0).toString(), decodedBox(word.toArray().at(1)) };
    return line;
}

} // namespace

QByteArray encoded(const Order &order)
{
    return bytesOf({ { KindKey, int(order.kind) }, { NumberKey, order.number },
        { ModelsKey, QCborArray::fromStringList(order.models) }, { LevelKey, int(order.level) },
        { CodesKey, int(order.codes) }, { UrgencyKey, int(order.urgency) }, { WidthKey, order.pixelSize.width() },
        { HeightKey, order.pixelSize.height() } });
}

QByteArray encoded(const Answer &answer)
{
    QCborArray lines, codes;
    for (const RecognizedContent::Line &line : answer.content.lines)
        lines.append(encodedLine(line));
    for (const RecognizedContent::Code &code : answer.content.codes)
        codes.append(QCborArray { code.payload, code.isQR, encodedBox(code.boundingBox) });
    return bytesOf({ { KindKey, int(answer.kind) }, { NumberKey, answer.number }, { MessageKey, answer.message },
        { LinesKey, lines }, { FoundCodesKey, codes } });
}

std::optional<Order> decodedOrder(const QByteArray &body)
{
    const auto map = mapOf(body);
    Order order;
    if (!map || !take(*map, KindKey, int(Kind::Load), 3, order.kind) || !take(*map, LevelKey, 0, 2, order.level)
        || !take(*map, CodesKey, 0, 2, order.codes) || !take(*map, UrgencyKey, 0, 2, order.urgency))
        return std::nullopt;
    order.number = map->value(qint64(NumberKey)).toInteger();
    for (const auto &model : map->value(qint64(ModelsKey)).toArray())
        order.models += model.toString();
    const qint64 width = map->value(qint64(WidthKey)).toInteger(), height = map->value(qint64(HeightKey)).toInteger();
    const qint64 longest = 1 << 20; // so that the product fits
    if (order.kind == Kind::Recognize
        && (width < 1 || height < 1 || width > longest || height > longest || width * height > maximumPixels))
        return std::nullopt;
    order.pixelSize = { int(width), int(height) };
    return order;
}

std::optional<Answer> decodedAnswer(const QByteArray &body)
{
    const auto map = mapOf(body);
    Answer answer;
    if (!map || !take(*map, KindKey, int(Kind::Finished), 3, answer.kind))
        return std::nullopt;
    answer.number = map->value(qint64(NumberKey)).toInteger();
    answer.message = map->value(qint64(MessageKey)).toString();
    for (const auto &line : map->value(qint64(LinesKey)).toArray())
        answer.content.lines += decodedLine(line.toArray());
    for (const auto &value : map->value(qint64(FoundCodesKey)).toArray()) {
        const QCborArray code = value.toArray();
        answer.content.codes += { code.at(0).toString(), code.at(1).toBool(), decodedBox(code.at(2)) };
    }
    return answer;
}

QByteArray framed(const QByteArray &body)
{
    const auto length = quint32(body.size());
    return QByteArray(reinterpret_cast<const char *>(&length), sizeof length) + body;
}

Result<std::optional<QByteArray>> takeFrame(QByteArray &received, qsizetype maximumLength)
{
    quint32 length = 0;
    if (received.size() < qsizetype(sizeof length))
        return std::optional<QByteArray>();
    std::memcpy(&length, received.constData(), sizeof length);
    if (qsizetype(length) > maximumLength)
        return Failure { QStringLiteral("A message of text recognition is too long.") };
    if (received.size() - qsizetype(sizeof length) < qsizetype(length))
        return std::optional<QByteArray>();
    const QByteArray body = received.mid(sizeof length, length);
    received.remove(0, qsizetype(sizeof length) + qsizetype(length));
    return std::optional(body);
}

Descriptor sealedPicture(const QImage &gray)
{
    Descriptor memory(::memfd_create("tessaly-picture", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    for (int y = 0; y < gray.height() && memory.isValid(); ++y) {
        const char *row = reinterpret_cast<const char *>(gray.constScanLine(y));
        for (qint64 written = 0; written < gray.width();) {
            const ssize_t count = ::write(memory.get(), row + written, size_t(gray.width() - written));
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0)
                return Descriptor();
            written += count;
        }
    }
    constexpr int seals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL;
    if (memory.isValid() && ::fcntl(memory.get(), F_ADD_SEALS, seals) != 0)
        memory.reset();
    return memory;
}

QImage mappedPicture(const Descriptor &memory, QSize pixelSize)
{
    struct Mapping {
        void *start;
        size_t length;
    };
    const auto length = size_t(pixelSize.width()) * size_t(pixelSize.height());
    constexpr int wanted = F_SEAL_SHRINK | F_SEAL_WRITE;
    struct stat status { };
    if (length == 0 || !memory.isValid() || (::fcntl(memory.get(), F_GET_SEALS) & wanted) != wanted
        || ::fcntl(memory.get(), F_GET_SEALS) < 0 || ::fstat(memory.get(), &status) != 0
        || status.st_size != off_t(length))
        return {};
    void *start = ::mmap(nullptr, length, PROT_READ, MAP_PRIVATE, memory.get(), 0);
    if (start == MAP_FAILED)
        return {};
    const auto unmap = [](void *info) {
        const std::unique_ptr<Mapping> mapping(static_cast<Mapping *>(info));
        ::munmap(mapping->start, mapping->length);
    };
    return QImage(static_cast<const uchar *>(start), pixelSize.width(), pixelSize.height(), pixelSize.width(),
        QImage::Format_Grayscale8, unmap, new Mapping { start, length });
}

bool send(int socket, const QByteArray &bytes, int descriptor)
{
    for (qsizetype sent = 0; sent < bytes.size();) {
        iovec part { const_cast<char *>(bytes.constData()) + sent, size_t(bytes.size() - sent) };
        msghdr message {};
        message.msg_iov = &part;
        message.msg_iovlen = 1;
        alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] {};
        if (descriptor >= 0 && sent == 0) {
            message.msg_control = control;
            message.msg_controllen = sizeof control;
            cmsghdr *header = CMSG_FIRSTHDR(&message);
            header->cmsg_level = SOL_SOCKET;
            header->cmsg_type = SCM_RIGHTS;
            header->cmsg_len = CMSG_LEN(sizeof(int));
            std::memcpy(CMSG_DATA(header), &descriptor, sizeof descriptor);
        }
        const ssize_t count = ::sendmsg(socket, &message, MSG_NOSIGNAL);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        sent += count;
    }
    return true;
}

bool receive(int socket, QByteArray &received, Descriptor *descriptor)
{
    char bytes[16 * 1024];
    iovec part { bytes, sizeof bytes };
    msghdr message {};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    alignas(cmsghdr) char control[CMSG_SPACE(4 * sizeof(int))];
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    ssize_t count = 0;
    do {
        count = ::recvmsg(socket, &message, MSG_CMSG_CLOEXEC);
    } while (count < 0 && errno == EINTR);
    if (count < 0)
        return errno == EAGAIN || errno == EWOULDBLOCK;
    for (cmsghdr *header = CMSG_FIRSTHDR(&message); header; header = CMSG_NXTHDR(&message, header)) {
        if (header->cmsg_level != SOL_SOCKET || header->cmsg_type != SCM_RIGHTS)
            continue;
        for (size_t at = 0; at + sizeof(int) <= header->cmsg_len - CMSG_LEN(0); at += sizeof(int)) {
            int found = -1;
            std::memcpy(&found, CMSG_DATA(header) + at, sizeof found);
            Descriptor taken(found);
            if (descriptor)
                *descriptor = std::move(taken);
        }
    }
    received.append(bytes, count);
    return count > 0;
}

} // namespace tessaly::WorkerMessages
