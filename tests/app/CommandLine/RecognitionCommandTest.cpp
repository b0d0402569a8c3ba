// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/ImageEncoder.h"
#include "core/History/HistoryKeeper.h"
#include "tests/app/CommandLine/Program.h"

#include <QPainter>
#include <QTest>

using namespace tessaly;

/// The commands with the program that really reads.
class RecognitionCommandTest : public QObject {
    Q_OBJECT

    static RasterImage page()
    {
        QImage image(560, 200, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.fillRect(0, 100, 560, 100, QColor(0x20, 0x22, 0x28));
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(22);
        painter.setFont(font);
        painter.drawText(30, 60, QStringLiteral("Quarterly invoice"));
        painter.setPen(Qt::white);
        painter.drawText(30, 160, QStringLiteral("walrus in the dark"));
        painter.end();
        return RasterImage::fromPixels(image);
    }

private Q_SLOTS:
    void picturesAreRead()
    {
        const test::Program program;
        program.put("page.png", *encodeImage(page(), ExportFormat::Png, {}));
        const test::Finished finished = program.run({ "text", "page.png", "page.png" });
        QCOMPARE(finished.status, 0);
        QCOMPARE(QString::fromUtf8(finished.output),
            QStringLiteral("Quarterly invoice\nwalrus in the dark\n").repeated(2).insert(37, u'\n'));
    }

    void capturesAreFoundByWhatIsOnThem()
    {
        const test::Program program;
        const auto package
            = TessalyDocument::package(AnnotationDocument(), *encodeImage(page(), ExportFormat::Png, {}), std::nullopt);
        const QDateTime now = QDateTime::currentDateTimeUtc();
        QVERIFY(HistoryKeeper(HistoryStore { program.path(".data/tessaly/History") })
                    .put(*package, { QUuid::createUuid(), "Screenshot", now, now, 560, 200, {} }));
        const test::Finished found = program.run({ "history", "search", "WALRUS", "invoice" });
        QCOMPARE(found.status, 0);
        QVERIFY2(found.output.contains("walrus in the dark"), found.output.constData());
        QVERIFY(program.run({ "history", "search", "narwhal" }).output.isEmpty());
    }
};

QTEST_MAIN(RecognitionCommandTest)
#include "RecognitionCommandTest.moc"
