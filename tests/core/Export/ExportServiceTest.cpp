// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/ExportService.h"

#include "core/Imaging/ImageReading.h"
#include "core/Preferences/Settings.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/Rows.h"

#include <QTemporaryDir>

using namespace tessaly;

namespace {

/// Work that the user always cancels.
class CancelledWork final : public LongWork {
public:
    bool run(const QString &, Body) override { return false; }
};

RasterImage retinaPicture()
{
    QImage pixels(16, 12, QImage::Format_RGB32);
    pixels.fill(qRgb(10, 120, 200));
    return RasterImage::fromPixels(pixels, 2);
}

} // namespace

/// Pictures on their way out, with a desktop that remembers what it was given.
class ExportServiceTest : public QObject {
    Q_OBJECT

    struct Desk {
        Settings settings { {} };
        test::FakeClipboard clipboard;
        test::FakeAlerts alerts;
        test::FakeSavePanels panels;
        test::FakeSharing sharing;
        DirectWork work;
        CancelledWork cancelledWork;
        test::FakeClock clock;
        int exports = 0;

        ExportService service(bool cancels = false)
        {
            ExportService service({ settings, clipboard, alerts, panels, sharing,
                cancels ? static_cast<LongWork &>(cancelledWork) : work, clock });
            service.exported = [this] { ++exports; };
            return service;
        }
    };

    QTemporaryDir m_folder;

private Q_SLOTS:
    void init() { QVERIFY(m_folder.isValid()); }

    void aCopyIsOfferedInTwoTypes_data()
    {
        test::columns<bool, QString, QSizeF>("fullSize", "type", "pointSize");
        for (const char *type : { "image/png", "image/tiff" }) {
            QTest::addRow("%s", type) << false << QString(type) << QSizeF(8, 6);
            QTest::addRow("%s at full size", type) << true << QString(type) << QSizeF(16, 12);
        }
    }

    void aCopyIsOfferedInTwoTypes()
    {
        QFETCH(bool, fullSize);
        QFETCH(QString, type);
        Desk desk;
        QVERIFY(desk.settings.set(SettingKeys::copyAtFullSize, fullSize));
        desk.service().copy(retinaPicture(), true);
        QCOMPARE(desk.exports, 1);
        QCOMPARE(desk.clipboard.types(), QStringList({ "image/png", "image/tiff" }));
        const auto pasted = readImage(desk.clipboard.data(type), type);
        QVERIFY(pasted);
        QCOMPARE(pasted->pixels, retinaPicture().pixels);
        QTEST(pasted->pointSize, "pointSize");
        QCOMPARE(desk.clipboard.data(type).constData(), desk.clipboard.data(type).constData()); // encoded once
        QVERIFY(desk.clipboard.data("text/plain").isEmpty());
    }

    void aSaveTakesWhatThePanelSays()
    {
        Desk desk;
        QVERIFY(desk.settings.set(SettingKeys::defaultSaveFolder, "/somewhere"));
        QVERIFY(desk.settings.set(SettingKeys::autoCopyAfterSave, true));
        const QString path = m_folder.filePath("a.jpg");
        desk.panels.image = { .path = path, .format = ExportFormat::Jpeg, .quality = 0.35, .alsoDocument = true };
        QString companionOf;
        QVERIFY(desk.service().save(retinaPicture(), ExportFormat::Png, [&](const QString &at) {
            QVERIFY(QFile::exists(at)); // the image comes first
            companionOf = at;
        }));
        const auto &request = desk.panels.imageRequests.value(0);
        QCOMPARE(request.format, ExportFormat::Png);
        QCOMPARE(request.baseName, "Screenshot");
        QCOMPARE(request.folder, "/somewhere");
        QVERIFY(request.offersDocument);
        QCOMPARE(storedFormat(desk.settings), ExportFormat::Jpeg);
        QCOMPARE(storedQuality(ExportFormat::Jpeg, desk.settings), 0.35);
        QCOMPARE(companionOf, path);
        QCOMPARE(desk.exports, 1);
        QVERIFY(desk.clipboard.content);
        QFile written(path);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.readAll(), desk.service().data(retinaPicture(), ExportFormat::Jpeg, 0.35));
        QVERIFY(desk.service().data(retinaPicture(), ExportFormat::Jpeg, 1)
            != desk.service().data(retinaPicture(), ExportFormat::Jpeg));
    }

    void whatIsNotSavedLeavesNothing_data()
    {
        // name: empty for a cancelled panel
        test::columns<QString, int, bool, QStringList>("name", "pixelWidth", "cancels", "alerts");
        test::row("panel cancelled", "", 8, false, QStringList());
        test::row("work cancelled", "a.webp", 8, true, QStringList());
        test::row("too wide for the format", "a.webp", 16384, false, QStringList());
        test::row("no folder", "gone/a.webp", 8, false, QStringList { "Couldn't save the image" });
        test::row("full disk", "/dev/full", 8, false, QStringList { "Couldn't save the image" });
    }

    void whatIsNotSavedLeavesNothing()
    {
        QFETCH(QString, name);
        QFETCH(int, pixelWidth);
        QFETCH(bool, cancels);
        const QTemporaryDir folder;
        Desk desk;
        QVERIFY(desk.settings.set(SettingKeys::autoCopyAfterSave, true));
        const QString path = QDir(folder.path()).filePath(name);
        if (!name.isEmpty())
            desk.panels.image = { .path = path, .format = ExportFormat::Webp, .quality = 0.5, .alsoDocument = true };
        QImage pixels(pixelWidth, 2, QImage::Format_RGB32);
        pixels.fill(Qt::green);
        bool companion = false;
        QVERIFY(!desk.service(cancels).save(
            RasterImage::fromPixels(pixels), ExportFormat::Png, [&](const QString &) { companion = true; }));
        QTEST(desk.alerts.shown, "alerts");
        QVERIFY(desk.alerts.texts.isEmpty() || desk.alerts.texts.first().contains(path));
        QVERIFY(QDir(folder.path()).isEmpty());
        QVERIFY(!companion);
        QVERIFY(!desk.clipboard.content);
        QCOMPARE(desk.exports, 0);
    }

    void sharingHandsOverAPrivateFile()
    {
        qputenv("XDG_RUNTIME_DIR", m_folder.path().toLocal8Bit());
        QVERIFY(QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        Desk desk;
        desk.service().share(retinaPicture());
        const QString path = desk.sharing.shared.value(0);
        QCOMPARE(QFileInfo(path).fileName(), "Tessaly 2024-05-01 at 14.03.22.png");
        QVERIFY(path.startsWith(m_folder.path()));
        const auto shared = readImageFile(path);
        QVERIFY(shared);
        QCOMPARE(*shared, retinaPicture());
    }
};

QTEST_GUILESS_MAIN(ExportServiceTest)
#include "ExportServiceTest.moc"
