// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/EditorWindowController.h"

#include "core/Desktop/DroppedContent.h"

#include "core/Document/TessalyDocument.h"
#include "core/Export/ImageEncoder.h"
#include "tests/support/Rows.h"
#include "tests/ui/Editor/EditorFixture.h"
#include "ui/Editor/EditorView.h"
#include "ui/Editor/EditorWindow.h"

#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>

using namespace tessaly;

namespace {

/// A PNG of some 100 bytes that claims 100 000 × 100 000 pixels.
const QByteArray bomb = QByteArray::fromHex(
    "89504e470d0a1a0a0000000d49484452000186a0000186a0080200000027309c9f0000000c49444154789c6360a03d000000"
    "64000186643c350000000049454e44ae426082");

QByteArray pictureBytes(QSize pixelSize = { 40, 30 })
{
    QImage pixels(pixelSize, QImage::Format_RGB32);
    pixels.fill(qRgb(200, 220, 240));
    const auto bytes = encodeImage(RasterImage::fromPixels(pixels), ExportFormat::Png, {});
    return bytes ? *bytes : QByteArray();
}

Annotation rectangle()
{
    Annotation mark;
    mark.kind = AnnotationKind::Rectangle;
    mark.p1 = { 4, 4 };
    mark.p2 = { 20, 12 };
    return mark;
}

void dirty(EditorView &view)
{
    view.store().beginChange();
    view.store().append(rectangle());
}

/// Once the desktop has said which one it is.
EditorWindow *activeWindow()
{
    EditorWindow *window = nullptr;
    static_cast<void>(QTest::qWaitFor([&] {
        window = qobject_cast<EditorWindow *>(QApplication::activeWindow());
        return window != nullptr;
    }));
    return window;
}

/// The content of every open window, to compare.
QStringList stateOf(const EditorWindowController &editors)
{
    QStringList state;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        const auto *window = qobject_cast<EditorWindow *>(widget);
        if (!window || !window->isVisible())
            continue;
        for (EditorView *view : window->editors())
            state += QStringLiteral("%1 %2 %3")
                         .arg(window->windowTitle())
                         .arg(view->store().annotations().size())
                         .arg(view->store().hasUnsavedChanges());
    }
    state.sort();
    state += QString::number(editors.dirtyEditors().size());
    return state;
}

} // namespace

/// Windows that come and go.
class EditorWindowControllerTest : public QObject {
    Q_OBJECT

    using Prepare = std::function<void(const QString &path)>;

    static void put(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("%s cannot be written", qPrintable(path));
    }

    static void putDocument(const QString &path)
    {
        AnnotationDocument document;
        document.canvasSize = { 40, 30 };
        document.annotations = { rectangle() };
        document.nextStampNumber = 5;
        const auto package = TessalyDocument::package(document, pictureBytes(), {});
        if (!package || !TessalyDocument::write(*package, path))
            qFatal("%s cannot be written", qPrintable(path));
    }

    static void changeJson(const QString &path, const QByteArray &before, const QByteArray &after)
    {
        QFile file(path + "/document.json");
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s cannot be read", qPrintable(path));
        QByteArray json = file.readAll();
        if (!json.contains(before))
            qFatal("%s", json.constData());
        put(file.fileName(), json.replace(before, after));
    }

private Q_SLOTS:
    /// What can be opened is, and the rest is told.
    void droppedThingsAreOpened()
    {
        test::EditorFixture desk;
        EditorWindowController editors(desk.services);
        const QString picture = desk.folder.filePath("a.png"), document = desk.folder.filePath("b.tessaly");
        put(picture, pictureBytes());
        putDocument(document);
        editors.openDropped({ .paths = { picture, desk.folder.path(), document }, .hasLinks = true });
        QCOMPARE(desk.recentDocuments.paths(), QStringList({ document, picture }));
        QCOMPARE(desk.alerts.shown, QStringList({ "Couldn't open the document", "A link cannot be opened" }));
        editors.openDropped({ .picture = pictureBytes(), .hasPicture = true });
        QCOMPARE(stateOf(editors).size(), 4); // three editors, and the count of those with changes
        editors.openDropped({ .picture = "no picture", .hasPicture = true });
        QCOMPARE(desk.alerts.shown.last(), "Couldn't open the picture");
        QVERIFY(editors.closeAll());
    }

