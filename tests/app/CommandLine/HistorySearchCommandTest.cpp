// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/ImageEncoder.h"
#include "core/History/HistoryKeeper.h"
#include "tests/app/CommandLine/CommandRun.h"

#include <QTest>

using namespace tessaly;

/// A search reads the text of captures that nobody has read.
class HistorySearchCommandTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    int m_readings = 0;

    static HistoryStore files() { return { HistoryStore::defaultDirectory() }; }
    static std::optional<QString> textOf(const HistoryEntry &entry)
    {
        const auto read = files().readEntry(entry.id);
        return read ? read->recognizedText : std::nullopt;
    }

    static HistoryEntry put(QSize size, const std::optional<QString> &text)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::white);
        const auto png = encodeImage(RasterImage::fromPixels(image), ExportFormat::Png, {});
        const auto package = TessalyDocument::package(AnnotationDocument(), *png, std::nullopt);
        const QDateTime now = QDateTime::currentDateTimeUtc();
        const HistoryEntry entry { QUuid::createUuid(), "Screenshot", now, now, size.width(), size.height(), text };
        const Outcome outcome = HistoryKeeper(files()).put(*package, entry);
        if (!outcome)
            qFatal("%s", qPrintable(outcome.failure().message));
        return entry;
    }

    /// A picture says its width; one of a single pixel cannot be read.
    test::Finished search(const QStringList &arguments)
    {
        const auto answer = [this](const TextRecognizer::Request &request) -> Result<RecognizedContent> {
            ++m_readings;
            if (request.image.pixelSize().width() == 1)
                return Failure { "It is too small." };
            return RecognizedContent { { { QString::number(request.image.pixelSize().width()), {} } }, {} };
        };
        return test::runCommand(QStringList { "history", "search" } + arguments,
            { {}, [answer] { return std::make_unique<test::ScriptedRecognizer>(answer); } });
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        for (const char *name : { "XDG_CONFIG_HOME", "XDG_DATA_HOME" })
            qputenv(name, m_folder->filePath(name).toLocal8Bit());
        m_readings = 0;
    }

    void whatIsUnreadIsReadFirst()
    {
        const HistoryEntry unread = put({ 4711, 2 }, std::nullopt);
        put({ 5, 2 }, QStringLiteral("read before"));
        const test::Finished first = search({ "4711" });
        QCOMPARE(first.messages, QString());
        QVERIFY(first.output.startsWith(unread.id.toByteArray(QUuid::WithoutBraces).first(8)));
        QCOMPARE(textOf(unread), QStringLiteral("4711"));
        QCOMPARE(search({ "4711" }).output, first.output);
        QCOMPARE(m_readings, 1);
    }

    void notWhenThatIsUnwanted()
    {
        const HistoryEntry unread = put({ 4711, 2 }, std::nullopt);
        QVERIFY(search({ "4711", "--no-recognition" }).output.isEmpty());
        QCOMPARE(m_readings, 0);
        QVERIFY(!textOf(unread));
    }

    /// The words of its marks were known before its picture was read.
    void wordsOfMarksStay()
    {
        const HistoryEntry unread = put({ 4711, 2 }, QStringLiteral("\fnote"));
        QVERIFY(!search({ "4711", "note" }).output.isEmpty());
        QCOMPARE(textOf(unread), QStringLiteral("4711\n\fnote"));
    }

    void aRunningTessalyKeepsTheTextsItself()
    {
        const HistoryEntry unread = put({ 4711, 2 }, std::nullopt);
        HistoryKeeper keeper(files());
        QCOMPARE(keeper.role(), HistoryKeeper::Role::Keeper);
        QVERIFY(!search({ "4711" }).output.isEmpty());
        QVERIFY(QDir(keeper.mailboxPath()).isEmpty());
        QVERIFY(!textOf(unread));
    }

    void whatCannotBeReadStopsNothing()
    {
        const HistoryEntry tiny = put({ 1, 1 }, std::nullopt);
        const HistoryEntry damaged = put({ 9, 9 }, std::nullopt);
        put({ 4711, 2 }, std::nullopt);
        QVERIFY(QFile::remove(files().packagePath(damaged.id) + "/image.png"));
        const test::Finished finished = search({ "4711" });
        QCOMPARE(finished.status, 0);
        QCOMPARE(finished.output.count("4711"), 2); // the size and the text
        QVERIFY2(test::onlyLine(finished).contains("2 of the captures"), qPrintable(finished.messages));
        QVERIFY(!textOf(tiny));
    }

    void withoutARecognizer()
    {
        put({ 4711, 2 }, std::nullopt);
        put({ 5, 2 }, QStringLiteral("read before"));
        const auto finished = test::runCommand({ "history", "search", "before" }, { {}, [] { return nullptr; } });
        QCOMPARE(finished.status, 0);
        QVERIFY(finished.output.contains("read before"));
        QCOMPARE(finished.messageLines().size(), 1);
    }
};

QTEST_GUILESS_MAIN(HistorySearchCommandTest)
#include "HistorySearchCommandTest.moc"
