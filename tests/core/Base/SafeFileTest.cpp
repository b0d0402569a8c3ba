// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Base/SafeFile.h"

#include "tests/support/TestFiles.h"

#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace tessaly;
using test::fileContent;
using test::inChild;
using test::namesIn;

/// Writes that succeed, fail half-way, and are killed; what counts is what lies in the folder afterwards.
class SafeFileTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString at(const QString &name) const { return m_folder->filePath(name); }

    QStringList files() const { return namesIn(m_folder->path()); }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void replacesTheWholeFile()
    {
        const QString path = at(QStringLiteral("ä ") + QString(240, u'n'));
        QVERIFY(SafeFile::write(path, QByteArray(100'000, 'a')));
        QVERIFY(SafeFile::write(path, "b"));
        QCOMPARE(fileContent(path), QByteArray("b"));
        QVERIFY(SafeFile::write(path, {}));
        QCOMPARE(QFileInfo(path).size(), 0);
        QCOMPARE(files().size(), 1);
    }

    void keepsPermissions()
    {
        const QString path = at(QStringLiteral("file"));
        const mode_t mask = ::umask(022);
        QVERIFY(SafeFile::write(path, "a"));
        struct stat info = {};
        QCOMPARE(::stat(QFile::encodeName(path), &info), 0);
        QCOMPARE(info.st_mode & 07777, 0644u);
        ::chmod(QFile::encodeName(path), 0662); // more than the mask would leave
        QVERIFY(SafeFile::write(path, "b"));
        ::stat(QFile::encodeName(path), &info);
        ::umask(mask);
        QCOMPARE(info.st_mode & 07777, 0662u);
    }

    void followsLinks()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("below")));
        QVERIFY(QFile::link(QStringLiteral("below/file"), at(QStringLiteral("link"))));
        QVERIFY(QFile::link(QStringLiteral("link"), at(QStringLiteral("second"))));
        for (const char *content : { "new", "replaced" }) {
            QVERIFY(SafeFile::write(at(QStringLiteral("second")), content));
            QVERIFY(QFileInfo(at(QStringLiteral("link"))).isSymLink());
            QVERIFY(QFileInfo(at(QStringLiteral("second"))).isSymLink());
            QCOMPARE(fileContent(at(QStringLiteral("below/file"))), QByteArray(content));
        }
        QVERIFY(QFile::link(QStringLiteral("round"), at(QStringLiteral("round"))));
        QVERIFY(!SafeFile::write(at(QStringLiteral("round")), "x"));
    }

    void failsWithASentence_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("reason");
        QTest::newRow("no such folder") << QStringLiteral("%1/none/file")
                                        << QStringLiteral("No such file or directory");
        QTest::newRow("a folder") << QStringLiteral("%1") << QStringLiteral("Is a directory");
        QTest::newRow("a file as folder") << QStringLiteral("/dev/null/file") << QStringLiteral("Not a directory");
        QTest::newRow("a full device") << QStringLiteral("/dev/full") << QStringLiteral("No space left on device");
    }

    void failsWithASentence()
    {
        QFETCH(QString, path);
        QFETCH(QString, reason);
        path = path.contains(u"%1") ? path.arg(m_folder->path()) : path;
        const auto outcome = SafeFile::write(path, "content");
        QVERIFY(!outcome);
        QCOMPARE(outcome.failure().message, QStringLiteral("%1 could not be written: %2.").arg(path, reason));
        QCOMPARE(files(), QStringList());
    }

    void writesIntoDevicesWithoutReplacingThem()
    {
        QVERIFY(SafeFile::write(QStringLiteral("/dev/null"), "content"));
        struct stat info = {};
        QCOMPARE(::stat("/dev/null", &info), 0);
        QVERIFY(S_ISCHR(info.st_mode));
    }

    void leavesTheOldFileWhenTheDiskIsFull()
    {
        const QString path = at(QStringLiteral("file")), folder = at(QStringLiteral("folder"));
        QVERIFY(SafeFile::write(path, "old"));
        QVERIFY(SafeFile::writeFolder(folder, { { QStringLiteral("a"), "old" } }));
        const int failed = inChild([&] {
            ::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit { 4096, 4096 };
            ::setrlimit(RLIMIT_FSIZE, &limit);
            const QByteArray large(100'000, 'x');
            const bool file = static_cast<bool>(SafeFile::write(path, large));
            const bool package = static_cast<bool>(
                SafeFile::writeFolder(folder, { { QStringLiteral("a"), "new" }, { QStringLiteral("b"), large } }));
            return (file ? 1 : 0) + (package ? 2 : 0);
        });
        QCOMPARE(failed, 0);
        QCOMPARE(fileContent(path), QByteArray("old"));
        QCOMPARE(fileContent(folder + QStringLiteral("/a")), QByteArray("old"));
        QCOMPARE(files(), QStringList({ "file", "folder" }));
    }

    void respectsReadOnly()
    {
        const QString path = at(QStringLiteral("file"));
        QVERIFY(SafeFile::write(path, "old"));
        ::chmod(QFile::encodeName(path), 0444);
        const auto attempts = [&] {
            if (::geteuid() == 0 && (::setegid(65534) != 0 || ::seteuid(65534) != 0))
                return 9; // the superuser may write everywhere
            const bool file = static_cast<bool>(SafeFile::write(path, "new"));
            const bool beside = static_cast<bool>(SafeFile::write(at(QStringLiteral("other")), "new"));
            return (file ? 1 : 0) + (beside ? 2 : 0);
        };
        ::chmod(QFile::encodeName(m_folder->path()), 0777);
        QCOMPARE(inChild(attempts), 2);
        QVERIFY(QFile::remove(at(QStringLiteral("other"))));
        ::chmod(QFile::encodeName(m_folder->path()), 0555);
        QCOMPARE(inChild(attempts), 0);
        ::chmod(QFile::encodeName(m_folder->path()), 0755);
        QCOMPARE(files(), QStringList { "file" });
        QCOMPARE(fileContent(path), QByteArray("old"));
    }

    void exchangesFoldersWhole()
    {
        const QString path = at(QStringLiteral("package"));
        QVERIFY(SafeFile::writeFolder(path, { { QStringLiteral("a"), "1" }, { QStringLiteral("sub/b"), "2" } }));
        QCOMPARE(fileContent(path + QStringLiteral("/sub/b")), QByteArray("2"));
        QVERIFY(SafeFile::writeFolder(path + u'/', { { QStringLiteral("c"), "3" } }));
        QCOMPARE(QDir(path).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList { "c" });
        QCOMPARE(files(), QStringList { "package" });
    }

    void replacesNoFileByAFolder()
    {
        const QString path = at(QStringLiteral("file"));
        QVERIFY(SafeFile::write(path, "old"));
        QVERIFY(QFile::link(QStringLiteral("."), at(QStringLiteral("link"))));
        for (const QString &name : { path, at(QStringLiteral("link")) })
            QVERIFY(!SafeFile::writeFolder(name, { { QStringLiteral("a"), "1" } }));
        QCOMPARE(fileContent(path), QByteArray("old"));
        QCOMPARE(files(), QStringList({ "file", "link" }));
    }

    void survivesBeingKilled()
    {
        const QString path = at(QStringLiteral("package"));
        const auto entries = [](char letter) {
            return QList<SafeFile::Entry> { { QStringLiteral("a"), QByteArray(300'000, letter) },
                { QStringLiteral("b"), QByteArray(1, letter) } };
        };
        QVERIFY(SafeFile::writeFolder(path, entries('0')));
        for (int round = 0; round < 25; ++round) {
            const pid_t child = ::fork();
            if (child == 0) {
                for (char letter = 'a';; letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1))
                    (void)SafeFile::writeFolder(path, entries(letter));
            }
            ::usleep(static_cast<useconds_t>(500 + round * 700));
            ::kill(child, SIGKILL);
            ::waitpid(child, nullptr, 0);
            const QByteArray letter = fileContent(path + QStringLiteral("/b"));
            QCOMPARE(letter.size(), 1);
            QCOMPARE(fileContent(path + QStringLiteral("/a")), QByteArray(300'000, letter.front()));
        }
    }
};

QTEST_GUILESS_MAIN(SafeFileTest)
#include "SafeFileTest.moc"
