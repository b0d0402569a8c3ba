// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Document/TessalyDocument.h"
#include "core/Annotation/AnnotationStore.h"
#include "core/Preferences/Settings.h"
#include "tests/support/Rows.h"
#include "tests/support/TestFiles.h"

#include <QColorSpace>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace tessaly;
using test::fileContent;
using test::namesIn;
using test::writeFile;

Q_DECLARE_METATYPE(TessalyDocument::Failure)

namespace {

RasterImage picture(QSize pixels, double scale = 1)
{
    QImage image(pixels, QImage::Format_RGB32);
    for (int y = 0; y < pixels.height(); ++y) {
        for (int x = 0; x < pixels.width(); ++x)
            image.setPixel(x, y, qRgb(x * 7 % 256, y * 11 % 256, (x + y) % 256));
    }
    return RasterImage::fromPixels(image, scale);
}

} // namespace

class TessalyDocumentTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    Settings m_settings { QString() };

    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// A fresh package of a small picture; `json` replaces its document.
    QString packageAt(const QString &name, const QByteArray &json = {})
    {
        const AnnotationStore store(picture({ 40, 20 }, 2), m_settings);
        auto package = TessalyDocument::package(store);
        Q_ASSERT(package);
        if (!json.isEmpty())
            package->documentJson = json;
        QDir(path(name)).removeRecursively();
        const Outcome written = TessalyDocument::write(*package, path(name));
        Q_ASSERT(written);
        return path(name);
    }

