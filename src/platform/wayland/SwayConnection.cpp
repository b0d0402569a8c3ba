// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/SwayConnection.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QtEndian>

#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tessaly::SwayConnection {

namespace {

constexpr int patience = 2000; ///< milliseconds
constexpr char magic[] = "i3-ipc";
constexpr qsizetype magicLength = 6;
constexpr qsizetype headLength = magicLength + 8; ///< with length and type, 32 bits each in the machine's order
constexpr quint32 longestAnswer = 64 << 20;

class Socket {
public:
    explicit Socket(const QByteArray &path) : m_file(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
    {
        sockaddr_un address { AF_UNIX, {} };
        if (m_file < 0 || size_t(path.size()) >= sizeof(address.sun_path))
            return;
        std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
        m_connected = ::connect(m_file, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0;
    }
    ~Socket()
    {
        if (m_file >= 0)
            ::close(m_file);
    }
    Socket(const Socket &) = delete;
    Socket &operator=(const Socket &) = delete;

    bool isConnected() const { return m_connected; }
    bool send(const QByteArray &bytes)
    {
        return ::send(m_file, bytes.constData(), size_t(bytes.size()), MSG_NOSIGNAL) == bytes.size();
    }
    /// Exactly so many bytes; fewer when the other side ends or the time is over.
    QByteArray receive(qsizetype count)
    {
        QByteArray bytes(count, Qt::Uninitialized);
        qsizetype filled = 0;
        while (filled < count) {
            pollfd state { m_file, POLLIN, 0 };
            if (::poll(&state, 1, static_cast<int>(m_deadline.remainingTime())) <= 0)
                break;
            const ssize_t received = ::recv(m_file, bytes.data() + filled, size_t(count - filled), 0);
            if (received <= 0)
                break;
            filled += received;
        }
        bytes.truncate(filled);
        return bytes;
    }

private:
    int m_file;
    bool m_connected = false;
    QDeadlineTimer m_deadline { patience };
};

} // namespace

Result<QByteArray> ask(const QString &socketPath, Request request)
{
    const Failure failure { QCoreApplication::translate("SwayConnection", "Sway does not tell its windows.") };
    Socket socket(QFile::encodeName(socketPath));
    const quint32 numbers[] { 0, static_cast<quint32>(request) };
    QByteArray message(magic, magicLength);
    message.append(reinterpret_cast<const char *>(numbers), sizeof(numbers));
    if (!socket.isConnected() || !socket.send(message))
        return failure;
    const QByteArray head = socket.receive(headLength);
    if (head.size() != headLength || !head.startsWith(magic))
        return failure;
    const auto length = qFromUnaligned<quint32>(head.constData() + magicLength);
    if (length > longestAnswer)
        return failure;
    QByteArray answer = socket.receive(length);
    if (quint32(answer.size()) != length)
        return failure;
    return answer;
}

} // namespace tessaly::SwayConnection
