// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Desktop/DroppedContent.h"

#include "tests/support/Rows.h"

#include <QImage>
#include <QMimeData>
#include <QSysInfo>
#include <QUrl>

using namespace tessaly;

class DroppedContentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isReadAsOffered_data()
    {
        test::columns<QStringList, bool, QStringList, bool, bool>("urls", "image", "paths", "picture", "links");
        const QStringList none, link { "https://example.org/a.png" };
        test::row("nothing", none, false, none, false, false);
        test::row("files and folders, each once",
            QStringList { "file:///a/b%20c.png", "file:///a/d.tessaly/", "file:///a/d.tessaly" }, false,
            QStringList { "/a/b c.png", "/a/d.tessaly" }, false, false);
        test::row("this machine named",
            QStringList { "file://localhost/a", "file://" + QSysInfo::machineHostName() + "/b" }, false,
            QStringList { "/a", "/b" }, false, false);
        test::row("another machine", QStringList { "file://elsewhere.invalid/a" }, false, none, false, true);
        test::row("a link alone", link, false, none, false, true);
        test::row("a browser's picture", link, true, none, true, false);
        test::row("a picture alone", none, true, none, true, false);
        test::row(
            "a file with its picture", QStringList { "file:///a.png" }, true, QStringList { "/a.png" }, false, false);
        test::row(
            "a file and a link", link + QStringList { "file:///a.png" }, false, QStringList { "/a.png" }, false, true);
    }

    void isReadAsOffered()
    {
        QFETCH(QStringList, urls);
        QFETCH(bool, image);
        QFETCH(bool, picture);
        QMimeData data;
        if (!urls.isEmpty())
            data.setUrls(QUrl::fromStringList(urls));
        QImage pixels(3, 2, QImage::Format_RGB32);
        pixels.fill(Qt::red);
        if (image)
            data.setImageData(pixels);
        const DroppedContent content = DroppedContent::taken(data);
        QTEST(content.paths, "paths");
        QCOMPARE(content.hasPicture, picture);
        QCOMPARE(QImage::fromData(content.picture), picture ? pixels : QImage());
        QTEST(content.hasLinks, "links");
        QTEST(!content.refusal().isEmpty(), "links");
    }
};

QTEST_GUILESS_MAIN(DroppedContentTest)
#include "DroppedContentTest.moc"
