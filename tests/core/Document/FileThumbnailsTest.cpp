// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Document/FileThumbnails.h"

#include "core/Document/PackageFolder.h"
#include "tests/support/PatientTest.h"
#include "tests/support/Rows.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace tessaly;

class FileThumbnailsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    void put(const QString &name, QSize size, Qt::GlobalColor color) const
    {
        QDir(m_folder.path()).mkpath(QFileInfo(path(name)).path());
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(color);
        QVERIFY(picture.save(path(name), "PNG"));
    }

private Q_SLOTS:
    void initTestCase()
    {
        put(QStringLiteral("wide.png"), { 200, 50 }, Qt::red);
        put(QStringLiteral("small.png"), { 20, 10 }, Qt::green);
        for (const char *name : { "whole.tessaly", "bare.tessaly", "unnamed" }) {
            put(QLatin1StringView(name) + QStringLiteral("/image.png"), { 50, 200 }, Qt::red);
            QFile json(path(QLatin1StringView(name) + QStringLiteral("/document.json")));
            QVERIFY(json.open(QIODevice::WriteOnly));
        }
        put(QStringLiteral("whole.tessaly/") + QLatin1StringView(PackageFolder::thumbnailName), { 100, 100 }, Qt::blue);
        QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("folder")));
        QCOMPARE(::mkfifo(QFile::encodeName(path(QStringLiteral("pipe.png"))).constData(), 0600), 0);
    }

    void picturesOfFiles_data()
    {
        test::columns<QString, QSize, QColor>("name", "size", "color");
        test::row("shrunk", QStringLiteral("wide.png"), QSize(40, 10), QColor(Qt::red));
        test::row("never enlarged", QStringLiteral("small.png"), QSize(20, 10), QColor(Qt::green));
        test::row("a document's own", QStringLiteral("whole.tessaly"), QSize(40, 40), QColor(Qt::blue));
        test::row("made of its capture", QStringLiteral("bare.tessaly"), QSize(10, 40), QColor(Qt::red));
        test::row("a document by its content", QStringLiteral("unnamed"), QSize(10, 40), QColor(Qt::red));
        test::row("a folder", QStringLiteral("folder"), QSize(), QColor());
        test::row("a pipe", QStringLiteral("pipe.png"), QSize(), QColor());
        test::row("gone", QStringLiteral("gone.tessaly"), QSize(), QColor());
    }

    void picturesOfFiles()
    {
        QFETCH(QString, name);
        QFETCH(QSize, size);
        FileThumbnails thumbnails({ 40, 40 });
        QSignalSpy ready(&thumbnails, &FileThumbnails::ready);
        QVERIFY(thumbnails.thumbnail(path(name)).isNull());
        thumbnails.read(path(name));
        thumbnails.read(path(name));
        QTRY_COMPARE(ready.size(), 1);
        const QImage picture = thumbnails.thumbnail(path(name));
        QCOMPARE(picture.isNull(), size.isEmpty());
        if (size.isEmpty())
            return;
        QCOMPARE(picture.size(), size);
        QTEST(picture.pixelColor(5, 5), "color");
        thumbnails.forget();
        QVERIFY(thumbnails.thumbnail(path(name)).isNull());
    }

    void whatIsForgottenDoesNotCome()
    {
        FileThumbnails thumbnails({ 40, 40 });
        QSignalSpy ready(&thumbnails, &FileThumbnails::ready);
        thumbnails.read(path(QStringLiteral("wide.png")));
        thumbnails.forget();
        thumbnails.read(path(QStringLiteral("small.png")));
        QTRY_COMPARE(ready.size(), 1);
        QCOMPARE(ready.first().first().toString(), path(QStringLiteral("small.png")));
        QVERIFY(thumbnails.thumbnail(path(QStringLiteral("wide.png"))).isNull());
    }
};

QTEST_GUILESS_MAIN(FileThumbnailsTest)
#include "FileThumbnailsTest.moc"