    void aBadFileChangesNoWindow_data()
    {
        test::columns<QString, Prepare>("name", "prepare");
        const auto row = [](const char *title, const char *name, Prepare prepare) {
            QTest::newRow(title) << QString(name) << std::move(prepare);
        };
        const auto bytes
            = [](const QByteArray &content) { return [content](const QString &path) { put(path, content); }; };
        row("empty", "bad.png", bytes({}));
        row("text", "bad.png", bytes("this is no picture\n"));
        row("cut", "bad.png", bytes(pictureBytes().left(60)));
        row("bomb", "bad.png", bytes(bomb));
        row("missing", "bad.png", [](const QString &) {});
        row("a folder", "bad.png", [](const QString &path) { QDir().mkdir(path); });
        row("a device", "../../../../../../../dev/full", [](const QString &) {});
        const auto document = [](Prepare spoil) {
            return [spoil](const QString &path) {
                putDocument(path);
                spoil(path);
            };
        };
        row("package: no image", "bad.tessaly",
            document([](const QString &path) { QFile::remove(path + "/image.png"); }));
        row("package: image is a folder", "bad.tessaly", document([](const QString &path) {
            QFile::remove(path + "/image.png");
            QDir().mkdir(path + "/image.png");
        }));
        row("package: image is a link", "bad.tessaly", document([](const QString &path) {
            QFile::rename(path + "/image.png", path + "/other.png");
            QFile::link(path + "/other.png", path + "/image.png");
        }));
        row("package: image is a bomb", "bad.tessaly",
            document([](const QString &path) { put(path + "/image.png", bomb); }));
        row("package: no JSON", "bad.tessaly",
            document([](const QString &path) { put(path + "/document.json", QByteArray(100000, '[')); }));
        row("package: newer and unreadable", "bad.tessaly",
            document([](const QString &path) { put(path + "/document.json", "{\"version\":9}"); }));
        row("package: a file", "bad.tessaly", bytes("x"));
        row("package: empty folder", "bad.tessaly", [](const QString &path) { QDir().mkdir(path); });
    }

    void aBadFileChangesNoWindow()
    {
        QFETCH(QString, name);
        QFETCH(Prepare, prepare);
        test::EditorFixture desk;
        EditorWindowController editors(desk.services);
        put(desk.folder.filePath("good.png"), pictureBytes());
        QVERIFY(editors.openFile(desk.folder.filePath("good.png")));
        dirty(editors.open({ .image = *readImage(pictureBytes(), {}), .title = "b" }));
        const QStringList before = stateOf(editors);
        const QStringList recents = desk.recentDocuments.paths();
        prepare(desk.folder.filePath(name));
        QVERIFY(!editors.openFile(desk.folder.filePath(name)));
        QCOMPARE(desk.alerts.shown, QStringList("Couldn't open the document"));
        QVERIFY(!desk.alerts.texts.first().isEmpty());
        QCOMPARE(stateOf(editors), before);
        QCOMPARE(desk.recentDocuments.paths(), recents);
    }

    void aDocumentOpensWithAllItHolds_data()
    {
        test::columns<QByteArray, QByteArray, bool>("before", "after", "asCopy");
        test::row("as it is", QByteArray("{"), QByteArray("{"), false);
        test::row("newer", QByteArray("\"version\": 1"), QByteArray("\"version\": 2"), true);
        test::row(
            "with a mark of the future", QByteArray("\"annotations\": ["), QByteArray("\"annotations\": [7,"), true);
    }

