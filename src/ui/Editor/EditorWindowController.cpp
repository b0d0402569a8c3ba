// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/EditorWindowController.h"

#include "core/Base/LongWork.h"
#include "core/Desktop/Alerts.h"
#include "core/Desktop/Clipboard.h"
#include "core/Desktop/DroppedContent.h"
#include "core/Desktop/Toasts.h"
#include "core/Document/RecentDocuments.h"
#include "core/Export/PictureTitle.h"
#include "core/Frame/FrameSettings.h"
#include "core/History/CaptureHistory.h"
#include "core/Imaging/ImageReading.h"
#include "ui/Editor/Canvas/CanvasView.h"
#include "ui/Editor/CollageService.h"
#include "ui/Editor/EditorView.h"
#include "ui/Editor/EditorWindow.h"
#include "ui/Editor/UnsavedChangesAlert.h"
#include "ui/Editor/WindowPlacement.h"
#include "ui/Export/DocumentFileDialog.h"

#include <QApplication>
#include <QPointer>
#include <QScreen>

namespace tessaly {

namespace {

/// The size of a new canvas in points.
constexpr QSize blankSize(1280, 800);

QString fileNameOf(const QString &path) { return QFileInfo(QDir::cleanPath(path)).fileName(); }

RasterImage blankImage()
{
    const double scale = QGuiApplication::primaryScreen()->devicePixelRatio();
    QImage pixels(blankSize * scale, QImage::Format_RGB32);
    pixels.fill(Qt::white);
    return { std::move(pixels), blankSize };
}

/// The best picture of the clipboard, in any format that can be read; empty when there is none.
std::optional<RasterImage> pastedImage(const Clipboard &clipboard)
{
    const QStringList offered = clipboard.types();
    QStringList types { QStringLiteral("image/png"), QStringLiteral("image/tiff"), QStringLiteral("image/bmp") };
    types += offered.filter(QStringLiteral("image/"));
    for (const QString &type : std::as_const(types)) {
        if (!offered.contains(type))
            continue;
        if (auto image = readImage(clipboard.data(type), type))
            return std::move(*image);
    }
    return std::nullopt;
}

} // namespace

EditorWindowController::EditorWindowController(const EditorServices &services, QObject *parent) :
    QObject(parent),
    m_services(services)
{
}

EditorWindowController::~EditorWindowController()
{
    QList<EditorWindow *> windows;
    for (const WindowSlot &slot : m_slots) {
        m_services.history.endTracking(*slot.store);
        slot.view->disconnect(this);
        if (!windows.contains(slot.window))
            windows += slot.window;
    }
    qDeleteAll(windows);
}

std::unique_ptr<AnnotationStore> EditorWindowController::makeStore(Opening &opening) const
{
    if (opening.usesRememberedFrame) {
        FrameSettings::Presentation remembered = m_services.frameSettings.forNewCapture();
        opening.frame = std::move(remembered.frame);
        opening.watermark = std::move(remembered.watermark);
    }
    auto store = std::make_unique<AnnotationStore>(opening.image, m_services.settings);
    store->restore({ .annotations = std::move(opening.annotations),
        .image = std::move(opening.image),
        .nextStampNumber = opening.nextStampNumber,
        .frame = std::move(opening.frame),
        .watermark = std::move(opening.watermark) });
    store->setDocumentURL(std::move(opening.documentURL));
    return store;
}

EditorView &EditorWindowController::open(Opening opening)
{
    auto store = makeStore(opening);
    AnnotationStore *kept = store.get();
    auto owned = std::make_unique<EditorView>(std::move(store), m_services);
    EditorView *view = owned.get();
    const EditorWindow *previous = activeWindow();
    EditorWindow &window = opening.tabOf ? *opening.tabOf : makeWindow();
    connect(view, &QObject::destroyed, this, &EditorWindowController::forget);
    m_slots.push_back({ &window, view, kept, &view->zoom() });
    window.addEditor(std::move(owned), opening.title);
    if (!opening.tabOf)
        place(window, previous);
    bringToFront(m_slots.back());
    return *view;
}

void EditorWindowController::prepareWindow()
{
    if (m_prepared)
        return;
    m_prepared = std::make_unique<EditorWindow>(m_services, *this);
    m_prepared->ensurePolished();
    m_prepared->sizeHint(); // reads the fonts
}

EditorWindow &EditorWindowController::makeWindow()
{
    prepareWindow();
    EditorWindow *window = m_prepared.release();
    connect(window, &EditorWindow::closeRequested, this, [this](const QList<EditorView *> &views) {
        if (mayClose(views))
            close(views);
    });
    connect(window, &EditorWindow::openRequested, this, &EditorWindowController::openFile);
    connect(window, &EditorWindow::dropped, this, &EditorWindowController::openDropped);
    return *window;
}

void EditorWindowController::place(EditorWindow &window, const EditorWindow *previous)
{
    const QScreen *screen = previous ? previous->screen() : QGuiApplication::primaryScreen();
    window.move(WindowPlacement::position(
        window.size(), screen->availableGeometry(), previous ? std::optional(previous->pos()) : std::nullopt));
}

/// Reads a file while the windows go on painting; empty when the user cancelled.
static std::optional<LoadedFile> loadedFile(LongWork &work, const QString &path, const QString &name)
{
    const auto loaded = std::make_shared<std::optional<LoadedFile>>();
    const auto load = [path, loaded](const Cancellation &) { *loaded = loadFile(path); };
    if (!work.run(EditorWindowController::tr("Opening %1…").arg(name), load))
        return std::nullopt;
    if (!*loaded)
        return Failure { EditorWindowController::tr("There is not enough memory for it.") };
    return std::move(**loaded);
}

bool EditorWindowController::openFile(const QString &path)
{
    auto loaded = loadedFile(m_services.work, path, fileNameOf(path));
    return loaded && openLoaded(path, std::move(*loaded));
}

bool EditorWindowController::openLoaded(const QString &path, LoadedFile loaded)
{
    if (const auto *failure = std::get_if<Failure>(&loaded)) {
        m_services.alerts.warn(tr("Couldn't open the document"), failure->message);
        return false;
    }
    if (auto *image = std::get_if<RasterImage>(&loaded))
        openCapture(std::move(*image), fileNameOf(path));
    else
        openDocument(path, std::move(std::get<TessalyDocument::Contents>(loaded)));
    m_services.recentDocuments.add(path);
    return true;
}

EditorWindowController::Opening EditorWindowController::openingOf(
    TessalyDocument::Contents contents, const QString &title)
{
    AnnotationDocument &document = contents.document;
    return { .image = std::move(contents.image),
        .title = title,
        .annotations = std::move(document.annotations),
        .nextStampNumber = document.nextStampNumber,
        .frame = std::move(document.frame),
        .watermark = std::move(document.watermark) };
}

bool EditorWindowController::mayRewrite(const AnnotationDocument &document)
{
    if (document.version <= AnnotationDocument::currentVersion && document.skippedAnnotations == 0)
        return true;
    m_services.alerts.inform(tr("This document comes from a newer version of Tessaly"),
        tr("It has been opened as a copy, so saving won't remove anything this version doesn't understand. To "
           "keep editing the original, update Tessaly."));
    return false;
}

void EditorWindowController::openDocument(const QString &path, TessalyDocument::Contents contents)
{
    std::optional<QUrl> url;
    if (mayRewrite(contents.document))
        url = QUrl::fromLocalFile(QFileInfo(QDir::cleanPath(path)).absoluteFilePath());
    Opening opening = openingOf(std::move(contents), fileNameOf(path));
    opening.documentURL = std::move(url);
    open(std::move(opening));
}

EditorView &EditorWindowController::openCapture(RasterImage image, const QString &title)
{
    EditorView &view = open({ .image = std::move(image), .title = title, .usesRememberedFrame = true });
    m_services.history.track(view.store(), title, {}, CaptureHistory::Begin::Now);
    return view;
}

bool EditorWindowController::openHistoryEntry(const QUuid &id)
{
    CaptureHistory &history = m_services.history;
    const auto shown
        = std::ranges::find_if(m_slots, [&](const WindowSlot &slot) { return history.entryOf(*slot.store) == id; });
    if (shown != m_slots.end()) {
        bringToFront(*shown);
        return true;
    }
    const auto entry = std::ranges::find(history.entries(), id, &HistoryEntry::id);
    const QString title = entry == history.entries().end() ? PictureTitle::untitled() : entry->title;
    history.flush(); // an editor that has just closed may have left something to write
    auto loaded = loadedFile(m_services.work, history.packagePath(id), title);
    if (!loaded)
        return false;
    if (auto *contents = std::get_if<TessalyDocument::Contents>(&*loaded)) {
        openEntry(id, title, std::move(*contents));
        return true;
    }
    const auto *failure = std::get_if<Failure>(&*loaded);
    m_services.alerts.warn(tr("Couldn't open the document"), failure ? failure->message : QString());
    history.load(); // the entry may have gone
    return false;
}

void EditorWindowController::openEntry(const QUuid &id, const QString &title, TessalyDocument::Contents contents)
{
    // What this version cannot write back is left alone: the copy becomes a capture of its own.
    const auto continued = mayRewrite(contents.document) ? std::optional(id) : std::nullopt;
    EditorView &view = open(openingOf(std::move(contents), title));
    m_services.history.track(view.store(), title, continued, CaptureHistory::Begin::WithFirstChange);
}

void EditorWindowController::openBlank(EditorWindow *tabOf)
{
    const QString title = PictureTitle::untitled();
    EditorView &view = open({ .image = blankImage(), .title = title, .usesRememberedFrame = true, .tabOf = tabOf });
    m_services.history.track(view.store(), title, {}, CaptureHistory::Begin::WithFirstChange);
}

void EditorWindowController::activateOrOpenBlank()
{
    if (hasEditors())
        bringToFront(m_slots.back());
    else
        Q_EMIT startWindowRequested();
}

void EditorWindowController::openDropped(const DroppedContent &content)
{
    for (const QString &path : content.paths)
        openFile(path);
    if (content.hasPicture) {
        const QString title = tr("Dropped picture");
        auto picture = readImage(content.picture, title);
        if (picture)
            openCapture(std::move(*picture), title);
        else
            m_services.alerts.warn(tr("Couldn't open the picture"), picture.failure().message);
    }
    if (const QString refusal = content.refusal(); !refusal.isEmpty())
        m_services.alerts.warn(tr("A link cannot be opened"), refusal);
}

void EditorWindowController::openFromClipboard()
{
    if (auto image = pastedImage(m_services.clipboard))
        openCapture(std::move(*image), tr("Pasted image"));
    else
        m_services.toasts.show(tr("No image on the clipboard"));
}

void EditorWindowController::chooseFiles()
{
    DocumentFileDialog dialog(DocumentFileDialog::Purpose::Open, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted)
        return;
    for (const QString &path : dialog.chosenPaths())
        openFile(path);
}

EditorWindow *EditorWindowController::activeWindow() const
{
    if (auto *window = qobject_cast<EditorWindow *>(QApplication::activeWindow()))
        return window;
    return m_slots.empty() ? nullptr : m_slots.back().window;
}

AnnotationStore *EditorWindowController::storeOf(const EditorWindow &window) const
{
    EditorView *view = window.currentEditor();
    return view ? &view->store() : nullptr;
}

void EditorWindowController::bringToFront(const AnnotationStore &store)
{
    const auto slot = std::ranges::find(m_slots, &store, &WindowSlot::store);
    if (slot == m_slots.end())
        return;
    bringToFront(*slot);
    // The window system tells only later that it is active. A question that is shown until then lies over the window
    // that was, and would be taken to be about that one.
    QApplication::setActiveWindow(slot->window);
}

void EditorWindowController::bringToFront(const WindowSlot &slot) { slot.window->activate(slot.view); }

QList<EditorView *> EditorWindowController::dirtyEditors() const
{
    QList<EditorView *> dirty;
    for (const WindowSlot &slot : m_slots) {
        if (slot.store->hasUnsavedChanges())
            dirty += slot.view;
    }
    return dirty;
}

bool EditorWindowController::mayClose(const QList<EditorView *> &views)
{
    QList<AnnotationStore *> discarded;
    for (EditorView *view : views) {
        view->canvas().finishTextEditing();
        AnnotationStore &store = view->store();
        if (store.hasUnsavedChanges())
            bringToFront(store);
        const auto answer = UnsavedChangesAlert::run(
            store, { m_services.alerts, m_services.documents, m_services.history, m_services.work });
        if (answer == UnsavedChangesAlert::Answer::Discard)
            discarded += &store;
        if (answer != UnsavedChangesAlert::Answer::Cancel)
            continue;
        // What stays open has not been given up after all.
        for (AnnotationStore *each : std::as_const(discarded))
            each->setHasUnsavedChanges(true);
        return false;
    }
    return true;
}

void EditorWindowController::close(const QList<EditorView *> &views)
{
    for (EditorView *view : views) {
        const auto slot = std::ranges::find(m_slots, view, &WindowSlot::view);
        if (slot == m_slots.end())
            continue;
        m_services.history.endTracking(*slot->store);
        slot->window->removeEditor(view);
    }
}

void EditorWindowController::forget(const QObject *view)
{
    std::erase_if(m_slots, [view](const WindowSlot &slot) { return static_cast<QObject *>(slot.view) == view; });
    if (m_slots.empty())
        Q_EMIT allClosed();
}

bool EditorWindowController::closeAll()
{
    QList<EditorView *> views;
    for (const WindowSlot &slot : m_slots)
        views += slot.view;
    if (!mayClose(views))
        return false;
    close(views);
    return true;
}

bool EditorWindowController::knows(CommandId command) const
{
    switch (command) {
    case CommandId::NewBlankCanvas:
    case CommandId::NewFromClipboard:
    case CommandId::Open:
    case CommandId::OpenRecent:
    case CommandId::NewTab:
    case CommandId::StartWindow:
    case CommandId::Quit:
    case CommandId::NewCollageSideBySide:
    case CommandId::NewCollageStacked:
        return true;
    default:
        return m_services.captures && m_services.captures->knows(command);
    }
}

void EditorWindowController::createCollage(CollageLayout layout)
{
    const auto open = [this](RasterImage image, const QString &title) { openCapture(std::move(image), title); };
    CollageService({ m_services.openPanels, m_services.work, m_services.alerts, open }).createFromPanel(layout);
}

bool EditorWindowController::canPerform(CommandId command) const
{
    CommandTarget *captures = m_services.captures;
    return captures && captures->knows(command) ? captures->canPerform(command) : knows(command);
}

QList<MenuChoice> EditorWindowController::choices(CommandId command) const
{
    if (command != CommandId::OpenRecent)
        return m_services.captures ? m_services.captures->choices(command) : QList<MenuChoice>();
    QList<MenuChoice> choices;
    for (const QString &path : m_services.recentDocuments.paths())
        choices += { m_services.recentDocuments.title(path), path };
    return choices;
}

void EditorWindowController::choose(CommandId command, const QString &value)
{
    if (command == CommandId::OpenRecent)
        openFile(value);
    else if (m_services.captures)
        m_services.captures->choose(command, value);
}

void EditorWindowController::clear(CommandId command)
{
    if (canClear(command))
        m_services.recentDocuments.clear();
}

void EditorWindowController::perform(CommandId command)
{
    switch (command) {
    case CommandId::NewBlankCanvas:
        return openBlank();
    case CommandId::NewFromClipboard:
        return openFromClipboard();
    case CommandId::Open:
        return chooseFiles();
    case CommandId::NewTab:
        return openBlank(activeWindow());
    case CommandId::StartWindow:
        Q_EMIT startWindowRequested();
        return;
    case CommandId::Quit:
        Q_EMIT quitRequested();
        return;
    case CommandId::NewCollageSideBySide:
        return createCollage(CollageLayout::SideBySide);
    case CommandId::NewCollageStacked:
        return createCollage(CollageLayout::Stacked);
    default:
        if (m_services.captures && m_services.captures->knows(command))
            m_services.captures->perform(command);
    }
}

} // namespace tessaly
