// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/Console.h"

#include "app/CommandLine/ByteStream.h"
#include "app/CommandLine/Text.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace tessaly {

namespace {

/// Whether the sentence names the subject as a word of its own.
bool names(const QString &sentence, const QString &subject)
{
    const auto endsWord = [&](qsizetype index) {
        return index < 0 || index >= sentence.size() || QStringView(u" :.,;\"").contains(sentence[index]);
    };
    const qsizetype at = sentence.indexOf(subject);
    return at >= 0 && endsWord(at - 1) && endsWord(at + subject.size());
}

int terminalColumns()
{
    winsize size = {};
    return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

void writeToError(const QByteArray &bytes)
{
    // Nothing can be said about a standard error that takes nothing.
    static_cast<void>(ByteStream::writeAll(STDERR_FILENO, bytes));
}

} // namespace

Console::Console()
{
    const QByteArray terminal = qgetenv("TERM");
    m_showsProgress = ::isatty(STDERR_FILENO) && !terminal.isEmpty() && terminal != "dumb";
}

Console::~Console() { endProgress(); }

void Console::message(const QString &subject, const QString &sentence)
{
    endProgress();
    const bool alone = subject.isEmpty() || names(sentence, subject);
    const QString line = alone ? sentence : subject + QStringLiteral(": ") + sentence;
    writeToError("tessaly: " + printable(line).toLocal8Bit() + '\n');
}

void Console::progress(int done, int total, const QString &what)
{
    constexpr int barWidth = 24;
    if (!m_showsProgress || total <= 0)
        return;
    const int filled = barWidth * done / total;
    const QString bar = QString(filled, u'=') + QString(barWidth - filled, u' ');
    const QString line = QStringLiteral("[%1] %2 % %3")
                             .arg(bar, QString::number(100 * done / total).rightJustified(3), printable(what));
    writeToError("\r" + line.left(terminalColumns() - 1).toLocal8Bit() + "\x1b[K");
    m_barIsDrawn = true;
}

void Console::endProgress()
{
    if (m_barIsDrawn)
        writeToError("\r\x1b[K");
    m_barIsDrawn = false;
}

Outcome Console::print(const QByteArray &bytes)
{
    if (const int error = ByteStream::writeAll(STDOUT_FILENO, bytes)) {
        return Failure { Text::tr("Standard output could not be written: %1.").arg(ByteStream::reason(error)) };
    }
    return Done {};
}

bool Console::confirms(const QString &question)
{
    endProgress();
    writeToError(question.toLocal8Bit() + ' ' + Text::tr("[y/N]").toLocal8Bit() + ' ');
    QByteArray answer;
    for (char letter = 0; ::read(STDIN_FILENO, &letter, 1) == 1 && letter != '\n';)
        answer += letter;
    const QByteArray word = answer.trimmed().toLower();
    return word == "y" || word == "yes";
}

bool Console::canAsk() { return ::isatty(STDIN_FILENO) && ::isatty(STDERR_FILENO); }

QString Console::printable(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control || character == QChar::ParagraphSeparator
            || character == QChar::LineSeparator)
            character = u'?';
    }
    return text;
}

bool Console::printsToTerminal() { return ::isatty(STDOUT_FILENO); }

} // namespace tessaly
