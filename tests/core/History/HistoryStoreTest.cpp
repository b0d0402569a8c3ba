// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryStore.h"

#include "HistorySamples.h"

#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace tessaly;
using test::fileContent;
using test::namesIn;
using test::sampleEntry;
using test::sampleId;
using test::writeFile;

/// What lies in the folder is damaged in every way that a disk, a person or a newer program may think of.
class HistoryStoreTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_root;
    HistoryStore m_files;
    QList<HistoryEntry> m_entries; ///< three, sorted

    QString at(const QString &name) const { return QDir(m_files.directory).filePath(name); }
    QString index() const { return at(QStringLiteral("index.json")); }
    QString entryFile(int number) const
    {
        return m_files.packagePath(sampleId(number)) + QStringLiteral("/History.json");
    }
    QString imageFile(int number) const { return m_files.packagePath(sampleId(number)) + QStringLiteral("/image.png"); }

    static QByteArray json(const HistoryEntry &entry) { return QJsonDocument(entry.toJson()).toJson(); }

    static uint modeOf(const QString &path)
    {
        struct stat status = {};
        return ::lstat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
    }

private Q_SLOTS:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        m_files = { m_root->filePath(QStringLiteral("data/History")) };
        m_entries.clear();
        QVERIFY(m_files.makeFolder());
        for (int number : { 3, 2, 1 }) {
            m_entries += sampleEntry(number, QStringLiteral("Title %1").arg(number));
            m_entries.last().recognizedText = QStringLiteral("text %1").arg(number);
            QVERIFY(m_files.write(test::samplePackage(number), m_entries.last()));
        }
        QVERIFY(m_files.save(m_entries));
    }

    void laysTheFolderOut()
    {
        QVERIFY(m_files.markRecognizing(sampleId(2)));
        QStringList expected { QStringLiteral("index.json"),
            HistoryStore(m_files).packagePath(sampleId(2)).section(u'/', -1) };
        expected[1].replace(QStringLiteral(".tessaly"), QStringLiteral(".recognizing"));
        for (int number : { 1, 2, 3 })
            expected += QStringLiteral("6f1c2d3e-0000-4000-8000-00000000000%1.tessaly").arg(number);
        expected.sort();
        QStringList names = namesIn(m_files.directory);
        names.sort();
        QCOMPARE(names, expected);
        QCOMPARE(namesIn(m_files.packagePath(sampleId(1))),
            QStringList({ "History.json", "QuickLook", "document.json", "image.png" }));
        QCOMPARE(fileContent(entryFile(3)), json(m_entries[0]));
        QCOMPARE(m_files.interruptedRecognitions(), QList { sampleId(2) });
        QVERIFY(m_files.clearRecognizing(sampleId(2)));
        QVERIFY(m_files.interruptedRecognitions().isEmpty());
        QVERIFY(HistoryStore::defaultDirectory().endsWith(QStringLiteral("/tessaly/History")));
    }

    void isForItsOwnerAlone()
    {
        const mode_t mask = ::umask(0);
        HistoryEntry entry = sampleEntry(9);
        const bool isWritten = m_files.write(test::samplePackage(9), entry) && m_files.save({ entry })
            && m_files.markRecognizing(entry.id);
        ::umask(mask);
        QVERIFY(isWritten);
        QCOMPARE(modeOf(m_files.directory), 0700u);
        QCOMPARE(modeOf(m_files.packagePath(entry.id)), 0700u);
        QCOMPARE(modeOf(m_files.packagePath(entry.id) + QStringLiteral("/QuickLook")), 0700u);
        for (const QString &file : { index(), entryFile(9), imageFile(9),
                 at(QStringLiteral("6f1c2d3e-0000-4000-8000-000000000009.recognizing")) })
            QCOMPARE(modeOf(file), 0600u);
        ::chmod(QFile::encodeName(m_files.directory), 0755);
        ::chmod(QFile::encodeName(index()), 0644);
        QVERIFY(m_files.makeFolder() && m_files.save({ entry }));
        QCOMPARE(modeOf(m_files.directory), 0700u);
        QCOMPARE(modeOf(index()), 0600u);
    }

    void loadsWithoutWriting()
    {
        const HistoryStore none { m_root->filePath(QStringLiteral("none/History")) };
        QVERIFY(none.load().entries.isEmpty() && !none.load().repaired && !none.load().problem);
        QVERIFY(!QFile::exists(m_root->filePath(QStringLiteral("none"))));
        const QStringList before = namesIn(m_files.directory);
        const auto loaded = m_files.load();
        QCOMPARE(loaded.entries, m_entries);
        QVERIFY(!loaded.repaired);
        QCOMPARE(namesIn(m_files.directory), before);
        const HistoryStore file { index() };
        QCOMPARE(file.load().problem->message, index() + QStringLiteral(" could not be read: Not a directory."));
    }

    void rebuildsItsIndex_data()
    {
        QTest::addColumn<std::function<bool(const QString &)>>("damage"); // of the file of this path
        QTest::addColumn<bool>("isThere");
        const auto add = [](const char *name, bool isThere, std::function<bool(const QString &)> damage) {
            QTest::newRow(name) << std::move(damage) << isThere;
        };
        add("missing", false, [](const QString &path) { return QFile::remove(path); });
        add("empty", true, [](const QString &path) { return writeFile(path, {}); });
        add("garbage", true, [](const QString &path) { return writeFile(path, QByteArray("\xff\0{[", 4)); });
        add("cut off", true, [](const QString &path) { return writeFile(path, fileContent(path).chopped(9)); });
        add("newer", true,
            [](const QString &path) { return writeFile(path, R"({"version":2,"entries":[],"more":1})"); });
        add("a folder", true,
            [](const QString &path) { return QFile::remove(path) && QDir().mkpath(path + QStringLiteral("/a")); });
        add("a pipe", true,
            [](const QString &path) { return QFile::remove(path) && ::mkfifo(QFile::encodeName(path), 0600) == 0; });
        add("a link to another history's", true, [](const QString &path) {
            const QString other = QFileInfo(path).path() + QStringLiteral("/../other.json");
            return QFile::rename(path, other) && QFile::link(other, path);
        });
    }

    void rebuildsItsIndex()
    {
        QFETCH(const std::function<bool(const QString &)>, damage);
        QFETCH(bool, isThere);
        QVERIFY(damage(index()));
        const auto loaded = m_files.load();
        QCOMPARE(loaded.entries, m_entries);
        QVERIFY(loaded.repaired);
        QCOMPARE(loaded.indexIsUnusable, isThere);
        if (isThere)
            QVERIFY(m_files.putIndexAside());
        QVERIFY(m_files.save(loaded.entries));
        QVERIFY(!m_files.load().repaired);
        QCOMPARE(m_files.rebuild(m_files.packageIDs()), m_entries);
    }

    void agreesWithThePackages()
    {
        HistoryEntry other = m_entries[1];
        other.title = QStringLiteral("edited by hand");
        QVERIFY(writeFile(entryFile(2), json(other))); // one that differs
        QVERIFY(QDir(m_files.packagePath(sampleId(1))).removeRecursively()); // one that is gone
        QVERIFY(m_files.write(test::samplePackage(4), sampleEntry(4))); // one that is not in the index
        QVERIFY(
            QDir().rename(m_files.packagePath(sampleId(3)), m_files.packagePath(sampleId(5)))); // one of another name
        HistoryEntry renamed = m_entries[0];
        renamed.id = sampleId(5);
        const auto loaded = m_files.load();
        QCOMPARE(loaded.entries, QList({ sampleEntry(4), renamed, other }));
        QVERIFY(loaded.repaired && !loaded.indexIsUnusable);
    }

    /// Whatever the clock says: a change that the index has not followed is known.
    void knowsWhatTheIndexHasNotFollowed()
    {
        HistoryEntry changed = m_entries[1];
        changed.recognizedText = QStringLiteral("other text");
        const QString note
            = m_files.directory + QStringLiteral("/.changed-") + changed.id.toString(QUuid::WithoutBraces);
        QVERIFY(QDir().mkpath(note + QStringLiteral("/folder"))); // in the place of the file
        QVERIFY(m_files.write(changed));
        const QByteArray old = fileContent(index());
        QTest::qSleep(20); // coarse file systems would else take both for the same moment
        QVERIFY(QFile::remove(index()) && writeFile(index(), old)); // an old index that looks new
        QCOMPARE(m_files.load().entries[1], changed);
        QVERIFY(m_files.save(m_files.load().entries));
        QVERIFY(!QFileInfo::exists(note));
        QCOMPARE(m_files.load().entries[1], changed);
        QVERIFY(!m_files.load().repaired);
    }

    void keepsWhatIsHalfThere_data()
    {
        QTest::addColumn<QStringList>("gone"); // of the package in the middle
        QTest::addColumn<bool>("hasIndex");
        QTest::addColumn<QString>("title"); // empty: there is no entry
        QTest::addColumn<QSize>("size");
        const QString entry = QStringLiteral("History.json"), image = QStringLiteral("image.png"),
                      document = QStringLiteral("document.json");
        const QSize size(64, 48);
        QTest::newRow("no picture") << QStringList { image } << false << "Title 2" << size;
        QTest::newRow("no entry, known by the index") << QStringList { entry } << true << "Title 2" << size;
        QTest::newRow("no entry") << QStringList { entry } << false << "Screenshot" << size;
        QTest::newRow("picture alone") << QStringList { entry, document } << false << "Screenshot" << size;
        QTest::newRow("document alone") << QStringList { entry, image } << false << "Screenshot" << size;
        QTest::newRow("nothing") << QStringList { entry, image, document } << true << "" << QSize();
    }

    void keepsWhatIsHalfThere()
    {
        QFETCH(QStringList, gone);
        QFETCH(bool, hasIndex);
        QFETCH(QString, title);
        QFETCH(QSize, size);
        const QString package = m_files.packagePath(sampleId(2));
        for (const QString &name : gone)
            QVERIFY(QFile::remove(package + u'/' + name));
        QVERIFY(hasIndex || QFile::remove(index()));
        const auto entries = m_files.load().entries;
        const auto found = std::ranges::find(entries, sampleId(2), &HistoryEntry::id);
        QCOMPARE(found != entries.end(), !title.isEmpty());
        QCOMPARE(entries.size(), title.isEmpty() ? 2 : 3);
        if (found != entries.end()) {
            QCOMPARE(found->title, title);
            QCOMPARE(QSize(found->pixelWidth, found->pixelHeight), size);
            QVERIFY(found->created.isValid() && found->modified.isValid());
        }
        QVERIFY(QFile::exists(package)); // nothing is cleaned away
    }

    void makesUpWhatCannotBeRead()
    {
        QVERIFY(QFile::remove(index()) && writeFile(entryFile(2), "{\"id\":"));
        const auto entries = m_files.load().entries;
        QCOMPARE(entries.size(), 3);
        QCOMPARE(entries.first().id, sampleId(2)); // just written, the others are dated
        QCOMPARE(fileContent(entryFile(2)), QByteArray("{\"id\":"));
    }

    void leavesOthersAlone()
    {
        QTemporaryDir outside;
        const HistoryStore elsewhere { outside.path() };
        QVERIFY(elsewhere.write(test::samplePackage(8), sampleEntry(8)));
        QVERIFY(QFile::link(elsewhere.packagePath(sampleId(8)), m_files.packagePath(sampleId(8))));
        QVERIFY(QFile::link(
            elsewhere.packagePath(sampleId(8)) + QStringLiteral("/History.json"), at(QStringLiteral("link"))));
        const QStringList foreign { QStringLiteral("notes.txt"),
            QStringLiteral("Copy of 6f1c2d3e-0000-4000-8000-000000000001.tessaly"),
            QStringLiteral("6F1C2D3E-0000-4000-8000-00000000000A.tessaly"),
            QStringLiteral("{6f1c2d3e-0000-4000-8000-00000000000b}.tessaly") };
        for (const QString &name : foreign)
            QVERIFY(QDir().mkpath(at(name)));
        QVERIFY(writeFile(m_files.packagePath(sampleId(7)), "a file")); // not a folder
        const auto loaded = m_files.load();
        QCOMPARE(loaded.entries, m_entries);
        QVERIFY(!loaded.repaired);
        QVERIFY(!m_files.write(test::samplePackage(8), sampleEntry(8)));
        QVERIFY(!m_files.write(sampleEntry(8)));
        QVERIFY(m_files.remove({ sampleId(8) })); // takes the link, at most
        QVERIFY(TessalyDocument::contents(elsewhere.packagePath(sampleId(8))));
        QVERIFY(elsewhere.readEntry(sampleId(8)));
    }

    void removesWholePackages()
    {
        QVERIFY(m_files.remove({ sampleId(2) }) && m_files.remove({ sampleId(2) }));
        QCOMPARE(test::idsOf(m_files.load().entries), QList({ sampleId(3), sampleId(1) }));
        QVERIFY(namesIn(m_files.directory).filter(QStringLiteral(".removed")).isEmpty());
        QVERIFY(!m_files.write(m_entries[1])); // nothing to write it into
    }

    void replacesTheEntryInItsPackage()
    {
        const QByteArray image = fileContent(imageFile(2));
        HistoryEntry entry = m_entries[1];
        entry.recognizedText = QStringLiteral("new");
        QVERIFY(QFile::remove(entryFile(2)) && QFile::link(QStringLiteral("../../outside"), entryFile(2)));
        QVERIFY(m_files.write(entry)); // replaces the link, and writes nothing outside
        QCOMPARE(*m_files.readEntry(entry.id), entry);
        QCOMPARE(fileContent(imageFile(2)), image);
        QCOMPARE(namesIn(m_root->path()), QStringList { "data" });
    }
};

QTEST_GUILESS_MAIN(HistoryStoreTest)
#include "HistoryStoreTest.moc"
