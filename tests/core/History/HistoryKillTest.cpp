// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryKeeper.h"

#include "HistorySamples.h"
#include "KillJournal.h"

#include <QDirIterator>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <sys/syscall.h>

using namespace tessaly;
using test::KillJournal;

namespace {

bool exchangeIsMissing = false;
bool renamesAreSlow = false; ///< in the workers of that case, so that many kills fall between two of them

} // namespace

/// Stands in for the system's: as on a file system that cannot exchange two folders.
extern "C" int renameat2(
    int oldFolder, const char *oldName, int newFolder, const char *newName, unsigned flags) noexcept
{
    if (exchangeIsMissing) {
        errno = EINVAL;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_renameat2, oldFolder, oldName, newFolder, newName, flags));
}

extern "C" int rename(const char *oldName, const char *newName) noexcept
{
    if (renamesAreSlow)
        ::usleep(1000);
    return static_cast<int>(::syscall(SYS_renameat, AT_FDCWD, oldName, AT_FDCWD, newName));
}

/// Two processes work on one history, and are killed at any moment: one keeps it, the other is a guest until the first
/// is dead. What they reported as done must be there afterwards, and nothing else may be left.
///
/// TESSALY_SEED repeats what is random in a run, but for the moments at which the system lets the processes run.
class HistoryKillTest : public QObject {
    Q_OBJECT

    static constexpr int pictureCount = 40;

    QList<TessalyDocument::Package> m_packages;
    QList<QImage> m_pictures;
    quint32 m_seed = 0;

    HistoryStore m_files;
    KillJournal::State m_before[KillJournal::entryCount];

    /// One operation, reported before and after.
    void work(HistoryKeeper &keeper, int pipe, quint8 name, std::minstd_rand &random) const
    {
        using What = KillJournal::What;
        const auto draw = [&random](unsigned below) { return static_cast<int>(random() % below); };
        const int dice = draw(100), first = draw(KillJournal::entryCount), version = draw(pictureCount);
        KillJournal::Event event { name, KillJournal::Phase::Begin, What::Put, 1u << first, version };
        HistoryEntry entry = test::sampleEntry(first);
        std::function<Outcome()> change = [&] { return keeper.put(m_packages[version], entry); };
        entry.recognizedText = KillJournal::textOf(What::Put, version);
        if (dice < 20) {
            event.what = What::Update;
            entry.recognizedText = KillJournal::textOf(What::Update, version);
            change = [&] { return keeper.update(entry); };
        } else if (dice < 38) { // as pruning does
            const int second = draw(KillJournal::entryCount), third = draw(KillJournal::entryCount);
            event.what = What::Remove;
            event.entries |= 1u << second | 1u << third;
            change = [&keeper, first, second, third] {
                return keeper.remove({ test::sampleId(first), test::sampleId(second), test::sampleId(third) });
            };
        } else if (dice < 41) {
            event.what = What::Remove;
            event.entries = (1u << KillJournal::entryCount) - 1;
            change = [&] { return keeper.removeAll(); };
        }
        const auto report = [&](KillJournal::Phase phase) {
            event.phase = phase;
            (void)!::write(pipe, &event, sizeof event);
        };
        report(KillJournal::Phase::Begin);
        report(change() ? KillJournal::Phase::Done : KillJournal::Phase::Failed);
    }

    [[noreturn]] void workUntilKilled(int pipe, quint8 name, quint32 seed) const
    {
        std::minstd_rand random(seed);
        for (;;) {
            HistoryKeeper keeper(m_files);
            if (random() % 2)
                (void)keeper.load();
            for (auto left = 1 + random() % 40; left > 0; --left) {
                work(keeper, pipe, name, random);
                if (random() % 8 == 0)
                    (void)keeper.takeRequests();
                if (random() % 16 == 0)
                    keeper.settle();
            }
        }
    }

    pid_t started(int pipe, quint8 name, quint32 seed) const
    {
        const pid_t child = ::fork();
        if (child == 0) {
            ::signal(SIGPIPE, SIG_IGN);
            renamesAreSlow = exchangeIsMissing;
            workUntilKilled(pipe, name, seed);
        }
        return child;
    }

    static bool killed(pid_t child)
    {
        int status = 0;
        ::kill(child, SIGKILL);
        return ::waitpid(child, &status, 0) == child && WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    }

