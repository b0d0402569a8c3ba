// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/WorkerProcess.h"

#include <QCoreApplication>
#include <QFile>
#include <QThreadPool>

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <csignal>
#include <system_error>

namespace tessaly {

using namespace WorkerMessages;

namespace {

/// The environment of this process with some variables set.
class Environment {
public:
    explicit Environment(std::vector<std::pair<QByteArray, QByteArray>> set)
    {
        for (char **entry = environ; *entry; ++entry) {
            const QByteArray name = QByteArray(*entry).split('=').first();
            if (std::ranges::none_of(set, [&name](const auto &one) { return one.first == name; }))
                m_entries.emplace_back(*entry);
        }
        for (const auto &[name, value] : set)
            m_entries.push_back(name + '=' + value);
        for (QByteArray &entry : m_entries)
            m_pointers.push_back(entry.data());
        m_pointers.push_back(nullptr);
    }

    char **get() { return m_pointers.data(); }

private:
    std::vector<QByteArray> m_entries;
    std::vector<char *> m_pointers;
};

/// The new process; an error number when there is none.
Result<pid_t, std::error_code> spawn(const QString &program, const QString &modelFolder, int standardInput)
{
    // libgomp reads its limit when the program is loaded. Its threads would spin on cores that others need: unlimited,
    // reading takes five times as long.
    std::vector<std::pair<QByteArray, QByteArray>> variables { { "OMP_THREAD_LIMIT", "1" } };
    if (!modelFolder.isEmpty())
        variables.emplace_back("TESSDATA_PREFIX", QFile::encodeName(modelFolder));
    Environment environment(std::move(variables));
    QByteArray path = QFile::encodeName(program);
    char *arguments[] { path.data(), nullptr };
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, standardInput, STDIN_FILENO);
    ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = -1;
    const int error = ::posix_spawn(&process, path.constData(), &actions, nullptr, arguments, environment.get());
    ::posix_spawn_file_actions_destroy(&actions);
    if (error != 0)
        return std::error_code(error, std::generic_category());
    return process;
}

} // namespace

Result<std::unique_ptr<WorkerProcess>> WorkerProcess::start(
    const QString &program, const QString &modelFolder, Events events)
{
    const auto failure = [&program](const QString &reason) {
        return Failure { QCoreApplication::translate("Recognition", "Text recognition, %1, could not be started: %2.")
                             .arg(program, reason) };
    };
    int ends[2] { -1, -1 };
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        return failure(QString::fromStdString(std::generic_category().message(errno)));
    Descriptor own(ends[0]);
    const Descriptor other(ends[1]);
    ::fcntl(own.get(), F_SETFL, O_NONBLOCK);
    const auto process = spawn(program, modelFolder, other.get());
    if (!process)
        return failure(QString::fromStdString(process.failure().message()));
    return std::unique_ptr<WorkerProcess>(new WorkerProcess(std::move(own), *process, std::move(events)));
}

WorkerProcess::WorkerProcess(Descriptor socket, pid_t process, Events events) :
    m_socket(std::move(socket)),
    m_process(process),
    m_events(std::move(events)),
    m_readable(m_socket.get(), QSocketNotifier::Read)
{
    QObject::connect(&m_readable, &QSocketNotifier::activated, &m_readable, [this] { read(); });
}

WorkerProcess::~WorkerProcess()
{
    m_readable.setEnabled(false);
    ::kill(m_process, SIGKILL);
    // Its memory takes the system some time to take back, which no window should wait for.
    QThreadPool::globalInstance()->start([process = m_process] {
        while (::waitpid(process, nullptr, 0) < 0 && errno == EINTR) { }
    });
}

bool WorkerProcess::send(const Order &order, const Descriptor &picture)
{
    return WorkerMessages::send(m_socket.get(), framed(encoded(order)), picture.get());
}

void WorkerProcess::read()
{
    bool alive = receive(m_socket.get(), m_received);
    QList<Answer> answers;
    while (true) {
        auto frame = takeFrame(m_received, maximumAnswerLength);
        const auto answer = frame && *frame ? decodedAnswer(**frame) : std::nullopt;
        alive = alive && frame && (answer || !*frame);
        if (!answer)
            break;
        answers += *answer;
    }
    // Either of these may destroy this object.
    const Events events = m_events;
    if (!alive)
        m_readable.setEnabled(false);
    for (const Answer &answer : answers)
        events.answered(answer);
    if (!alive)
        events.ended();
}

} // namespace tessaly
