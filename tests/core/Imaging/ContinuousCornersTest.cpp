// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ContinuousCorners.h"

#include <QImage>
#include <QPainter>
#include <QTest>

#include <cmath>

using namespace tessaly;

namespace {

/// The area that the path covers, from its pixels at `scale`.
double filledArea(const QPainterPath &path, const QSize &size, double scale)
{
    QImage mask((QSizeF(size) * scale).toSize(), QImage::Format_Grayscale8);
    mask.fill(0);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.fillPath(path, Qt::white);
    painter.end();
    double sum = 0;
    for (int y = 0; y < mask.height(); ++y) {
        for (int x = 0; x < mask.width(); ++x)
            sum += mask.constScanLine(y)[x];
    }
    return sum / 255 / (scale * scale);
}

double polygonArea(const QPolygonF &polygon)
{
    double twice = 0;
    for (int index = 0; index + 1 < polygon.size(); ++index)
        twice += polygon[index].x() * polygon[index + 1].y() - polygon[index + 1].x() * polygon[index].y();
    return std::abs(twice) / 2;
}

/// What the superellipse x³ + y³ = 1 leaves of its unit square.
const double cornerShare = 1 - std::pow(std::tgamma(4.0 / 3), 2) / std::tgamma(5.0 / 3);

} // namespace

class ContinuousCornersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fillsTheExactArea_data()
    {
        QTest::addColumn<QRectF>("rect");
        QTest::addColumn<double>("radius");
        QTest::addColumn<double>("cornerSide");
        const double reach = (1 - std::sqrt(0.5)) / (1 - std::cbrt(0.5));
        QTest::newRow("small") << QRectF(1, 1, 60, 40) << 6.0 << 6 * reach;
        QTest::newRow("between pixels") << QRectF(1.25, 1.75, 60.5, 40.25) << 6.0 << 6 * reach;
        QTest::newRow("large") << QRectF(2, 3, 300, 280) << 90.0 << 90 * reach;
        QTest::newRow("limited by the height") << QRectF(1, 1, 90, 20) << 50.0 << 10.0;
        QTest::newRow("limited by the width") << QRectF(1, 1, 12, 64) << 6.0 << 6.0;
        QTest::newRow("endless") << QRectF(1, 1, 50, 50) << HUGE_VAL << 25.0;
        QTest::newRow("no radius") << QRectF(1, 1, 50, 30) << 0.0 << 0.0;
        QTest::newRow("negative radius") << QRectF(1, 1, 50, 30) << -4.0 << 0.0;
        QTest::newRow("no number") << QRectF(1, 1, 50, 30) << double(NAN) << 0.0;
        QTest::newRow("dragged from bottom right") << QRectF(61, 41, -60, -40) << 6.0 << 6 * reach;
    }

    void fillsTheExactArea()
    {
        QFETCH(QRectF, rect);
        QFETCH(double, radius);
        QFETCH(double, cornerSide);
        const QPainterPath path = continuousCornerPath(rect, radius);
        const QRectF box = rect.normalized();
        const double exact = box.width() * box.height() - 4 * cornerShare * cornerSide * cornerSide;
        const QSize size(int(box.right()) + 2, int(box.bottom()) + 2);
        const double drawn = polygonArea(path.toFillPolygon(QTransform::fromScale(256, 256))) / (256 * 256);
        QVERIFY2(std::abs(drawn - exact) < 0.001 * cornerSide * cornerSide + 1e-6,
            qPrintable(QStringLiteral("%1 for %2").arg(drawn).arg(exact)));
        for (const double scale : { 1.0, 4.0 }) {
            // The rasteriser may round the outline by a level, and it cuts bends short.
            const double outline = 2 * (box.width() + box.height()), bends = 8 * cornerSide;
            const double tolerance = (outline / 255 + bends * 0.06) / scale + 0.05;
            const double area = filledArea(path, size, scale);
            QVERIFY2(std::abs(area - exact) < tolerance, qPrintable(QStringLiteral("%1 for %2").arg(area).arg(exact)));
        }
        QVERIFY(box.adjusted(-1e-9, -1e-9, 1e-9, 1e-9).contains(path.boundingRect()));
    }

    void bendsWithoutAJump()
    {
        // Circles through neighbouring points of the corner: the bend starts at nothing and changes by small steps.
        const QPainterPath path = continuousCornerPath(QRectF(0, 0, 4000, 4000), 1000);
        const auto points = path.toFillPolygon(QTransform::fromScale(4, 4));
        double last = 0, largest = 0, largestStep = 0;
        for (int index = 2; index < points.size() - 1; ++index) {
            const QPointF before = points[index - 1] - points[index - 2], after = points[index] - points[index - 1];
            const double turn
                = std::atan2(before.x() * after.y() - before.y() * after.x(), QPointF::dotProduct(before, after));
            const double bend = turn / ((std::hypot(before.x(), before.y()) + std::hypot(after.x(), after.y())) / 2);
            largest = std::max(largest, bend);
            largestStep = std::max(largestStep, std::abs(bend - last));
            last = bend;
        }
        QVERIFY(largest > 1.0 / 4000); // it does turn
        QVERIFY2(largestStep < 0.35 * largest, qPrintable(QString::number(largestStep / largest)));
    }
};

QTEST_GUILESS_MAIN(ContinuousCornersTest)
#include "ContinuousCornersTest.moc"
