// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryKeeper.h"

#include "HistorySamples.h"
#include "tests/support/Rows.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace tessaly;
using test::idsOf;
using test::inChild;
using test::namesIn;
using test::sampleEntry;
using test::sampleId;
using test::samplePackage;
using test::writeFile;

namespace {

using Role = HistoryKeeper::Role;

enum class Who { Keeper, Guest };
enum class What { Put, Update, Remove, RemoveAll };

/// One change; `number` is the entry's, `version` its picture's and its title's.
struct Step {
    Who who;
    What what;
    int number = 0;
    int version = 0;
};

HistoryEntry versionOf(int number, int version) { return sampleEntry(number, QString::number(version)); }

Outcome perform(HistoryKeeper &keeper, const Step &step)
{
    switch (step.what) {
    case What::Put:
        return keeper.put(samplePackage(step.version), versionOf(step.number, step.version));
    case What::Update:
        return keeper.update(versionOf(step.number, step.version));
    case What::Remove:
        return keeper.remove({ sampleId(step.number) });
    case What::RemoveAll:
        return keeper.removeAll();
    }
    return Failure {};
}

} // namespace

Q_DECLARE_METATYPE(QList<Step>)

/// One process keeps the folder, others leave it messages, and any of them may have been killed.
class HistoryKeeperTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_root;
    HistoryStore m_files;

    QString at(const QString &name) const { return QDir(m_files.directory).filePath(name); }
    QString mailbox(const QString &name = {}) const { return at(QStringLiteral(".mailbox/") + name); }

    QStringList hiddenNames() const
    {
        QStringList names = namesIn(m_files.directory).filter(QRegularExpression(QStringLiteral("^\\.")));
        const auto inMailbox = namesIn(mailbox());
        for (const QString &name : inMailbox)
            names += QStringLiteral(".mailbox/") + name;
        for (const char *always : { ".lock", ".mailbox", ".mailbox/.lock" })
            names.removeAll(QLatin1StringView(always));
        return names;
    }

    QImage pixelsOf(int number) const
    {
        const auto contents = TessalyDocument::contents(m_files.packagePath(sampleId(number)));
        return contents ? contents->image.pixels : QImage();
    }

    /// A folder with entries 1 to `count`.
    void fill(int count)
    {
        HistoryKeeper keeper(m_files);
        for (int number = 1; number <= count; ++number)
            QVERIFY(keeper.put(samplePackage(number), versionOf(number, number)));
    }

