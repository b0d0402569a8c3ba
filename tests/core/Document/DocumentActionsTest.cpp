// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Document/DocumentActions.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Document/RecentDocuments.h"
#include "core/Document/TessalyDocument.h"
#include "core/Preferences/Settings.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/Rows.h"

#include <QTemporaryDir>

using namespace tessaly;

namespace {

/// Work during which something else happens, or which the user cancels.
class ScriptedWork final : public LongWork {
public:
    std::function<void()> meanwhile = [] {};
    bool cancels = false;

    bool run(const QString &, Body body) override
    {
        if (cancels)
            return false;
        meanwhile();
        body(Cancellation());
        return true;
    }
};

Annotation rectangle(QPointF corner)
{
    Annotation mark;
    mark.kind = AnnotationKind::Rectangle;
    mark.p1 = corner;
    mark.p2 = corner + QPointF(8, 6);
    return mark;
}

RasterImage whitePicture(QSize pixelSize)
{
    QImage pixels(pixelSize, QImage::Format_RGB32);
    pixels.fill(Qt::white);
    return RasterImage::fromPixels(pixels);
}

/// One capture with an unsaved mark, and the services that save it.
struct Desk {
    explicit Desk(QSize pixelSize = { 40, 30 }) : store(whitePicture(pixelSize), settings)
    {
        store.beginChange();
        store.append(rectangle({ 4, 4 }));
    }

    Settings settings { {} };
    test::FakeClipboard clipboard;
    test::FakeAlerts alerts;
    test::FakeSavePanels panels;
    test::FakeSharing sharing;
    test::FakeClock clock;
    ScriptedWork work;
    ExportService exports { { settings, clipboard, alerts, panels, sharing, work, clock } };
    RecentDocuments recents { settings };
    DocumentActions actions { { settings, alerts, panels, work, exports, recents } };
    AnnotationStore store;
};

} // namespace

/// The save commands: what lies on the disk afterwards, and whether the capture counts as saved.
class DocumentActionsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }

