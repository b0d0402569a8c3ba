// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Overlay/OverlayController.h"

#include "core/Desktop/WindowLayers.h"
#include "ui/Overlay/OverlaySession.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

namespace tessaly {

namespace {

struct DeleteLater {
    void operator()(SelectionView *view) const { view->deleteLater(); }
};

/// A screen's window, hidden but while it is open. It may have to go in the middle of an event of its own.
struct Cover {
    QScreen *screen;
    std::unique_ptr<SelectionView, DeleteLater> view;
};

} // namespace

struct OverlayController::Implementation {
    explicit Implementation(const Surroundings &given) : surroundings(given) { }

    Surroundings surroundings;
    std::vector<Cover> covers;
    OverlaySession *session = nullptr; ///< while it is open
    QList<SelectionView *> openViews;
    int sessionNumber = 0;
    Completion completion;
    QTimer rest;

    void coverScreens();
    void cover(QScreen &screen);
    void uncover(const QScreen *screen);
    SelectionView *viewOf(const Display &display) const;
    QList<SelectionView *> viewsOf(const QList<Display> &displays) const;
    void release();
    void end(const OverlayResult &result);
};

/// Makes the windows that are missing and those that can no longer show what they should.
void OverlayController::Implementation::coverScreens()
{
    const bool seeThrough = surroundings.layers.showsTransparency();
    std::erase_if(covers, [=](const Cover &cover) { return cover.view->isSeeThrough() != seeThrough; });
    for (QScreen *screen : QGuiApplication::screens())
        if (std::ranges::find(covers, screen, &Cover::screen) == covers.end())
            cover(*screen);
}

void OverlayController::Implementation::cover(QScreen &screen)
{
    auto *view = new SelectionView(screen, surroundings.layers.showsTransparency(), surroundings.layers.takesParts());
    covers.push_back({ &screen, std::unique_ptr<SelectionView, DeleteLater>(view) });
    surroundings.layers.prepareCover(*view, screen);
    QObject::connect(&screen, &QScreen::geometryChanged, view, [this, screen = &screen] { uncover(screen); });
}

/// The screen is no longer what its window was made for. A selection that covers it comes to nothing.
void OverlayController::Implementation::uncover(const QScreen *screen)
{
    const auto found = std::ranges::find(covers, screen, &Cover::screen);
    if (found == covers.end())
        return;
    const Cover gone = std::move(*found);
    covers.erase(found);
    if (openViews.contains(gone.view.get()))
        end({});
}

SelectionView *OverlayController::Implementation::viewOf(const Display &display) const
{
    const auto named
        = std::ranges::find_if(covers, [&](const Cover &cover) { return cover.screen->name() == display.name; });
    return named == covers.end() ? nullptr : named->view.get();
}

/// The one that the pointer is on comes first.
QList<SelectionView *> OverlayController::Implementation::viewsOf(const QList<Display> &displays) const
{
    const QScreen *pointed = QGuiApplication::screenAt(QCursor::pos());
    QList<SelectionView *> views;
    for (const Display &display : displays)
        if (SelectionView *view = viewOf(display); view && !views.contains(view))
            views.insert(view->screen() == pointed ? 0 : views.size(), view);
    return views;
}

void OverlayController::Implementation::release()
{
    rest.stop();
    if (session)
        return;
    for (const Cover &cover : covers)
        cover.view->releaseSurface();
}

void OverlayController::Implementation::end(const OverlayResult &result)
{
    if (!session)
        return;
    std::exchange(session, nullptr)->deleteLater();
    for (SelectionView *view : std::exchange(openViews, {})) {
        view->close();
        surroundings.layers.hideCover(*view);
    }
    rest.start(surroundings.rest);
    std::exchange(completion, nullptr)(result);
}

OverlayController::OverlayController(const Surroundings &surroundings) :
    m_implementation(std::make_unique<Implementation>(surroundings))
{
    auto &rest = m_implementation->rest;
    rest.setSingleShot(true);
    rest.setTimerType(Qt::VeryCoarseTimer);
    connect(&rest, &QTimer::timeout, this, &OverlayController::release);
    connect(
        qGuiApp, &QGuiApplication::screenRemoved, this, [this](QScreen *screen) { m_implementation->uncover(screen); });
}

/// Whoever waits for the present selection is not told any more: it may be gone.
OverlayController::~OverlayController()
{
    for (SelectionView *view : m_implementation->openViews) {
        view->close();
        m_implementation->surroundings.layers.hideCover(*view);
    }
    delete m_implementation->session;
    for (Cover &cover : m_implementation->covers)
        delete cover.view.release();
}

bool OverlayController::showsLiveScreen() const { return m_implementation->surroundings.layers.showsTransparency(); }

void OverlayController::prepare(OverlayUse use)
{
    m_implementation->coverScreens();
    if (m_implementation->session)
        return;
    for (const Cover &cover : m_implementation->covers)
        cover.view->prepareSurface(use);
    m_implementation->rest.start(m_implementation->surroundings.rest);
}

void OverlayController::release() { m_implementation->release(); }

int OverlayController::begin(Opening opening, Completion completion)
{
    cancel();
    auto &self = *m_implementation;
    const int number = ++self.sessionNumber;
    self.rest.stop();
    self.coverScreens();
    self.openViews = self.viewsOf(opening.displays);
    if (self.openViews.isEmpty()) {
        completion({});
        return number;
    }
    self.completion = std::move(completion);
    self.session = new OverlaySession(
        self.surroundings, self.openViews, [&self](const OverlayResult &result) { self.end(result); });
    for (const Display &display : opening.displays)
        if (SelectionView *view = self.viewOf(display))
            view->open(*self.session, display, opening.pictures.value(display.id()), opening.mode);
    self.session->open(opening);
    // The last one has the keyboard. The window system shows them while they are painted.
    const QList<SelectionView *> views = self.openViews;
    for (auto view = views.crbegin(); view != views.crend(); ++view)
        self.surroundings.layers.showCover(**view);
    for (SelectionView *view : views)
        view->paintAhead();
    return number;
}

void OverlayController::setSnapshots(DisplaySnapshots snapshots, int session)
{
    if (m_implementation->session && session == m_implementation->sessionNumber)
        m_implementation->session->setSnapshots(snapshots);
}

void OverlayController::setMode(OverlayMode mode)
{
    if (m_implementation->session)
        m_implementation->session->setMode(mode);
}

bool OverlayController::isOpen() const { return m_implementation->session != nullptr; }
void OverlayController::cancel() { m_implementation->end({}); }

} // namespace tessaly