    /// Lets one or two processes work for a while; empty when they did nothing but work.
    QString round(std::minstd_rand &random, KillJournal &journal, int &kills) const
    {
        int pipe[2] = {};
        if (::pipe2(pipe, O_CLOEXEC) != 0)
            return QStringLiteral("no pipe");
        QList<pid_t> workers;
        const int count = random() % 4 == 0 ? 1 : 2;
        for (int worker = 0; worker < count; ++worker)
            workers += started(pipe[1], static_cast<quint8>(worker), static_cast<quint32>(random()));
        ::close(pipe[1]);
        bool isFine = true;
        ::usleep(static_cast<useconds_t>(random() % 60'000));
        while (!workers.isEmpty()) {
            isFine = killed(workers.takeAt(qsizetype(random() % size_t(workers.size())))) && isFine;
            ++kills;
            if (random() % 2)
                ::usleep(static_cast<useconds_t>(random() % 25'000));
        }
        KillJournal::Event event {};
        while (::read(pipe[0], &event, sizeof event) == sizeof event)
            journal.add(event);
        ::close(pipe[0]);
        if (!isFine)
            return QStringLiteral("a worker ended by itself");
        return journal.failedOperations() > 0 ? QStringLiteral("an operation failed") : QString();
    }

    KillJournal::State stateOf(const HistoryEntry &entry) const
    {
        const auto contents = TessalyDocument::contents(m_files.packagePath(entry.id));
        if (!contents)
            return { true, -1, contents.failure().detail };
        const QImage pixels = contents->image.pixels.convertToFormat(QImage::Format_RGB32);
        return { true, static_cast<int>(m_pictures.indexOf(pixels)), entry.recognizedText.value_or(QString()) };
    }

    /// Everything in the folder that has no place in a history at rest.
    QStringList leftovers() const
    {
        QStringList found;
        QDirIterator all(m_files.directory, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
            QDirIterator::Subdirectories);
        while (all.hasNext()) {
            const QString name = all.nextFileInfo().fileName();
            if (name.startsWith(u'.') && name != u".lock" && name != u".mailbox")
                found += all.filePath();
        }
        return found + test::namesIn(m_files.directory + QStringLiteral("/.mailbox")).filter(QStringLiteral("000"));
    }

    /// Starts the program again; empty when all is as it was reported.
    QString faults(const KillJournal &journal)
    {
        QList<HistoryEntry> entries;
        {
            HistoryKeeper keeper(m_files);
            const auto loaded = keeper.load();
            entries = loaded.entries;
            const auto again = keeper.load();
            if (loaded.problem || again.repaired || again.entries != entries || keeper.entries() != entries)
                return QStringLiteral("the second load found something else");
        }
        if (const QStringList left = leftovers(); !left.isEmpty())
            return QStringLiteral("left behind: ") + left.join(u' ');
        if (m_files.rebuild(m_files.packageIDs()) != entries || m_files.load().entries != entries)
            return QStringLiteral("the index does not agree with the packages");
        for (int number = 0; number < KillJournal::entryCount; ++number) {
            const auto entry = std::ranges::find(entries, test::sampleId(number), &HistoryEntry::id);
            const auto state = entry == entries.end() ? KillJournal::State {} : stateOf(*entry);
            if (const QString fault = journal.contradiction(number, m_before[number], state); !fault.isEmpty())
                return fault;
            m_before[number] = state;
        }
        return {};
    }

    static qsizetype openDescriptors() { return test::namesIn(QStringLiteral("/proc/self/fd")).size(); }

private Q_SLOTS:
    void initTestCase()
    {
        bool isGiven = false;
        m_seed = qEnvironmentVariable("TESSALY_SEED").toUInt(&isGiven);
        if (!isGiven)
            m_seed = QRandomGenerator::system()->generate() % 1'000'000;
        qInfo("TESSALY_SEED=%u", m_seed);
        for (int number = 0; number < pictureCount; ++number) {
            m_packages += test::samplePackage(number);
            m_pictures += test::samplePixels(number);
        }
    }

    void losesNothing_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<bool>("withoutExchange");
        QTest::addColumn<int>("kills");
        const QString disk = QDir::tempPath(), memory = QStringLiteral("/dev/shm");
        QTest::newRow("disk") << disk << false << 130;
        QTest::newRow("memory") << (QFileInfo(memory).isWritable() ? memory : disk) << false
                                << 170; // many more steps in the same time
        QTest::newRow("without exchange") << (QFileInfo(memory).isWritable() ? memory : disk) << true << 100;
    }

    void losesNothing()
    {
        QFETCH(QString, place);
        QFETCH(bool, withoutExchange);
        QFETCH(int, kills);
        const auto descriptors = openDescriptors();
        const QTemporaryDir root(place + QStringLiteral("/tessaly-kill-XXXXXX"));
        m_files = { root.filePath(QStringLiteral("History")) };
        std::ranges::fill(m_before, KillJournal::State {});
        exchangeIsMissing = withoutExchange;
        std::minstd_rand random(m_seed + 1);
        int done = 0, dead = 0, rounds = 0;
        for (; dead < kills; ++rounds) {
            KillJournal journal;
            QString fault = round(random, journal, dead);
            fault = fault.isEmpty() ? faults(journal) : fault;
            QVERIFY2(fault.isEmpty(),
                qPrintable(QStringLiteral("seed %1, round %2: %3").arg(m_seed).arg(rounds).arg(fault)));
            done += journal.doneOperations();
        }
        exchangeIsMissing = false;
        qInfo("%d kills in %d rounds, %d operations reported as done", dead, rounds, done);
        QVERIFY(done > dead);
        QCOMPARE(openDescriptors(), descriptors);
    }
};

QTEST_GUILESS_MAIN(HistoryKillTest)
#include "HistoryKillTest.moc"
