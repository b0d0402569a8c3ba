// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/EditorZoom.h"
#include "tests/support/Rows.h"

#include <QSignalSpy>

using namespace tessaly;

/// Steps, limits and fits of the view's magnification.
class EditorZoomTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stepsKeepWithinTheLimits_data()
    {
        test::columns<double, double, double>("from", "zoomedIn", "zoomedOut");
        test::row("100 %", 1.0, 1.25, 0.8);
        test::row("near the top", 3.5, 4.0, 2.8);
        test::row("at the top", 4.0, 4.0, 3.2);
        test::row("near the bottom", 0.3, 0.375, 0.25);
        test::row("below the bottom, after a fit", 0.1, 0.125, 0.25);
    }
    void stepsKeepWithinTheLimits()
    {
        QFETCH(double, from);
        EditorZoom zoom;
        zoom.setScale(from);
        zoom.zoomIn();
        QTEST(zoom.scale(), "zoomedIn");
        zoom.setScale(from);
        zoom.zoomOut();
        QTEST(zoom.scale(), "zoomedOut");
    }

    void fitsTheWholePicture_data()
    {
        // scale: from 2
        test::columns<QSizeF, QSizeF, double>("viewport", "picture", "scale");
        test::row("wide", QSizeF(848, 648), QSizeF(1600, 400), 0.5);
        test::row("high", QSizeF(848, 648), QSizeF(400, 1200), 0.5);
        test::row("huge", QSizeF(848, 648), QSizeF(10000, 10000), 0.1);
        test::row("tiny", QSizeF(848, 648), QSizeF(10, 10), 4.0);
        test::row("less room than air", QSizeF(20, 20), QSizeF(2, 2), 0.5);
        test::row("no picture", QSizeF(848, 648), QSizeF(0, 10), 2.0);
        test::row("no room yet", QSizeF(), QSizeF(100, 100), 2.0);
    }
    void fitsTheWholePicture()
    {
        QFETCH(QSizeF, viewport);
        QFETCH(QSizeF, picture);
        EditorZoom zoom;
        zoom.setScale(2);
        zoom.setViewportSize(viewport);
        zoom.fit(picture);
        QTEST(zoom.scale(), "scale");
    }

    void tellsChangesOnly()
    {
        EditorZoom zoom;
        QSignalSpy changes(&zoom, &EditorZoom::changed);
        zoom.setScale(9);
        zoom.zoomIn();
        QCOMPARE(changes.size(), 1);
        zoom.actualSize();
        QCOMPARE(changes.size(), 2);
    }
};

QTEST_GUILESS_MAIN(EditorZoomTest)
#include "EditorZoomTest.moc"