private Q_SLOTS:
    void cleanup()
    {
        QDir folder(m_folder.path());
        for (const QFileInfo &entry : folder.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
            entry.isDir() ? QDir(entry.filePath()).removeRecursively() : QFile::remove(entry.filePath());
    }

    void anExportCountsAsSavedWhereNoDocumentHoldsTheCapture_data()
    {
        test::columns<bool, bool, bool, bool>("hasDocument", "companion", "companionIsIt", "unsaved");
        test::row("image alone", false, false, false, false);
        test::row("image and companion", false, true, false, false);
        test::row("image of a document", true, false, false, true);
        test::row("image beside another document", true, true, false, true);
        test::row("image beside its document", true, true, true, false);
    }

    void anExportCountsAsSavedWhereNoDocumentHoldsTheCapture()
    {
        QFETCH(bool, hasDocument);
        QFETCH(bool, companion);
        QFETCH(bool, companionIsIt);
        Desk desk;
        const QString own = path(companionIsIt ? "shot.tessaly" : "other.tessaly");
        if (hasDocument)
            desk.store.setDocumentURL(QUrl::fromLocalFile(own));
        desk.panels.image = { .path = path("shot.png"), .alsoDocument = companion };
        QVERIFY(desk.actions.exportImage(desk.store));
        QTEST(desk.store.hasUnsavedChanges(), "unsaved");
        QCOMPARE(QFile::exists(path("shot.tessaly/document.json")), companion);
        QCOMPARE(desk.recents.paths(), companion ? QStringList { path("shot.tessaly") } : QStringList());
        QCOMPARE(desk.store.documentURL().has_value(), hasDocument);
    }

    void saveKnowsItsDocument()
    {
        Desk desk;
        QVERIFY(desk.settings.set(SettingKeys::exportFormat, QStringLiteral("heic")));
        QVERIFY(!desk.actions.save(desk.store)); // no document: the image panel, which is cancelled
        QCOMPARE(desk.panels.imageRequests.value(0).format, ExportFormat::Png);
        QVERIFY(desk.store.hasUnsavedChanges());
        desk.panels.document = path("a.tessaly");
        QVERIFY(desk.actions.saveAsDocument(desk.store));
        QCOMPARE(desk.panels.documentNames.value(0), "Screenshot.tessaly");
        QCOMPARE(desk.store.documentURL(), QUrl::fromLocalFile(path("a.tessaly")));
        QVERIFY(!desk.store.hasUnsavedChanges());
        desk.store.beginChange();
        desk.store.append(rectangle({ 20, 10 }));
        QVERIFY(desk.actions.save(desk.store));
        QCOMPARE(desk.panels.imageRequests.size(), 1);
        const auto saved = TessalyDocument::contents(path("a.tessaly"));
        QVERIFY(saved);
        QCOMPARE(saved->document.annotations, desk.store.annotations());
        QVERIFY(!desk.actions.saveAsDocument(desk.store) || desk.panels.documentNames.value(1) == "a.tessaly");
        QVERIFY(desk.alerts.shown.isEmpty());
    }

    /// A change while the thread works is not in the file, and stays unsaved.
    void whatIsSavedIsTheMomentOfTheCommand()
    {
        Desk desk;
        const auto before = desk.store.annotations();
        desk.work.meanwhile = [&] { desk.store.append(rectangle({ 20, 10 })); };
        QVERIFY(desk.actions.write(desk.store, path("a.tessaly")));
        QVERIFY(desk.store.hasUnsavedChanges());
        const auto saved = TessalyDocument::contents(path("a.tessaly"));
        QVERIFY(saved);
        QCOMPARE(saved->document.annotations, before);
        desk.panels.image = { .path = path("shot.png"), .alsoDocument = true };
        QVERIFY(desk.actions.exportImage(desk.store));
        QVERIFY(desk.store.hasUnsavedChanges());
    }

    void aFailedSaveLosesNothing_data()
    {
        test::columns<QString, QString>("target", "message");
        test::row("folder gone", "gone/a.tessaly", "Couldn't save the document");
        test::row("a folder of other things", "photos.tessaly", "Couldn't save the document");
        test::row("a file of that name", "file.tessaly", "Couldn't save the document");
        test::row("image: folder gone", "gone/a.png", "Couldn't save the image");
        test::row("image: full disk", "/dev/full", "Couldn't save the image");
        test::row("image: nothing can be made there", "/proc/a.png", "Couldn't save the image");
        test::row("cancelled", "a.tessaly", "");
        test::row("image: cancelled", "a.png", "");
    }

    void aFailedSaveLosesNothing()
    {
        QFETCH(QString, target);
        QFETCH(QString, message);
        QVERIFY(QDir(m_folder.path()).mkdir("photos.tessaly"));
        for (const char *name : { "photos.tessaly/a.jpg", "file.tessaly" }) {
            QFile file(path(name));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("x") == 1);
        }
        Desk desk;
        desk.work.cancels = message.isEmpty();
        const QString full = QDir(m_folder.path()).filePath(target);
        desk.panels.image = { .path = full, .alsoDocument = true };
        desk.panels.document = full;
        const Snapshot before = desk.store.currentSnapshot();
        QVERIFY(target.endsWith(".tessaly") ? !desk.actions.saveAsDocument(desk.store)
                                            : !desk.actions.exportImage(desk.store));
        QCOMPARE(desk.alerts.shown, message.isEmpty() ? QStringList() : QStringList { message });
        QVERIFY(message.isEmpty() || desk.alerts.texts.first().contains(full));
        QVERIFY(desk.store.hasUnsavedChanges());
        QVERIFY(!desk.store.documentURL());
        QVERIFY(desk.store.currentSnapshot() == before);
        QVERIFY(desk.recents.paths().isEmpty());
        QCOMPARE(QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList({ "file.tessaly", "photos.tessaly" }));
        QVERIFY(QFile::exists(path("photos.tessaly/a.jpg")));
    }

    void aFailedCompanionLeavesTheImage()
    {
        Desk desk;
        QFile file(path("shot.tessaly"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        desk.panels.image = { .path = path("shot.png"), .alsoDocument = true };
        QVERIFY(desk.actions.exportImage(desk.store));
        QCOMPARE(desk.alerts.shown, QStringList("Couldn't save the Tessaly document next to the image"));
        QVERIFY(QFile::exists(path("shot.png")));
    }

    void aCaptureWithoutAreaSaysSo()
    {
        Desk desk;
        desk.store.setImage({});
        QVERIFY(!desk.actions.exportImage(desk.store));
        QCOMPARE(desk.alerts.shown, QStringList("Couldn't prepare the image"));
        QVERIFY(desk.panels.imageRequests.isEmpty());
    }
};

QTEST_GUILESS_MAIN(DocumentActionsTest)
#include "DocumentActionsTest.moc"
