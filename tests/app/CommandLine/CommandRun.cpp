// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/CommandLine/CommandRun.h"

#include <QTemporaryFile>
#include <QTimer>

#include <unistd.h>

namespace tessaly::test {

namespace {

/// What is written to a descriptor while it lives.
class Intercepted {
public:
    explicit Intercepted(int descriptor) : m_descriptor(descriptor), m_before(::dup(descriptor))
    {
        if (!m_file.open() || ::dup2(m_file.handle(), descriptor) < 0)
            qFatal("nothing can be intercepted");
    }
    ~Intercepted()
    {
        ::dup2(m_before, m_descriptor);
        ::close(m_before);
    }

    QByteArray bytes()
    {
        m_file.seek(0);
        return m_file.readAll();
    }

private:
    QTemporaryFile m_file;
    int m_descriptor;
    int m_before;
};

class TimerTask final : public RecognitionTask {
public:
    QTimer timer;
};

} // namespace

Finished runCommand(const QStringList &arguments, const CommandEnvironment &environment)
{
    QByteArrayList texts { "tessaly" };
    for (const QString &argument : arguments)
        texts += argument.toLocal8Bit();
    QList<char *> pointers;
    for (QByteArray &text : texts)
        pointers += text.data();
    Intercepted output(STDOUT_FILENO), messages(STDERR_FILENO);
    const int status = runCommandLine(static_cast<int>(pointers.size()), pointers.data(), environment);
    return { status, output.bytes(), QString::fromUtf8(messages.bytes()) };
}

std::unique_ptr<RecognitionTask> ScriptedRecognizer::recognize(Request request, Finished finished)
{
    auto task = std::make_unique<TimerTask>();
    task->timer.setSingleShot(true);
    task->timer.callOnTimeout([finished = std::move(finished), answer = m_answer(request)] { finished(answer); });
    task->timer.start(0);
    return task;
}

} // namespace tessaly::test
