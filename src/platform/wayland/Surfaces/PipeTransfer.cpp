// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/Surfaces/PipeTransfer.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTimer>

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace tessaly::PipeTransfer {

namespace {

/// write() without the signal that ends a program whose reader has gone.
ssize_t writeQuietly(int file, const char *bytes, size_t count)
{
    struct sigaction ignoring { };
    struct sigaction usual { };
    ignoring.sa_handler = SIG_IGN;
    ::sigaction(SIGPIPE, &ignoring, &usual);
    const ssize_t written = ::write(file, bytes, count);
    const int error = errno;
    ::sigaction(SIGPIPE, &usual, nullptr);
    errno = error;
    return written;
}

/// One reader being served; deletes itself at the end.
class Writing final : public QObject {
public:
    Writing(QObject &owner, int file, QByteArray bytes) :
        QObject(&owner),
        m_file(file),
        m_bytes(std::move(bytes)),
        m_notifier(file, QSocketNotifier::Write)
    {
        constexpr int patience = 30'000;
        m_silence.setSingleShot(true);
        m_silence.setInterval(patience);
        m_silence.start();
        connect(&m_silence, &QTimer::timeout, this, &QObject::deleteLater);
        connect(&m_notifier, &QSocketNotifier::activated, this, &Writing::go);
    }
    ~Writing() override
    {
        m_notifier.setEnabled(false);
        ::close(m_file);
    }

private:
    void go()
    {
        while (m_done < m_bytes.size()) {
            const ssize_t written = writeQuietly(m_file, m_bytes.constData() + m_done, size_t(m_bytes.size() - m_done));
            if (written < 0 && (errno == EAGAIN || errno == EINTR))
                return m_silence.start();
            if (written < 0)
                break;
            m_done += written;
        }
        m_notifier.setEnabled(false);
        deleteLater();
    }

    int m_file;
    QByteArray m_bytes;
    qsizetype m_done = 0;
    QSocketNotifier m_notifier;
    QTimer m_silence;
};

} // namespace

void write(QObject &owner, int file, QByteArray bytes)
{
    ::fcntl(file, F_SETFL, ::fcntl(file, F_GETFL) | O_NONBLOCK);
    new Writing(owner, file, std::move(bytes));
}

QByteArray readAll(int file, int millisecondsOfSilence)
{
    constexpr int blink = 40; ///< milliseconds
    constexpr qsizetype pipeful = 64 * 1024;
    constexpr qsizetype most = qsizetype(1) << 30; ///< no picture has as much; a program that goes on for ever has
    QByteArray bytes;
    QElapsedTimer silence;
    silence.start();
    while (silence.elapsed() < millisecondsOfSilence && bytes.size() < most) {
        pollfd state { file, POLLIN, 0 };
        const bool patient = silence.elapsed() < blink;
        if (::poll(&state, 1, patient ? blink : 5) <= 0) {
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            continue;
        }
        const qsizetype before = bytes.size();
        bytes.resize(before + pipeful);
        const ssize_t received = ::read(file, bytes.data() + before, size_t(pipeful));
        bytes.truncate(before + std::max<qsizetype>(received, 0));
        if (received == 0)
            return bytes;
        if (received < 0 && errno != EINTR && errno != EAGAIN)
            return {};
        silence.restart();
    }
    return {};
}

} // namespace tessaly::PipeTransfer
