// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/DrawnMarks.h"
#include "tests/support/SampleMarks.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QTest>

using namespace tessaly;

/// Every kind of mark as it was when somebody looked at it and found it good. Run with --update to keep the pictures
/// of this build instead; look at them before committing.
class GoldenPicturesTest : public QObject {
    Q_OBJECT

public:
    explicit GoldenPicturesTest(bool update) : m_update(update) { }

private:
    /// Light and dark, flat and detailed parts below every mark.
    static RasterImage ground(int scale)
    {
        RasterImage capture = test::plainCapture(test::sampleCanvas.toSize(), QColor(244, 244, 247), scale);
        QPainter painter(&capture.pixels);
        painter.scale(scale, scale);
        for (int column = 0; column < 960; column += 64)
            painter.fillRect(column, 0, 24, 640, QColor(40, 44, 60));
        for (int row = 4; row < 640; row += 9)
            painter.fillRect(0, row, 960, 2, QColor(120, 130, 160));
        return capture;
    }

    static QRect extentOf(const QList<Annotation> &marks)
    {
        QRectF extent;
        for (const Annotation &mark : marks)
            extent |= mark.boundingRect().adjusted(-8, -8, 24, 8);
        return extent.toAlignedRect().intersected(QRect(QPoint(), test::sampleCanvas.toSize()));
    }

    /// Averages of three by three pixels: another version of a font or a library may move an edge a little.
    static QImage softened(const QImage &picture)
    {
        return picture.scaled((picture.size() + QSize(2, 2)) / 3, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_RGB32);
    }

    /// Where two pictures differ, white; black where they do not.
    static QImage difference(const QImage &one, const QImage &two, int tolerance, int &differing)
    {
        QImage result(one.size(), QImage::Format_RGB32);
        result.fill(Qt::black);
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                const QColor a = one.pixelColor(x, y), b = two.pixelColor(x, y);
                const int most = std::max(
                    { std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue()) });
                if (most > tolerance) {
                    ++differing;
                    result.setPixel(x, y, 0xffffffff);
                }
            }
        }
        return result;
    }

    bool m_update;

private Q_SLOTS:
    void looksAsItDid_data()
    {
        QTest::addColumn<AnnotationKind>("kind");
        QTest::addColumn<int>("scale");
        for (const auto &kind : enumNames<AnnotationKind>) {
            for (const int scale : { 1, 2 })
                QTest::addRow("%s-%dx", kind.raw.data(), scale) << kind.value << scale;
        }
    }

    void looksAsItDid()
    {
        QFETCH(AnnotationKind, kind);
        QFETCH(int, scale);
        QList<Annotation> marks = test::oneOfEachKind();
        marks.removeIf([kind](const Annotation &mark) { return mark.kind != kind; });
        const QRect extent = extentOf(marks);
        const QImage picture
            = test::drawn(ground(scale), marks, scale).copy(QRect(extent.topLeft() * scale, extent.size() * scale));
        const QString name = QLatin1StringView(QTest::currentDataTag()) + QStringLiteral(".png");
        const QString goldenPath = QDir(QStringLiteral(TESSALY_GOLDENS)).filePath(name);
        if (m_update) {
            QVERIFY(picture.save(goldenPath));
            return;
        }
        const QImage golden = QImage(goldenPath).convertToFormat(QImage::Format_RGB32);
        QCOMPARE(golden.size(), picture.size());
        constexpr int tolerance = 24; // of 255, after softening
        int differing = 0;
        const QImage where = difference(softened(golden), softened(picture), tolerance, differing);
        if (differing * 1000 <= where.width() * where.height())
            return;
        const QDir left(QCoreApplication::applicationDirPath() + QStringLiteral("/golden-differences"));
        QVERIFY(left.mkpath(QStringLiteral(".")));
        where.save(left.filePath(QStringLiteral("difference-") + name));
        picture.save(left.filePath(name));
        QFAIL(qPrintable(QStringLiteral("%1 parts differ; see %2").arg(differing).arg(left.filePath(name))));
    }
};

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // --update is called by hand
    QGuiApplication application(argc, argv);
    QStringList arguments = application.arguments();
    GoldenPicturesTest test(arguments.removeAll(QStringLiteral("--update")) > 0);
    return QTest::qExec(&test, arguments);
}
#include "GoldenPicturesTest.moc"
