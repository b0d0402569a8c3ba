// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/DragOut.h"

#include "tests/support/SamplePictures.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace tessaly;
using namespace tessaly::test;

class DragOutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void givesPngDataAndAFile()
    {
        const QTemporaryDir folder;
        const RasterImage picture = RasterImage::fromPixels(samplePicture({ 31, 17 }, Transparency::Soft), 2);
        const DragOutData data(picture, QStringLiteral("Tessaly 2024-05-01 at 14.03.22"), folder.path());
        QCOMPARE(data.formats(), QStringList({ QStringLiteral("text/uri-list"), QStringLiteral("image/png") }));
        QVERIFY(QDir(folder.path()).isEmpty()); // nobody has asked yet

        const QByteArray png = data.data(QStringLiteral("image/png"));
        const QImage read = QImage::fromData(png, "PNG");
        QCOMPARE(read.size(), QSize(31, 17));
        QCOMPARE(read.dotsPerMeterX(), qRound(144 / 0.0254));
        QVERIFY(QDir(folder.path()).isEmpty());

        QCOMPARE(data.urls().size(), 1);
        const QString path = data.urls().first().toLocalFile();
        QCOMPARE(path, folder.filePath(QStringLiteral("Drag/Tessaly 2024-05-01 at 14.03.22.png")));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), png);
        QCOMPARE(data.data(QStringLiteral("text/uri-list")), QUrl::fromLocalFile(path).toEncoded() + "\r\n");
        QVERIFY(data.data(QStringLiteral("image/jpeg")).isEmpty());
    }

    void givesTheDataWhereNoFileCanBe()
    {
        const DragOutData data(RasterImage::fromPixels(samplePicture({ 3, 2 }, Transparency::None)),
            QStringLiteral("a"), QStringLiteral("/dev/null"));
        QVERIFY(data.urls().isEmpty());
        QVERIFY(!data.data(QStringLiteral("image/png")).isEmpty());
    }

    void theThumbnailKeepsTheRatio()
    {
        const DragOutData data(RasterImage::fromPixels(samplePicture({ 400, 100 }, Transparency::None)), {}, {});
        QCOMPARE(data.thumbnail({ 160, 120 }).size(), QSize(160, 40));
    }

    void withoutAPictureThereIsNoDrag()
    {
        int asked = 0;
        DragOutHandle handle([&] {
            ++asked;
            return std::unique_ptr<DragOutData>();
        });
        QTest::mousePress(&handle, Qt::LeftButton, {}, { 5, 5 });
        const auto moveTo = [&](QPoint position) {
            QMouseEvent move(
                QEvent::MouseMove, position, handle.mapToGlobal(position), Qt::NoButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(&handle, &move);
        };
        moveTo({ 6, 5 });
        QCOMPARE(asked, 0); // too short for a drag
        moveTo({ 40, 5 });
        QCOMPARE(asked, 1);
        QVERIFY(!handle.isDown());
    }
};

QTEST_MAIN(DragOutTest)
#include "DragOutTest.moc"
