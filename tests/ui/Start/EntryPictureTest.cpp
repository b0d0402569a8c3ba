// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/EntryPicture.h"

#include "tests/ui/Start/StartFixture.h"

#include <QMimeData>
#include <QUrl>

using namespace tessaly;
using namespace tessaly::test;

/// What is copied and dragged is the finished picture: red with a black mark in its corner.
class EntryPictureTest : public QObject {
    Q_OBJECT

    static bool isFinished(const QImage &image)
    {
        return image.size() == QSize(40, 30) && image.pixelColor(4, 4) == Qt::black
            && image.pixelColor(35, 25) == Qt::red;
    }

private Q_SLOTS:
    void flattensThePackage()
    {
        const StartFixture fixture;
        const QString path = fixture.files.packagePath(fixture.fill({ QStringLiteral("a") }).first().id);
        const auto picture = EntryPicture::flattened(path);
        QVERIFY(picture);
        QVERIFY(isFinished(picture->pixels));
        QFile::remove(path + QStringLiteral("/image.png"));
        const auto damaged = EntryPicture::flattened(path);
        QVERIFY(!damaged);
        QCOMPARE(damaged.failure().message, "The document is damaged or incomplete.");
    }

    void aDragCarriesPngAndFile()
    {
        const StartFixture fixture;
        const QString path = fixture.files.packagePath(fixture.fill({ QStringLiteral("a") }).first().id);
        const auto data = EntryPicture::dragData(path, QStringLiteral("Tessaly 2024-05-01 at 14.03.22"));
        QVERIFY(isFinished(QImage::fromData(data->data(QStringLiteral("image/png")))));
        QCOMPARE(data->urls().size(), 1);
        const QString file = data->urls().first().toLocalFile();
        QVERIFY(file.endsWith(u"/Tessaly 2024-05-01 at 14.03.22.png"));
        QVERIFY(isFinished(QImage(file)));
        const auto nothing = EntryPicture::dragData(fixture.folder.path(), QStringLiteral("none"));
        QVERIFY(nothing->data(QStringLiteral("image/png")).isEmpty());
        QVERIFY(nothing->urls().isEmpty());
    }

    void onlyTheNewestRequestIsAnswered()
    {
        const StartFixture fixture;
        const auto entries = fixture.fill({ QStringLiteral("a"), QStringLiteral("b") });
        EntryPicture maker;
        QStringList answers;
        maker.make(
            fixture.files.packagePath(entries.at(0).id), [&answers](const auto &) { answers += QStringLiteral("a"); });
        maker.make(fixture.files.packagePath(entries.at(1).id),
            [&answers](const auto &picture) { answers += picture ? QStringLiteral("b") : QStringLiteral("failed"); });
        QVERIFY(answers.isEmpty());
        QTRY_COMPARE(answers, QStringList { QStringLiteral("b") });
    }
};

QTEST_MAIN(EntryPictureTest)
#include "EntryPictureTest.moc"
