// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QuickAccess/PinnedScreenshotController.h"

#include "core/Desktop/Toasts.h"
#include "core/Export/ExportService.h"
#include "ui/QuickAccess/PinnedScreenshotWindow.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>

namespace tessaly {

using namespace std::chrono_literals;

struct PinnedScreenshotController::Implementation {
    Surroundings surroundings;
    QList<PinnedScreenshotWindow *> windows; ///< in the order in which they were pinned
};

namespace {

QScreen &screenOf(const std::optional<QRect> &near)
{
    QScreen *screen = near ? QGuiApplication::screenAt(near->center()) : nullptr;
    return screen ? *screen : screenWithPointer();
}

} // namespace

PinnedScreenshotController::PinnedScreenshotController(const Surroundings &surroundings) :
    m_implementation(std::make_unique<Implementation>(Implementation { surroundings, {} }))
{
}

PinnedScreenshotController::~PinnedScreenshotController()
{
    for (PinnedScreenshotWindow *window : std::exchange(m_implementation->windows, {})) {
        window->disconnect(this);
        delete window;
    }
}

void PinnedScreenshotController::pin(const RasterImage &image, std::optional<QRect> near)
{
    const Surroundings &with = m_implementation->surroundings;
    // From the event loop: a panel for saving may be open for long, and the window be closed meanwhile.
    const auto later = [this](std::function<void(RasterImage)> act) {
        return [this, act = std::move(act)](const RasterImage &picture) {
            QMetaObject::invokeMethod(
                this, [act, picture] { act(picture); }, Qt::QueuedConnection);
        };
    };
    auto *window = new PinnedScreenshotWindow(image, with.layers,
        { .copy = later([&with](const RasterImage &picture) {
             with.exports.copy(picture, true);
             with.toasts.show(QCoreApplication::translate("QuickAccess", "Copied to clipboard"));
         }),
            .save
            = later([&with](const RasterImage &picture) { with.exports.save(picture, storedFormat(with.settings)); }),
            .openInEditor = later([this](const RasterImage &picture) { openEditor(picture); }) });
    QList<QPoint> taken;
    for (const PinnedScreenshotWindow *other : std::as_const(m_implementation->windows))
        taken += other->place().topLeft();
    m_implementation->windows += window;
    connect(window, &PinnedScreenshotWindow::lockedChanged, this, [this, window] { tellLocked(window->isLocked()); });
    connect(window, &PinnedScreenshotWindow::closed, this, [this, window] {
        if (!m_implementation->windows.removeOne(window))
            return;
        Q_EMIT countsChanged();
    });
    window->appear(screenOf(near), near, taken);
    Q_EMIT countsChanged();
}

void PinnedScreenshotController::tellLocked(bool locked)
{
    Q_EMIT countsChanged();
    if (locked)
        m_implementation->surroundings.toasts.show(
            tr("Clicks now pass through. To unlock, choose Unlock Pinned Screenshots from the Tessaly menu bar icon or "
               "the Window menu."),
            4s);
}

void PinnedScreenshotController::closeAll()
{
    for (PinnedScreenshotWindow *window : QList(m_implementation->windows))
        window->closePin();
}

void PinnedScreenshotController::unlockAll()
{
    for (PinnedScreenshotWindow *window : QList(m_implementation->windows))
        window->unlock();
}

int PinnedScreenshotController::count() const { return static_cast<int>(m_implementation->windows.size()); }

int PinnedScreenshotController::lockedCount() const
{
    return static_cast<int>(
        std::ranges::count_if(m_implementation->windows, [](const auto &window) { return window->isLocked(); }));
}

} // namespace tessaly
