// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryThumbnails.h"

#include "tests/support/PatientTest.h"
#include "tests/support/Rows.h"
#include "tests/support/SamplePictures.h"

#include <QBuffer>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace tessaly;
using namespace tessaly::test;

class HistoryThumbnailsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    const HistoryStore m_files { m_folder.filePath(QStringLiteral("History")) };
    const QDateTime m_modified { QDate(2024, 5, 1), QTime(14, 3) };

    static QByteArray png(QSize size, QColor color)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return buffer.data();
    }

    /// Writes files into the package of an entry; their paths in it, and their bytes.
    void put(const QUuid &id, const QList<QPair<QString, QByteArray>> &files) const
    {
        for (const auto &[name, bytes] : files) {
            const QString path = m_files.packagePath(id) + u'/' + name;
            QDir().mkpath(QFileInfo(path).path());
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            QCOMPARE(file.write(bytes), bytes.size());
        }
    }

    QUuid captureOf(QSize size, QColor color = Qt::red) const
    {
        const QUuid id = QUuid::createUuid();
        put(id, { { QStringLiteral("QuickLook/Thumbnail.png"), png(size, color) } });
        return id;
    }

private Q_SLOTS:
    void readsWhatThePackageHolds_data()
    {
        using Files = QList<QPair<QString, QByteArray>>;
        const QString thumbnail = QStringLiteral("QuickLook/Thumbnail.png"), image = QStringLiteral("image.png");
        columns<Files, QSize, QColor>("files", "size", "color");

        row("its thumbnail",
            Files { { thumbnail, png({ 400, 200 }, Qt::red) }, { image, png({ 800, 400 }, Qt::blue) } }, QSize(160, 80),
            QColor(Qt::red));
        row("without one, the capture", Files { { image, png({ 800, 400 }, Qt::blue) } }, QSize(160, 80),
            QColor(Qt::blue));
        row("for a damaged one, the capture",
            Files { { thumbnail, png({ 400, 200 }, Qt::red).chopped(30) }, { image, png({ 300, 300 }, Qt::blue) } },
            QSize(100, 100), QColor(Qt::blue));
        row("never enlarged", Files { { thumbnail, png({ 40, 30 }, Qt::green) } }, QSize(40, 30), QColor(Qt::green));
        row("tall", Files { { thumbnail, png({ 100, 1000 }, Qt::green) } }, QSize(10, 100), QColor(Qt::green));
        row("a line", Files { { thumbnail, png({ 1000, 1 }, Qt::green) } }, QSize(160, 1), QColor(Qt::green));
    }

    void readsWhatThePackageHolds()
    {
        using Files = QList<QPair<QString, QByteArray>>;
        QFETCH(Files, files);
        QFETCH(QSize, size);
        QFETCH(QColor, color);
        const QUuid id = QUuid::createUuid();
        put(id, files);
        HistoryThumbnails thumbnails(m_files);
        QSignalSpy ready(&thumbnails, &HistoryThumbnails::ready);
        QVERIFY(thumbnails.thumbnail(id, m_modified, { 160, 100 }).isNull()); // not on this thread
        QVERIFY(ready.wait(test::patience));
        QCOMPARE(ready.takeFirst().at(0).toUuid(), id);
        const QImage image = thumbnails.thumbnail(id, m_modified, { 160, 100 });
        QCOMPARE(image.size(), size);
        QCOMPARE(image.pixelColor(size.width() / 2, size.height() / 2), color);
    }

    void aPictureIsReadOnceForATimeAndASize()
    {
        const QUuid id = captureOf({ 400, 200 });
        HistoryThumbnails thumbnails(m_files);
        QSignalSpy ready(&thumbnails, &HistoryThumbnails::ready);
        thumbnails.thumbnail(id, m_modified, { 100, 100 });
        thumbnails.thumbnail(id, m_modified, { 100, 100 }); // while it is being read
        QVERIFY(ready.wait(test::patience));
        QDir(m_files.packagePath(id)).removeRecursively();
        QCOMPARE(thumbnails.thumbnail(id, m_modified, { 100, 100 }).size(), QSize(100, 50)); // out of memory

        put(id, { { QStringLiteral("QuickLook/Thumbnail.png"), png({ 300, 300 }, Qt::blue) } });
        const QDateTime later = m_modified.addSecs(1);
        QCOMPARE(thumbnails.thumbnail(id, later, { 100, 100 }).size(), QSize(100, 50)); // what is known so far
        QVERIFY(ready.wait(test::patience));
        QCOMPARE(thumbnails.thumbnail(id, later, { 100, 100 }).size(), QSize(100, 100));
        QCOMPARE(thumbnails.thumbnail(id, later, { 50, 50 }).size(), QSize(100, 100));
        QVERIFY(ready.wait(test::patience));
        QCOMPARE(thumbnails.thumbnail(id, later, { 50, 50 }).size(), QSize(50, 50));
        QCOMPARE(ready.size(), 3);
    }

    void whatIsNotWantedAnyMoreIsNotRead()
    {
        QList<QUuid> ids;
        for (int index = 0; index < 60; ++index)
            ids += captureOf({ 1024, 640 });
        HistoryThumbnails thumbnails(m_files);
        QSignalSpy ready(&thumbnails, &HistoryThumbnails::ready);
        for (const QUuid &id : std::as_const(ids))
            thumbnails.thumbnail(id, m_modified, { 160, 100 });
        const QUuid wanted = ids.first();
        thumbnails.setWanted({ wanted });
        QTRY_VERIFY(!thumbnails.thumbnail(wanted, m_modified, { 160, 100 }).isNull());
        QVERIFY2(ready.size() < 30, qPrintable(QString::number(ready.size()))); // what was begun comes, too
        // What was dropped can be asked for again.
        thumbnails.thumbnail(ids.last(), m_modified, { 160, 100 });
        QTRY_VERIFY(!thumbnails.thumbnail(ids.last(), m_modified, { 160, 100 }).isNull());
    }

    void whatWasAskedForLastIsReadFirst()
    {
        QList<QUuid> ids;
        for (int index = 0; index < 40; ++index)
            ids += captureOf({ 1024, 640 });
        HistoryThumbnails thumbnails(m_files);
        QList<QUuid> order;
        connect(&thumbnails, &HistoryThumbnails::ready, this, [&order](const QUuid &id) { order += id; });
        for (const QUuid &id : std::as_const(ids))
            thumbnails.thumbnail(id, m_modified, { 160, 100 });
        QTRY_COMPARE(order.size(), ids.size());
        // Those that were begun before the last was asked for come before it, at most.
        QVERIFY(order.indexOf(ids.last()) < ids.size() / 2);
        QVERIFY(order.indexOf(ids.last()) < order.indexOf(ids.at(ids.size() / 2)));
    }

    void damagedPicturesStayEmptyAndAreNotReadAgain()
    {
        const QUuid id = QUuid::createUuid();
        put(id,
            { { QStringLiteral("QuickLook/Thumbnail.png"), "no picture" },
                { QStringLiteral("image.png"), "nor this" } });
        const QUuid good = captureOf({ 40, 40 });
        HistoryThumbnails thumbnails(m_files);
        QSignalSpy ready(&thumbnails, &HistoryThumbnails::ready),
            unreadable(&thumbnails, &HistoryThumbnails::unreadable);
        QVERIFY(thumbnails.thumbnail(id, m_modified, { 50, 50 }).isNull());
        QVERIFY(!thumbnails.isUnreadable(id, m_modified, { 50, 50 })); // not known yet
        QVERIFY(unreadable.wait(test::patience));
        QCOMPARE(unreadable.first().at(0).toUuid(), id);
        QVERIFY(thumbnails.isUnreadable(id, m_modified, { 50, 50 }));
        put(id, { { QStringLiteral("image.png"), png({ 40, 40 }, Qt::red) } });
        QVERIFY(thumbnails.thumbnail(id, m_modified, { 50, 50 }).isNull());
        thumbnails.thumbnail(good, m_modified, { 50, 50 }); // would be read after it
        QVERIFY(ready.wait(test::patience));
        QCOMPARE(ready.size(), 1);
        QVERIFY(thumbnails.thumbnail(id, m_modified, { 50, 50 }).isNull());
        thumbnails.thumbnail(id, m_modified.addSecs(1), { 50, 50 }); // written anew
        QTRY_VERIFY(!thumbnails.thumbnail(id, m_modified.addSecs(1), { 50, 50 }).isNull());
    }

    void linksAreNotFollowed()
    {
        const QUuid id = QUuid::createUuid(), other = captureOf({ 90, 90 });
        put(id, { { QStringLiteral("image.png"), png({ 40, 40 }, Qt::blue) } });
        QVERIFY(QFile::link(m_files.packagePath(other) + QStringLiteral("/QuickLook"),
            m_files.packagePath(id) + QStringLiteral("/QuickLook")));
        HistoryThumbnails thumbnails(m_files);
        thumbnails.thumbnail(id, m_modified, { 100, 100 });
        QTRY_COMPARE(thumbnails.thumbnail(id, m_modified, { 100, 100 }).size(), QSize(40, 40));
    }

    void aPackageThatIsStillBeingWrittenIsFound()
    {
        const QUuid id = QUuid::createUuid();
        HistoryThumbnails thumbnails(m_files);
        QSignalSpy ready(&thumbnails, &HistoryThumbnails::ready);
        QVERIFY(thumbnails.thumbnail(id, m_modified, { 50, 50 }).isNull());
        const QUuid marker = captureOf({ 10, 10 }); // read after the missing one has been looked for
        thumbnails.thumbnail(marker, m_modified, { 50, 50 });
        QVERIFY(ready.wait(test::patience));
        put(id, { { QStringLiteral("image.png"), png({ 40, 40 }, Qt::blue) } });
        QTRY_VERIFY(!thumbnails.thumbnail(id, m_modified, { 50, 50 }).isNull());
    }

    void endsWhileItReads()
    {
        for (int index = 0; index < 30; ++index) {
            HistoryThumbnails thumbnails(m_files);
            for (int count = 0; count < 5; ++count)
                thumbnails.thumbnail(captureOf({ 300, 300 }), m_modified, { 160, 100 });
        }
    }
};

QTEST_GUILESS_MAIN(HistoryThumbnailsTest)
#include "HistoryThumbnailsTest.moc"
