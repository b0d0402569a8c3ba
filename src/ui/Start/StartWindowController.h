// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QUuid>

#include <functional>
#include <memory>

namespace tessaly {

class CaptureHistory;
class Clipboard;
class Clock;
class CommandTarget;
class ExportService;
class Links;
class PaletteSupply;
class Settings;
struct DroppedContent;

/// What the start window needs of the program; each outlives it.
struct StartServices {
    CaptureHistory &history;
    Settings &settings;
    Clipboard &clipboard;
    ExportService &exports;
    Links &links;
    const Clock &clock;
};

/// What the start window asks the program to do.
struct StartRequests {
    std::function<void()> openFile; ///< "Open…"
    std::function<void()> paste;
    std::function<void(const QUuid &id)> openEntry;
    std::function<void(const DroppedContent &)> openDropped = {}; ///< on the window; nothing can be without
    CommandTarget *program = nullptr; ///< whose commands its menus and keys offer; outlives the window
    PaletteSupply *palette = nullptr; ///< of the command palette of all windows; outlives the window
};

/// The window with the recent captures; made when it is first shown, and kept. Main thread only.
class StartWindowController : public QObject {
    Q_OBJECT

public:
    StartWindowController(const StartServices &services, StartRequests requests);
    ~StartWindowController() override;

    /// Shows the window, or brings it to the front.
    void show();
    bool isVisible() const;
    void close();
    /// A sentence that it shows below all others; empty for none.
    void setHint(const QString &sentence);

Q_SIGNALS:
    /// The user has closed the window.
    void closed();

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