    void aDocumentOpensWithAllItHolds()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        QFETCH(bool, asCopy);
        test::EditorFixture desk;
        EditorWindowController editors(desk.services);
        const QString path = desk.folder.filePath("a.tessaly");
        putDocument(path);
        changeJson(path, before, after);
        QVERIFY(editors.openFile(path + "/"));
        const auto *window = activeWindow();
        QVERIFY(window);
        const AnnotationStore *store = editors.storeOf(*window);
        QCOMPARE(store->annotations().size(), 1);
        QCOMPARE(store->nextStampNumber(), 5);
        QCOMPARE(store->image().pointSize, QSizeF(40, 30));
        QVERIFY(!store->hasUnsavedChanges());
        QVERIFY(!store->canUndo());
        QCOMPARE(store->documentURL(), asCopy ? std::nullopt : std::optional(QUrl::fromLocalFile(path)));
        QCOMPARE(desk.alerts.shown,
            asCopy ? QStringList("This document comes from a newer version of Tessaly") : QStringList());
        QCOMPARE(desk.recentDocuments.paths(), QStringList(path));
        QVERIFY(window->windowTitle().startsWith("a.tessaly"));
    }

    void newCapturesGetTheRememberedFrame()
    {
        test::EditorFixture desk;
        QVERIFY(desk.settings.set(SettingKeys::frameApplyAlways, true));
        QVERIFY(desk.frameSettings.remember(FrameStyle { .padding = 0.2 }));
        EditorWindowController editors(desk.services);
        const RasterImage image = *readImage(pictureBytes(), {});
        QCOMPARE(editors.open({ .image = image, .usesRememberedFrame = true }).store().frame()->padding, 0.2);
        QVERIFY(!editors.open({ .image = image }).store().frame());
        QVERIFY(editors.dirtyEditors().isEmpty());
    }

    void closingAsksForEachUnsavedCapture_data()
    {
        test::columns<int, bool>("answer", "closed");
        test::row("cancel", 1, false);
        test::row("don't save", 2, true);
    }

    void closingAsksForEachUnsavedCapture()
    {
        QFETCH(int, answer);
        QFETCH(bool, closed);
        test::EditorFixture desk;
        desk.alerts.answer = answer;
        EditorWindowController editors(desk.services);
        const QSignalSpy allClosed(&editors, &EditorWindowController::allClosed);
        EditorView &first = editors.open({ .image = *readImage(pictureBytes(), {}), .title = "a" });
        QPointer<QWidget> window = first.window();
        dirty(first);
        editors.openBlank(qobject_cast<EditorWindow *>(first.window()));
        window->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(desk.alerts.shown.size(), 1);
        QCOMPARE(window.isNull(), closed);
        QCOMPARE(editors.hasEditors(), !closed);
        QCOMPARE(allClosed.size(), closed ? 1 : 0);
        QVERIFY(closed || editors.dirtyEditors().size() == 1);
    }

    /// Giving up the changes of one capture does not count when another one stops the closing.
    void stoppingAfterOneAnswerKeepsAll()
    {
        class TwoAnswers final : public Alerts {
        public:
            int asked = 0;
            void warn(const QString &, const QString &) override { }
            void inform(const QString &, const QString &) override { }
            int ask(const Question &) override { return ++asked == 1 ? 2 : 1; }
        } alerts;
        test::EditorFixture desk;
        EditorServices services { desk.settings, desk.styles, desk.copiedStyle, desk.frameSettings, desk.clipboard,
            alerts, desk.work, desk.exports, desk.documents, desk.recentDocuments, desk.appearance, desk.clock,
            desk.history, desk.recognizer, desk.textCopier, desk.toasts, desk.links, desk.openPanels };
        EditorWindowController editors(services);
        for (const char *title : { "a", "b" })
            dirty(editors.open({ .image = *readImage(pictureBytes(), {}), .title = title }));
        QVERIFY(!editors.closeAll());
        QCOMPARE(alerts.asked, 2);
        QCOMPARE(editors.dirtyEditors().size(), 2);
    }

    /// Which editors the history follows, and from when on.
    void whatIsNewIsKept_data()
    {
        using Open = std::function<void(test::EditorFixture &, EditorWindowController &)>;
        // atOnce: titles in the history
        test::columns<Open, QStringList, QStringList>("open", "atOnce", "changed");
        const auto row = [](const char *name, const QStringList &atOnce, const QStringList &changed, Open open) {
            QTest::newRow(name) << open << atOnce << changed;
        };
        row("image file", { "a.png" }, { "a.png" }, [](auto &desk, auto &editors) {
            put(desk.folder.filePath("a.png"), pictureBytes());
            editors.openFile(desk.folder.filePath("a.png"));
        });
        row("clipboard", { "Pasted image" }, { "Pasted image" }, [](auto &desk, auto &editors) {
            desk.clipboard.offer(std::make_unique<test::FixedOffer>("image/png", pictureBytes()));
            editors.perform(CommandId::NewFromClipboard);
        });
        row("blank", {}, { "Untitled" }, [](auto &, auto &editors) { editors.openBlank(); });
        row("document", {}, {}, [](auto &desk, auto &editors) {
            putDocument(desk.folder.filePath("a.tessaly"));
            editors.openFile(desk.folder.filePath("a.tessaly"));
        });
    }

    void whatIsNewIsKept()
    {
        using Open = std::function<void(test::EditorFixture &, EditorWindowController &)>;
        QFETCH(Open, open);
        test::EditorFixture desk;
        EditorWindowController editors(desk.services);
        const auto titles = [&desk] {
            desk.history.flush();
            QStringList all;
            for (const HistoryEntry &entry : desk.history.entries())
                all += entry.title;
            return all;
        };
        open(desk, editors);
        QTEST(titles(), "atOnce");
        auto *window = activeWindow();
        QVERIFY(window);
        dirty(*window->currentEditor());
        QTEST(titles(), "changed");
        desk.alerts.answer = 1; // cancel
        const bool isKept = !desk.history.entries().isEmpty();
        QCOMPARE(editors.closeAll(), isKept);
        QCOMPARE(desk.alerts.shown.isEmpty(), isKept);
    }

    void whatCannotBeKeptIsAskedFor()
    {
        test::EditorFixture desk;
        EditorWindowController editors(desk.services);
        put(desk.folder.filePath("History"), "no folder");
        EditorView &view = editors.openCapture(*readImage(pictureBytes(), {}), "a");
        dirty(view);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Tessaly: no se pudo guardar en el historial: .+"));
        desk.alerts.answer = 1;
        QVERIFY(!editors.closeAll());
        QCOMPARE(desk.alerts.shown.size(), 1);
        desk.alerts.answer = 2;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Tessaly: no se pudo guardar en el historial: .+"));
        QVERIFY(editors.closeAll());
    }

    void aCaptureOfTheHistoryOpensWithAllItHolds()
    {
        test::EditorFixture desk;
        EditorWindowController editors(desk.services);
        EditorView &first = editors.openCapture(*readImage(pictureBytes(), {}), "Mail");
        dirty(first);
        first.store().setNextStampNumber(4);
        first.store().setFrame(FrameStyle { .padding = 0.2 }, Undo::Record);
        const Snapshot before = first.store().currentSnapshot();
        QVERIFY(editors.closeAll());
        QVERIFY(!editors.hasEditors());
        desk.history.flush();
        const QUuid id = desk.history.entries().first().id;

        QVERIFY(editors.openHistoryEntry(id));
        auto *window = activeWindow();
        QVERIFY(window);
        EditorView *view = window->currentEditor();
        QCOMPARE(view->store().currentSnapshot(), before);
        QVERIFY(!view->store().documentURL());
        QVERIFY(!view->store().hasUnsavedChanges());
        QVERIFY(window->windowTitle().startsWith("Mail"));
        QVERIFY(desk.recentDocuments.paths().isEmpty());
        editors.openBlank();
        QVERIFY(editors.openHistoryEntry(id)); // comes to the front
        QTRY_COMPARE(activeWindow(), window);
        QCOMPARE(QApplication::topLevelWidgets().count(window), 1);
        dirty(*view);
        QVERIFY(editors.closeAll());
        desk.history.flush();
        QCOMPARE(desk.history.entries().size(), 1);
        QVERIFY(desk.alerts.shown.isEmpty());
    }

    void anEntryThatCannotBeRewrittenStaysAsItIs_data()
    {
        // json: empty: no document at all
        test::columns<QByteArray, QString>("json", "alert");
        test::row("gone", QByteArray(), "Couldn't open the document");
        test::row("newer", QByteArray("\"version\": 2"), "This document comes from a newer version of Tessaly");
    }

    void anEntryThatCannotBeRewrittenStaysAsItIs()
    {
        QFETCH(QByteArray, json);
        test::EditorFixture desk;
        EditorWindowController editors(desk.services);
        const QUuid id = *desk.history.record(*readImage(pictureBytes(), {}), "Mail");
        desk.history.flush();
        const QString path = desk.history.packagePath(id);
        if (json.isEmpty())
            QVERIFY(QDir(path).removeRecursively());
        else
            changeJson(path, "\"version\": 1", json);
        QCOMPARE(editors.openHistoryEntry(id), !json.isEmpty());
        QCOMPARE(desk.alerts.shown.size(), 1);
        QTEST(desk.alerts.shown.first(), "alert");
        desk.history.flush();
        QCOMPARE(desk.history.entries().isEmpty(), json.isEmpty());
        if (json.isEmpty())
            return;
        dirty(*activeWindow()->currentEditor());
        QVERIFY(editors.closeAll());
        desk.history.flush();
        QCOMPARE(desk.history.entries().size(), 2); // the copy is a capture of its own
        const auto original = TessalyDocument::contents(path);
        QVERIFY(original && original->document.version == 2);
    }

    void withoutEditorsTheStartWindowIsAskedFor()
    {
        test::EditorFixture desk;
        EditorWindowController editors(desk.services);
        const QSignalSpy start(&editors, &EditorWindowController::startWindowRequested);
        editors.activateOrOpenBlank();
        QCOMPARE(start.size(), 1);
        QVERIFY(!editors.hasEditors());
        editors.openBlank();
        editors.activateOrOpenBlank();
        QCOMPARE(start.size(), 1);
        editors.perform(CommandId::StartWindow);
        QCOMPARE(start.size(), 2);
    }

    void recentDocumentsAreARowOfCommands()
    {
        test::EditorFixture desk;
        EditorWindowController editors(desk.services);
        QVERIFY(editors.canPerform(CommandId::OpenRecent));
        for (const char *name : { "old.png", "new.png" }) {
            put(desk.folder.filePath(name), pictureBytes({ 50, 20 }));
            desk.recentDocuments.add(desk.folder.filePath(name));
        }
        const QList<MenuChoice> recent = editors.choices(CommandId::OpenRecent);
        QCOMPARE(recent.size(), 2);
        QCOMPARE(recent.first().title, "new.png");
        editors.choose(CommandId::OpenRecent, recent.last().value);
        QVERIFY(editors.hasEditors());
        editors.clear(CommandId::OpenRecent);
        QVERIFY(editors.choices(CommandId::OpenRecent).isEmpty());
    }

    void commandsOpenAndQuit()
    {
        test::EditorFixture desk;
        EditorWindowController editors(desk.services);
        const QSignalSpy quits(&editors, &EditorWindowController::quitRequested);
        editors.perform(CommandId::NewFromClipboard);
        QVERIFY(!editors.hasEditors());
        QCOMPARE(desk.toasts.shown, QStringList("No image on the clipboard"));
        desk.clipboard.offer(std::make_unique<test::FixedOffer>("image/png", pictureBytes({ 50, 20 })));
        editors.perform(CommandId::NewFromClipboard);
        auto *window = activeWindow();
        QVERIFY(window);
        QCOMPARE(editors.storeOf(*window)->pixelDimensions(), QSize(50, 20));
        editors.perform(CommandId::NewTab);
        QCOMPARE(window->editors().size(), 2);
        editors.perform(CommandId::NewBlankCanvas);
        QCOMPARE(window->editors().size(), 2);
        QTRY_VERIFY(activeWindow() != window);
        editors.bringToFront(window->editors().first()->store());
        QTRY_COMPARE(activeWindow(), window);
        QCOMPARE(window->currentEditor(), window->editors().first());
        editors.perform(CommandId::Quit);
        QCOMPARE(quits.size(), 1);
        QVERIFY(editors.closeAll()); // nothing is unsaved
        QVERIFY(!editors.hasEditors());
    }
};

QTEST_MAIN(EditorWindowControllerTest)
#include "EditorWindowControllerTest.moc"