private Q_SLOTS:
    void thumbnailsAreAtMost1024PixelsLong_data()
    {
        test::columns<QSize, QSize>("pixels", "thumbnail");
        test::row("wide", QSize(3000, 1000), QSize(1024, 341));
        test::row("small ones stay", QSize(500, 300), QSize(500, 300));
        test::row("a line keeps one pixel", QSize(5000, 1), QSize(1024, 1));
        test::row("a half rounds up", QSize(2048, 1001), QSize(1024, 501));
        test::row("tall", QSize(10, 4096), QSize(3, 1024));
    }

    void thumbnailsAreAtMost1024PixelsLong()
    {
        QFETCH(QSize, pixels);
        const auto png = TessalyDocument::thumbnailPng(picture(pixels, 2));
        QVERIFY(png);
        QTEST(QImage::fromData(*png, "PNG").size(), "thumbnail");
        QVERIFY(!TessalyDocument::thumbnailPng({}));
    }

    void whatIsWrittenIsReadBack()
    {
        AnnotationStore store(picture({ 2400, 600 }, 2), m_settings);
        Snapshot snapshot = store.currentSnapshot();
        snapshot.annotations = { { AnnotationKind::Rectangle, { 10, 20 }, { 300, 200 } },
            { AnnotationKind::Arrow, { 5, 5 }, { 600, 250 } } };
        snapshot.nextStampNumber = 4;
        snapshot.frame = FrameStyle { .padding = 0.2 };
        snapshot.watermark = Watermark { .opacity = 0.25 };
        store.restore(snapshot);
        const auto package = TessalyDocument::package(store);
        QVERIFY(package);
        QVERIFY(TessalyDocument::write(*package, path("whole.tessaly")));
        QCOMPARE(namesIn(path("whole.tessaly")), QStringList({ "QuickLook", "document.json", "image.png" }));
        QCOMPARE(QImage(path("whole.tessaly/QuickLook/Thumbnail.png")).width(), 1024);

        const auto contents = TessalyDocument::contents(path("whole.tessaly"));
        QVERIFY(contents);
        QImage pixels = contents->image.pixels;
        pixels.setColorSpace({}); // a file says what memory need not
        QCOMPARE(pixels, snapshot.image.pixels);
        QCOMPARE(contents->image.pointSize, snapshot.image.pointSize);
        const AnnotationDocument &document = contents->document;
        QCOMPARE(document.annotations, snapshot.annotations);
        QCOMPARE(document.version, 1);
        QCOMPARE(document.canvasSize, QSizeF(1200, 300));
        QCOMPARE(document.pixelSize, QSizeF(2400, 600));
        QCOMPARE(document.nextStampNumber, 4);
        QVERIFY(document.frame == snapshot.frame && document.watermark == snapshot.watermark);
        QCOMPARE(document.generator, TessalyDocument::generator());
        QVERIFY(QRegularExpression("^Tessaly [0-9.]+ \\([0-9]+\\)$").match(TessalyDocument::generator()).hasMatch());
    }

    void packagesThatCannotBeRead_data()
    {
        using Spoil = std::function<void(const QString &)>;
        test::columns<Spoil, QString>("spoil", "detail");
        const auto row = [](const char *name, const char *detail, Spoil spoil) {
            QTest::newRow(name) << spoil << QString(detail);
        };
        row("no image", "image.png is missing", [](const QString &p) { QFile::remove(p + "/image.png"); });
        row("no document", "document.json is missing", [](const QString &p) { QFile::remove(p + "/document.json"); });
        row("the image is a folder", "image.png is not a file", [](const QString &p) {
            QFile::remove(p + "/image.png");
            QDir(p).mkdir("image.png");
        });
        row("the image is a link", "image.png is a symbolic link", [](const QString &p) {
            QFile::rename(p + "/image.png", p + "/../outside.png");
            QFile::link(p + "/../outside.png", p + "/image.png");
        });
        row("the document is a link", "document.json is a symbolic link", [](const QString &p) {
            QFile::remove(p + "/document.json");
            QFile::link("/etc/hostname", p + "/document.json");
        });
        row("a pipe does not hold it", "image.png is not a file", [](const QString &p) {
            QFile::remove(p + "/image.png");
            ::mkfifo(QFile::encodeName(p + "/image.png"), 0600);
        });
        row("cut image", "image.png", [](const QString &p) {
            const QByteArray png = fileContent(p + "/image.png");
            QVERIFY(writeFile(p + "/image.png", png.left(png.size() / 2)));
        });
        row("endless document", "document.json is too large",
            [](const QString &p) { QFile::resize(p + "/document.json", AnnotationDocument::maxJsonBytes + 1); });
        row("no folder", "not a folder", [](const QString &p) {
            QDir(p).removeRecursively();
            QVERIFY(writeFile(p, "text"));
        });
        row("nothing", "not a folder", [](const QString &p) { QDir(p).removeRecursively(); });
    }

    void packagesThatCannotBeRead()
    {
        QFETCH(std::function<void(const QString &)>, spoil);
        QFETCH(QString, detail);
        const QString package = packageAt("spoilt.tessaly");
        spoil(package);
        const auto contents = TessalyDocument::contents(package);
        QFile::remove(package); // in case it became a file
        QVERIFY(!contents);
        QCOMPARE(contents.failure(), TessalyDocument::Failure {});
        QCOMPARE(contents.failure().description(), "The document is damaged or incomplete.");
        QVERIFY2(contents.failure().detail.contains(detail), qPrintable(contents.failure().detail));
    }

    void versions_data()
    {
        // version: 0: damaged
        test::columns<QByteArray, int, bool>("json", "version", "opens");
        QTest::newRow("none is 1") << QByteArray(R"({"canvasSize":[20,10]})") << 1 << true;
        QTest::newRow("newer but readable") << QByteArray(R"({"version":7,"canvasSize":[20,10]})") << 7 << true;
        QTest::newRow("newer") << QByteArray(R"({"version":7,"canvasSize":{"w":20}})") << 7 << false;
        QTest::newRow("of ours, wrong") << QByteArray(R"({"version":1,"canvasSize":"big"})") << 0 << false;
        QTest::newRow("no version, wrong") << QByteArray(R"({"marks":[]})") << 0 << false;
        QTest::newRow("half a version") << QByteArray(R"({"version":7.5,"canvasSize":[20,10]})") << 0 << false;
        QTest::newRow("a version beyond numbers") << QByteArray(R"({"version":1e30})") << 0 << false;
        QTest::newRow("a version in text") << QByteArray(R"({"version":"7"})") << 0 << false;
        test::row("no JSON", QByteArray("version: 7"), 0, false);
    }

    void versions()
    {
        QFETCH(QByteArray, json);
        QFETCH(int, version);
        QFETCH(bool, opens);
        const auto contents = TessalyDocument::contents(packageAt("version.tessaly", json));
        QCOMPARE(static_cast<bool>(contents), opens);
        if (opens) {
            QCOMPARE(contents->document.version, version);
            return;
        }
        const auto kind
            = version > 0 ? TessalyDocument::FailureKind::NewerVersion : TessalyDocument::FailureKind::Damaged;
        QCOMPARE(contents.failure(), (TessalyDocument::Failure { .kind = kind, .version = version }));
        if (version > 0)
            QVERIFY(contents.failure().description().endsWith("Update Tessaly to open it."));
    }

    void pointSizeIsTheCanvasWhereThatMakesSense_data()
    {
        // points: of 40 × 20 pixels
        test::columns<QByteArray, QSizeF>("canvas", "points");
        test::row("two pixels a point", QByteArray("[20,10]"), QSizeF(20, 10));
        test::row("larger than the pixels", QByteArray("[80,40]"), QSizeF(80, 40));
        test::row("nothing", QByteArray("[0,0]"), QSizeF(40, 20));
        test::row("one side only", QByteArray("[20,0]"), QSizeF(40, 20));
        test::row("negative", QByteArray("[-20,-10]"), QSizeF(40, 20));
        test::row("beyond drawing", QByteArray("[1e300,1e300]"), QSizeF(40, 20));
        test::row("a speck", QByteArray("[1e-300,1e-300]"), QSizeF(40, 20));
        test::row("a strip", QByteArray("[20,1e7]"), QSizeF(40, 20));
    }

    void pointSizeIsTheCanvasWhereThatMakesSense()
    {
        QFETCH(QByteArray, canvas);
        const auto contents
            = TessalyDocument::contents(packageAt("canvas.tessaly", R"({"canvasSize":)" + canvas + '}'));
        QVERIFY(contents);
        QTEST(contents->image.pointSize, "points");
    }

    void aFailedWriteLeavesTheOldPackage()
    {
        const QString package = packageAt("kept.tessaly");
        const QByteArray before = fileContent(package + "/document.json");
        QImage noise(900, 900, QImage::Format_RGB32);
        for (int y = 0; y < noise.height(); ++y)
            QRandomGenerator(y).fillRange(reinterpret_cast<quint32 *>(noise.scanLine(y)), noise.width());
        const AnnotationStore store(RasterImage::fromPixels(noise), m_settings);
        const auto larger = TessalyDocument::package(store);
        QVERIFY(larger);

        // The disk is "full" after 4 KiB of a file.
        rlimit limit = {};
        ::getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit small { 4096, limit.rlim_max };
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &small);
        const Outcome written = TessalyDocument::write(*larger, package);
        ::setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, handler);

        QVERIFY(!written);
        QVERIFY2(written.failure().message.contains("kept.tessaly"), qPrintable(written.failure().message));
        QCOMPARE(fileContent(package + "/document.json"), before);
        QVERIFY(namesIn(m_folder.path()).filter("kept").size() == 1);

        QVERIFY(writeFile(package + "/note.txt", "of another program"));
        QVERIFY(TessalyDocument::write(*larger, package));
        QCOMPARE(namesIn(package), QStringList({ "QuickLook", "document.json", "image.png" }));
        QCOMPARE(TessalyDocument::contents(package)->image.pixelSize(), QSize(900, 900));
    }

    void aFolderThatIsNoDocumentIsNotReplaced()
    {
        QDir(m_folder.path()).mkpath("photos.tessaly");
        QVERIFY(writeFile(path("photos.tessaly/holiday.jpg"), "precious"));
        const Outcome written = TessalyDocument::write({ "{}", "png", {} }, path("photos.tessaly"));
        QVERIFY(!written);
        QCOMPARE(fileContent(path("photos.tessaly/holiday.jpg")), "precious");
    }

    void documentsAreKnownByNameOrContent()
    {
        const QString package = packageAt("plain");
        QVERIFY(TessalyDocument::isDocument(package));
        QVERIFY(TessalyDocument::isDocument("anything/x.tessaly"));
        QVERIFY(TessalyDocument::isDocument("x.tessaly/"));
        QVERIFY(!TessalyDocument::isDocument("x.TESSALY"));
        QVERIFY(!TessalyDocument::isDocument(m_folder.path()));
        QVERIFY(!TessalyDocument::isDocument(package + "/image.png"));
    }
};

QTEST_GUILESS_MAIN(TessalyDocumentTest)
#include "TessalyDocumentTest.moc"
