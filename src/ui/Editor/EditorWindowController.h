// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationStore.h"
#include "core/Document/FileLoading.h"
#include "core/Imaging/Collage.h"
#include "ui/Editor/EditorServices.h"
#include "ui/Menu/CommandTarget.h"

#include <QObject>
#include <QUrl>

#include <vector>

namespace tessaly {

struct DroppedContent;
class EditorView;
class EditorWindow;
class EditorZoom;

/// Opens, finds and closes the editors of the program. One for the program; main thread only.
class EditorWindowController : public QObject, public CommandTarget {
    Q_OBJECT

public:
    /// Keeps the services.
    explicit EditorWindowController(const EditorServices &services, QObject *parent = nullptr);
    /// Closes what is open without asking.
    ~EditorWindowController() override;

    /// What to open an editor with.
    struct Opening {
        RasterImage image;
        QString title = {};
        QList<Annotation> annotations = {};
        int nextStampNumber = 1;
        std::optional<FrameStyle> frame = {};
        std::optional<Watermark> watermark = {};
        bool usesRememberedFrame = false; ///< a new capture gets the frame and watermark of the settings
        std::optional<QUrl> documentURL = {};
        EditorWindow *tabOf = nullptr; ///< the window to join; a new one without
    };
    EditorView &open(Opening opening);

    /// Makes the window for the next capture ahead of time, unseen.
    void prepareWindow();

    /// Opens a document package or an image file and brings it to the front. On failure an alert has said so, and no
    /// window has changed. False, without an alert, when the user cancelled reading a large file.
    bool openFile(const QString &path);
    /// The same with what was read from the path before.
    bool openLoaded(const QString &path, LoadedFile loaded);
    /// Opens a new capture with the remembered frame, and has the history follow it.
    EditorView &openCapture(RasterImage image, const QString &title);
    /// Opens a capture of the history, or brings the editor that shows it to the front. As openFile on failure.
    bool openHistoryEntry(const QUuid &id);
    void openBlank(EditorWindow *tabOf = nullptr);
    /// Brings the editor that was opened last to the front; without one the start window is asked for.
    void activateOrOpenBlank();
    /// Opens what was dropped on a window, each file in an editor of its own; an alert tells what is not opened.
    void openDropped(const DroppedContent &content);
    /// Opens the clipboard's image as a new capture; a notice says when there is none.
    void openFromClipboard();
    void chooseFiles();

    AnnotationStore *storeOf(const EditorWindow &window) const;
    void bringToFront(const AnnotationStore &store);
    /// The editors whose captures have unsaved changes, in the order in which they were opened.
    QList<EditorView *> dirtyEditors() const;
    bool hasEditors() const { return !m_slots.empty(); }

    /// Asks for each unsaved capture; true when all may go, and then they are closed.
    bool closeAll();

    bool knows(CommandId command) const override;
    bool canPerform(CommandId command) const override;
    void perform(CommandId command) override;
    QList<MenuChoice> choices(CommandId command) const override;
    void choose(CommandId command, const QString &value) override;
    bool canClear(CommandId command) const override { return command == CommandId::OpenRecent; }
    void clear(CommandId command) override;

Q_SIGNALS:
    void quitRequested();
    void startWindowRequested();
    /// The last editor has closed.
    void allClosed();

private:
    /// One open editor. Window and view delete themselves; the slot goes with the view.
    struct WindowSlot {
        EditorWindow *window;
        EditorView *view;
        AnnotationStore *store;
        EditorZoom *zoom;
    };

    std::unique_ptr<AnnotationStore> makeStore(Opening &opening) const;
    static Opening openingOf(TessalyDocument::Contents contents, const QString &title);
    void openDocument(const QString &path, TessalyDocument::Contents contents);
    /// Whether nothing is lost when this version writes the document; else the user is told that it opens as a copy.
    bool mayRewrite(const AnnotationDocument &document);
    void openEntry(const QUuid &id, const QString &title, TessalyDocument::Contents contents);
    EditorWindow &makeWindow();
    static void place(EditorWindow &window, const EditorWindow *previous);
    EditorWindow *activeWindow() const;
    void bringToFront(const WindowSlot &slot);
    void forget(const QObject *view);
    void createCollage(CollageLayout layout);
    /// False when the user wants to keep one of them open; then all are as they were.
    bool mayClose(const QList<EditorView *> &views);
    void close(const QList<EditorView *> &views);

    EditorServices m_services;
    std::unique_ptr<EditorWindow> m_prepared;
    std::vector<WindowSlot> m_slots; ///< in the order in which they were opened
};

} // namespace tessaly