private Q_SLOTS:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        m_files = { m_root->filePath(QStringLiteral("data/History")) };
    }

    void readingMakesNothing()
    {
        HistoryKeeper keeper(m_files);
        QVERIFY(keeper.load().entries.isEmpty());
        QVERIFY(!keeper.takeRequests());
        QVERIFY(namesIn(m_root->path()).isEmpty());
        QCOMPARE(keeper.role(), Role::Keeper);
        QVERIFY(QFile::exists(keeper.mailboxPath()));
    }

    void keepsTheIndexBehindManyQuickChanges()
    {
        {
            HistoryKeeper keeper(m_files);
            for (int number : { 2, 1, 3 })
                QVERIFY(keeper.put(samplePackage(number), versionOf(number, number)));
            QVERIFY(keeper.update(versionOf(1, 5)));
            QVERIFY(keeper.put(samplePackage(7), versionOf(2, 7)));
            QVERIFY(!keeper.update(sampleEntry(9)));
            QCOMPARE(keeper.entries(), QList({ versionOf(3, 3), versionOf(2, 7), versionOf(1, 5) }));
            QCOMPARE(m_files.load().entries, keeper.entries());
        }
        QCOMPARE(hiddenNames(), QStringList());
        QVERIFY(!m_files.load().repaired);
        QCOMPARE(m_files.load().entries, QList({ versionOf(3, 3), versionOf(2, 7), versionOf(1, 5) }));
        QCOMPARE(pixelsOf(2), test::samplePixels(7));
        QCOMPARE(pixelsOf(1), test::samplePixels(1));
    }

    void refusesWhatCouldNotBeReadBack()
    {
        HistoryKeeper keeper(m_files);
        HistoryEntry entry = sampleEntry(1);
        entry.created = {};
        QVERIFY(!keeper.put(samplePackage(1), entry));
        entry = sampleEntry(1);
        entry.id = {};
        QVERIFY(!keeper.put(samplePackage(1), entry));
        QVERIFY(keeper.entries().isEmpty());
    }

    void oneKeepsTheOthersAreGuests()
    {
        auto first = std::make_unique<HistoryKeeper>(m_files);
        HistoryKeeper second(m_files), third(m_files);
        QCOMPARE(first->role(), Role::Keeper);
        QCOMPARE(second.role(), Role::Guest);
        QCOMPARE(inChild([this] { return HistoryKeeper(m_files).role() == Role::Guest ? 0 : 1; }), 0);
        QVERIFY(second.put(samplePackage(1), sampleEntry(1)));
        first.reset();
        QCOMPARE(third.role(), Role::Keeper);
        QCOMPARE(idsOf(third.entries()), QList { sampleId(1) });
        QCOMPARE(second.role(), Role::Guest);
    }

    void seesAnotherFolderInItsPlace()
    {
        fill(2);
        HistoryKeeper keeper(m_files);
        QCOMPARE(keeper.load().entries.size(), 2);
        QVERIFY(QDir(m_files.directory).removeRecursively());
        QVERIFY(keeper.put(samplePackage(3), sampleEntry(3)));
        QCOMPARE(idsOf(keeper.entries()), QList { sampleId(3) });
        QCOMPARE(HistoryKeeper(m_files).role(), Role::Guest);
        QCOMPARE(idsOf(m_files.load().entries), QList { sampleId(3) });
    }

    void performsInTheOrderOfPosting_data()
    {
        // versions: of entries 3, 2, 1; 0: it is not there; messages: that wait before they are taken in
        test::columns<QList<Step>, QList<int>, int>("steps", "versions", "messages");
        using enum Who;
        using enum What;
        test::row("put", QList<Step> { { Guest, Put, 1, 1 } }, QList { 0, 0, 1 }, 1);
        test::row("put twice", QList<Step> { { Guest, Put, 1, 1 }, { Guest, Put, 1, 2 } }, QList { 0, 0, 2 }, 1);
        test::row(
            "over the keeper's", QList<Step> { { Keeper, Put, 1, 1 }, { Guest, Put, 1, 2 } }, QList { 0, 0, 2 }, 1);
        test::row(
            "under the keeper's", QList<Step> { { Guest, Put, 1, 1 }, { Keeper, Put, 1, 2 } }, QList { 0, 0, 2 }, 0);
        test::row("update", QList<Step> { { Keeper, Put, 2, 1 }, { Guest, Update, 2, 5 }, { Guest, Update, 2, 6 } },
            QList { 0, 6, 0 }, 1);
        test::row("update of none", QList<Step> { { Guest, Update, 2, 5 } }, QList { 0, 0, 0 }, 1);
        test::row(
            "put and update", QList<Step> { { Guest, Put, 2, 1 }, { Guest, Update, 2, 5 } }, QList { 0, 5, 0 }, 2);
        test::row("put after remove", QList<Step> { { Keeper, Put, 1, 1 }, { Guest, Remove, 1 }, { Guest, Put, 1, 2 } },
            QList { 0, 0, 2 }, 2);
        test::row("remove after put", QList<Step> { { Guest, Put, 1, 1 }, { Guest, Put, 2, 2 }, { Guest, Remove, 1 } },
            QList { 0, 2, 0 }, 2);
        test::row("keeper's put after remove",
            QList<Step> { { Keeper, Put, 1, 1 }, { Guest, Remove, 1 }, { Keeper, Put, 1, 2 } }, QList { 0, 0, 2 }, 0);
        test::row("emptied",
            QList<Step> { { Keeper, Put, 1, 1 }, { Guest, Put, 2, 1 }, { Guest, RemoveAll }, { Guest, Put, 3, 3 } },
            QList { 3, 0, 0 }, 2);
        test::row("emptied by the keeper",
            QList<Step> { { Guest, Put, 2, 1 }, { Keeper, RemoveAll }, { Guest, Put, 3, 3 } }, QList { 3, 0, 0 }, 1);
    }

    void performsInTheOrderOfPosting()
    {
        QFETCH(QList<Step>, steps);
        QFETCH(QList<int>, versions);
        QFETCH(int, messages);
        HistoryKeeper keeper(m_files), guest(m_files);
        QCOMPARE(keeper.role(), Role::Keeper);
        QList<HistoryEntry> expected;
        for (int number = 3; number >= 1; --number) {
            if (const int version = versions[3 - number])
                expected += versionOf(number, version);
        }
        for (const Step &step : steps)
            QVERIFY(perform(step.who == Who::Keeper ? keeper : guest, step));
        QCOMPARE(hiddenNames().filter(QStringLiteral(".mailbox/")).size(), messages);
        QCOMPARE(guest.load().entries, expected); // as guests see it before it is done
        QCOMPARE(HistoryKeeper(m_files).load().entries, expected);
        (void)keeper.takeRequests();
        QVERIFY(!keeper.takeRequests());
        QCOMPARE(keeper.entries(), expected);
        QCOMPARE(hiddenNames(), QStringList());
        QCOMPARE(m_files.load().entries, expected);
    }

    void putsMalformedMessagesAside()
    {
        HistoryKeeper keeper(m_files), guest(m_files);
        QCOMPARE(keeper.role(), Role::Keeper);
        const QString number(20, u'0');
        QVERIFY(writeFile(mailbox(number + QStringLiteral("-1.json")), "{\"remove\":[7]}"));
        QVERIFY(writeFile(mailbox(number + QStringLiteral("-2.json")), "garbage"));
        QVERIFY(writeFile(mailbox(QStringLiteral("note.txt")), "hello"));
        QVERIFY(QDir().mkpath(mailbox(number + QStringLiteral("-3.6f1c2d3e-0000-4000-8000-000000000001.tessaly"))));
        const QString outside = m_root->filePath(QStringLiteral("outside.json"));
        QVERIFY(writeFile(outside, "{\"removeAll\":true}"));
        QVERIFY(QFile::link(outside, mailbox(number + QStringLiteral("-4.json"))));
        QVERIFY(guest.put(samplePackage(1), sampleEntry(1)));
        QVERIFY(keeper.takeRequests());
        QCOMPARE(idsOf(keeper.entries()), QList { sampleId(1) });
        const QStringList left = hiddenNames();
        QCOMPARE(left.size(), 5);
        QCOMPARE(left.filter(QStringLiteral(".mailbox/.refused-")).size(), 5);
        QVERIFY(keeper.removeAll());
        QCOMPARE(hiddenNames(), QStringList());
        QVERIFY(QFile::exists(outside));
    }

    /// A message that cannot be performed waits with those about the same capture, and holds up no others.
    void holdsUpNoOthers()
    {
        HistoryKeeper keeper(m_files), guest(m_files);
        QCOMPARE(keeper.role(), Role::Keeper);
        QVERIFY(guest.put(samplePackage(1), versionOf(1, 1)) && guest.update(versionOf(1, 4)));
        QVERIFY(guest.put(samplePackage(2), versionOf(2, 2)));
        QVERIFY(writeFile(m_files.packagePath(sampleId(1)), "in the way"));
        QVERIFY(keeper.takeRequests());
        QCOMPARE(keeper.entries(), QList { versionOf(2, 2) });
        QCOMPARE(hiddenNames().filter(QStringLiteral(".mailbox/")).size(), 2);
        QVERIFY(QFile::remove(m_files.packagePath(sampleId(1))));
        QVERIFY(keeper.takeRequests());
        QCOMPARE(keeper.entries(), QList({ versionOf(2, 2), versionOf(1, 4) }));
        QCOMPARE(hiddenNames(), QStringList());
    }

    void clearsUpAfterTheKilled()
    {
        fill(2);
        const QString package = m_files.packagePath(sampleId(1));
        QVERIFY(QDir().rename(m_files.packagePath(sampleId(2)), at(QStringLiteral(".tessaly-aside"))));
        QVERIFY(QDir().mkpath(at(QStringLiteral(".tessaly-unfinished/QuickLook"))));
        QVERIFY(QDir().mkpath(at(QStringLiteral(".removed-x/QuickLook"))));
        QVERIFY(writeFile(at(QStringLiteral(".tessaly-file")), "half"));
        QVERIFY(writeFile(package + QStringLiteral("/.tessaly-inside"), "half"));
        QVERIFY(writeFile(at(QStringLiteral(".changed-6f1c2d3e-0000-4000-8000-000000000001")), {}));
        QVERIFY(writeFile(mailbox(QStringLiteral(".tessaly-left")), "half"));
        QVERIFY(QFile::link(m_root->path(), at(QStringLiteral(".removed-link"))));
        QVERIFY(m_files.markRecognizing(sampleId(1)) && m_files.markRecognizing(sampleId(8)));
        HistoryKeeper keeper(m_files);
        QCOMPARE(keeper.load().entries, QList({ versionOf(2, 2), versionOf(1, 1) }));
        QCOMPARE(pixelsOf(2), test::samplePixels(2));
        QCOMPARE(hiddenNames(), QStringList());
        QVERIFY(!namesIn(package).contains(QStringLiteral(".tessaly-inside")));
        QCOMPARE(m_files.interruptedRecognitions(), QList { sampleId(1) });
        QVERIFY(QFile::exists(package));
        QVERIFY(!keeper.load().repaired);
    }

    void restoresOnlyWhatIsWhole_data()
    {
        // damaged: a file of the package that stepped aside
        test::columns<QString, bool>("damaged", "isRestored");
        test::row("whole", QString(), true);
        test::row("half a picture", QStringLiteral("image.png"), false);
        test::row("half a document", QStringLiteral("document.json"), false);
        test::row("half an entry", QStringLiteral("History.json"), false);
    }

    void restoresOnlyWhatIsWhole()
    {
        QFETCH(QString, damaged);
        QFETCH(bool, isRestored);
        fill(1);
        const QString aside = at(QStringLiteral(".tessaly-aside"));
        QVERIFY(QDir().rename(m_files.packagePath(sampleId(1)), aside));
        const QString file = aside + u'/' + damaged;
        QVERIFY(damaged.isEmpty() || writeFile(file, test::fileContent(file).chopped(20)));
        QCOMPARE(HistoryKeeper(m_files).load().entries.size(), isRestored ? 1 : 0);
        QCOMPARE(hiddenNames(), QStringList());
    }

    void restoresTheNewest()
    {
        fill(1);
        HistoryEntry newer = versionOf(1, 2);
        newer.modified = newer.modified.addSecs(5);
        QVERIFY(QDir().rename(m_files.packagePath(sampleId(1)), at(QStringLiteral(".tessaly-1"))));
        QVERIFY(m_files.write(samplePackage(2), newer));
        QVERIFY(QDir().rename(m_files.packagePath(sampleId(1)), at(QStringLiteral(".tessaly-2"))));
        QCOMPARE(HistoryKeeper(m_files).load().entries, QList { newer });
        QCOMPARE(pixelsOf(1), test::samplePixels(2));
    }

    /// Killed after the old package had stepped aside, before that of the message took its place.
    void takesAMessageInAgain()
    {
        fill(1);
        HistoryKeeper guest(m_files);
        {
            HistoryKeeper keeper(m_files);
            QCOMPARE(keeper.role(), Role::Keeper);
            QVERIFY(guest.put(samplePackage(2), versionOf(1, 2)));
        }
        QVERIFY(QDir().rename(m_files.packagePath(sampleId(1)), at(QStringLiteral(".removed-x"))));
        QCOMPARE(HistoryKeeper(m_files).load().entries, QList { versionOf(1, 2) });
        QCOMPARE(pixelsOf(1), test::samplePixels(2));
        QCOMPARE(hiddenNames(), QStringList());
    }

    void leavesAGuestThatIsWritingAlone()
    {
        fill(1);
        const QString unfinished = mailbox(QStringLiteral(".tessaly-now"));
        QVERIFY(writeFile(unfinished, "half"));
        {
            HistoryLock posting(mailbox().chopped(1));
            QVERIFY(posting.share());
            QVERIFY(!HistoryKeeper(m_files).load().problem);
            QVERIFY(QFile::exists(unfinished));
        }
        QVERIFY(!HistoryKeeper(m_files).load().problem);
        QVERIFY(!QFile::exists(unfinished));
    }

    void putsAnIndexThatCannotBeUsedAside()
    {
        const QByteArray content(R"({"version":2,"entries":{}})");
        fill(2);
        const QString index = at(QStringLiteral("index.json"));
        QVERIFY(writeFile(index, content));
        HistoryKeeper keeper(m_files);
        const auto loaded = keeper.load();
        QVERIFY(loaded.repaired && loaded.entries.size() == 2);
        QVERIFY(!keeper.load().repaired);
        const QStringList aside = hiddenNames().filter(QStringLiteral(".index-"));
        QCOMPARE(aside.size(), 1);
        QCOMPARE(test::fileContent(at(aside.first())), content);
        QVERIFY(keeper.removeAll());
        QCOMPARE(namesIn(m_files.directory), QStringList({ ".lock", ".mailbox", "index.json" }));
    }

    void namesPathAndReason()
    {
        const QString file = m_root->filePath(QStringLiteral("file"));
        QVERIFY(writeFile(file, "precious"));
        for (const char *below : { "", "/History", "/a/b" }) {
            HistoryKeeper keeper({ file + QLatin1StringView(below) });
            QVERIFY(keeper.load().entries.isEmpty());
            QCOMPARE(keeper.role(), Role::Guest);
            for (const Outcome &outcome : { keeper.put(samplePackage(1), sampleEntry(1)), keeper.update(sampleEntry(1)),
                     keeper.remove({ sampleId(1) }), keeper.removeAll() }) {
                QVERIFY(!outcome);
                QCOMPARE(outcome.failure().message, file + QStringLiteral(" could not be written: Not a directory."));
            }
            QCOMPARE(test::fileContent(file), QByteArray("precious"));
            QVERIFY(keeper.entries().isEmpty());
        }
    }

    void losesNothingOnAFullDisk_data()
    {
        QTest::addColumn<bool>("asGuest");
        test::row("keeper", false);
        test::row("guest", true);
    }

    /// A limit on the length of files stands for the disk that is full; it binds the superuser too.
    void losesNothingOnAFullDisk()
    {
        QFETCH(bool, asGuest);
        fill(3);
        const int status = inChild([&] {
            HistoryKeeper keeper(m_files), guest(m_files);
            if (keeper.role() != Role::Keeper || guest.load().entries.size() != 3)
                return 99;
            ::signal(SIGXFSZ, SIG_IGN);
            // So little that the keeper's index cannot follow either; a guest can still ask for something to go.
            const rlim_t most = asGuest ? 1000 : 100;
            const rlimit limit { most, most };
            ::setrlimit(RLIMIT_FSIZE, &limit);
            HistoryKeeper &one = asGuest ? guest : keeper;
            HistoryEntry longer = versionOf(1, 1);
            longer.recognizedText = QString(4000, u'x');
            for (const Outcome &outcome : { one.put(samplePackage(4), sampleEntry(4)),
                     one.put(samplePackage(5), versionOf(2, 5)), one.update(longer) }) {
                if (outcome || !outcome.failure().message.contains(QStringLiteral("File too large")))
                    return 1;
            }
            return one.entries().size() == 3 && one.remove({ sampleId(3) }) ? 0 : 2; // room is made
        });
        QCOMPARE(status, 0);
        HistoryKeeper keeper(m_files);
        QCOMPARE(keeper.load().entries, QList({ versionOf(2, 2), versionOf(1, 1) }));
        QCOMPARE(pixelsOf(2), test::samplePixels(2));
        QCOMPARE(hiddenNames(), QStringList());
        QVERIFY(keeper.put(samplePackage(3), versionOf(3, 3)));
    }

    void readsAFolderThatItMayNotWrite()
    {
        fill(2);
        ::chmod(QFile::encodeName(m_root->path()), 0755);
        ::chmod(QFile::encodeName(m_root->filePath(QStringLiteral("data"))), 0755);
        const int status = inChild([this] {
            const QList<QByteArray> names { QFile::encodeName(m_files.directory),
                QFile::encodeName(mailbox().chopped(1)) };
            // The superuser may write everywhere, and becomes somebody who may not; anyone else forbids himself.
            for (const QByteArray &name : names)
                ::chmod(name.constData(), ::geteuid() == 0 ? 0755 : 0555);
            ::umask(0);
            if (::geteuid() == 0) {
                QDirIterator files(m_files.directory, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
                while (files.hasNext())
                    ::chmod(QFile::encodeName(files.next()).constData(), 0755);
                if (::setegid(65534) != 0 || ::seteuid(65534) != 0)
                    return 99;
            }
            HistoryKeeper keeper(m_files);
            const auto loaded = keeper.load();
            const auto outcome = keeper.put(samplePackage(3), sampleEntry(3));
            const auto removed = keeper.remove({ sampleId(1) });
            return loaded.entries.size() == 2 && !outcome
                    && outcome.failure().message.contains(QStringLiteral("Permission denied")) && !removed
                    && keeper.entries().size() == 2
                ? 0
                : 1;
        });
        for (const QString &name : { m_files.directory, mailbox().chopped(1) })
            ::chmod(QFile::encodeName(name), 0700);
        QCOMPARE(status, 0);
        QCOMPARE(HistoryKeeper(m_files).load().entries.size(), 2);
    }

    void keepsNoDescriptors()
    {
        const auto open = [] {
            return QDir(QStringLiteral("/proc/self/fd"))
                .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                .size();
        };
        const auto before = open();
        {
            HistoryKeeper keeper(m_files), guest(m_files);
            QCOMPARE(keeper.role(), Role::Keeper);
            QVERIFY(guest.put(samplePackage(1), sampleEntry(1)) && keeper.takeRequests());
            QVERIFY(guest.load().entries.size() == 1 && keeper.remove({ sampleId(1) }));
            QVERIFY(writeFile(at(QStringLiteral("index.json")), "garbage") && keeper.load().repaired);
        }
        QCOMPARE(open(), before);
    }
};

QTEST_GUILESS_MAIN(HistoryKeeperTest)
#include "HistoryKeeperTest.moc"
