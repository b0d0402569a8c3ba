// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/RecentPictures.h"

#include "tests/support/PatientTest.h"

#include <QMenu>
#include <QTemporaryDir>

using namespace tessaly;

class RecentPicturesTest : public QObject {
    Q_OBJECT

    static QColor colorIn(const QAction &row) { return row.icon().pixmap(32).toImage().pixelColor(16, 16); }

private Q_SLOTS:
    /// The rows are made anew whenever the menu opens, and the file may have changed meanwhile.
    void rowsShowTheirFiles()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.png"));
        QImage picture(100, 80, QImage::Format_RGB32);
        QMenu menu;
        connect(&menu, &QMenu::aboutToShow, this, [&] {
            menu.clear();
            menu.addAction(QStringLiteral("a"))->setData(path);
            menu.addAction(QStringLiteral("gone"))->setData(folder.filePath(QStringLiteral("gone.tessaly")));
            menu.addSeparator();
            menu.addAction(QStringLiteral("Clear Menu"));
        });
        RecentPictures pictures(menu);
        for (const QColor color : { QColor(Qt::red), QColor(Qt::blue) }) {
            picture.fill(color);
            QVERIFY(picture.save(path));
            menu.popup({});
            QVERIFY(!menu.actions().at(0)->icon().isNull()); // no text moves when the picture comes
            QTRY_COMPARE(colorIn(*menu.actions().at(0)), color);
            QVERIFY(!menu.actions().at(1)->icon().isNull());
            QVERIFY(menu.actions().at(3)->icon().isNull());
            menu.hide();
        }
    }
};

QTEST_MAIN(RecentPicturesTest)
#include "RecentPicturesTest.moc"
