// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QuickAccess/QuickAccessController.h"

#include "core/Capture/PostCaptureRouter.h"
#include "core/Desktop/Toasts.h"
#include "core/Export/ExportService.h"
#include "core/Export/PictureTitle.h"
#include "core/Text/TextCopier.h"
#include "ui/QuickAccess/PinnedScreenshotController.h"
#include "ui/QuickAccess/QuickAccessItem.h"
#include "ui/QuickAccess/QuickAccessStack.h"
#include "ui/QuickAccess/QuickAccessView.h"

#include <QGuiApplication>

#include <vector>

namespace tessaly {

using namespace std::chrono_literals;

struct QuickAccessController::Implementation {
    Implementation(QuickAccessController &owner, const Surroundings &with) : controller(owner), surroundings(with) { }
    ~Implementation();

    QuickAccessItem &add(const RasterImage &image);
    void connectPanel(QuickAccessItem &item);
    void layOut();
    void moveOrShow(QuickAccessItem &item, const QRect &place, QuickAccessStack::Corner corner);
    void setHovered(QuickAccessItem &item, bool hovered);
    void setShown(QuickAccessItem &item, bool shown);
    void dismissWhenDue(const QuickAccessPanel *panel);
    void dismiss(QuickAccessItem &item);
    QuickAccessItem *itemOf(const QuickAccessPanel *panel) const;
    void act(const QuickAccessPanel *panel, QuickAccessAction action);
    void copy(QuickAccessItem &item);
    void save(const QuickAccessPanel *panel);
    bool canCopyText() const { return surroundings.textCopier && surroundings.textCopier->isSupported(); }

    QuickAccessController &controller;
    Surroundings surroundings;
    std::vector<std::unique_ptr<QuickAccessItem>> items; ///< newest first
    QList<QuickAccessPanel *> panels; ///< those that fade out included
};

QuickAccessController::Implementation::~Implementation()
{
    for (QuickAccessPanel *panel : std::exchange(panels, {})) {
        panel->disconnect(&controller);
        delete panel;
    }
}

QuickAccessItem &QuickAccessController::Implementation::add(const RasterImage &image)
{
    items.insert(items.begin(), std::make_unique<QuickAccessItem>());
    QuickAccessItem &item = *items.front();
    item.image = image;
    item.screen = &screenWithPointer();
    item.panel = new QuickAccessPanel(image, canCopyText(), surroundings.layers);
    item.timeLeft = surroundings.lifetime;
    item.dismissWork.setSingleShot(true);
    panels += item.panel;
    connectPanel(item);
    return item;
}

/// What the user chooses is done from the event loop: a panel for saving may be open for long, and the thumbnail's own
/// window goes meanwhile.
void QuickAccessController::Implementation::connectPanel(QuickAccessItem &item)
{
    QuickAccessPanel *panel = item.panel;
    QObject::connect(
        &item.dismissWork, &QTimer::timeout, &controller, [this, panel] { dismissWhenDue(panel); },
        Qt::QueuedConnection); // it ends the timer
    QObject::connect(panel, &QuickAccessPanel::hovered, &controller, [this, panel](bool hovered) {
        if (QuickAccessItem *its = itemOf(panel))
            setHovered(*its, hovered);
    });
    QObject::connect(panel, &QuickAccessPanel::shownChanged, &controller, [this, panel](bool shown) {
        if (QuickAccessItem *its = itemOf(panel))
            setShown(*its, shown);
    });
    QObject::connect(
        &panel->view(), &QuickAccessView::chosen, &controller,
        [this, panel](QuickAccessAction action) { act(panel, action); }, Qt::QueuedConnection);
    QObject::connect(panel, &QObject::destroyed, &controller, [this, panel] {
        panels.removeOne(panel);
        if (std::erase_if(items, [panel](const auto &each) { return each->panel == panel; })) // closed from outside
            layOut();
        if (panels.isEmpty())
            Q_EMIT controller.emptied();
    });
}

/// Every screen has its own stack.
void QuickAccessController::Implementation::layOut()
{
    const QuickAccessStack::Corner corner = QuickAccessStack::chosenCorner(surroundings.settings);
    for (const auto &item : items) {
        if (!item->screen)
            item->screen = QGuiApplication::primaryScreen();
    }
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (QScreen *screen : screens) {
        std::vector<QuickAccessItem *> here;
        QList<QSize> sizes;
        for (const auto &item : items) {
            if (item->screen != screen)
                continue;
            here.push_back(item.get());
            sizes += item->panel->size();
        }
        const QList<QRect> places = QuickAccessStack::places(sizes, screen->availableGeometry(), corner);
        const auto fitting = static_cast<size_t>(places.size());
        for (size_t index = 0; index < fitting; ++index)
            moveOrShow(*here[index], places[static_cast<qsizetype>(index)], corner);
        if (here.size() > fitting)
            return dismiss(*here.back()); // which lays out again
    }
}

void QuickAccessController::Implementation::moveOrShow(
    QuickAccessItem &item, const QRect &place, QuickAccessStack::Corner corner)
{
    if (item.panel->restingPlace().isNull())
        item.panel->appear(*item.screen, place, QuickAccessStack::outside(place, corner));
    else
        item.panel->slideTo(place);
}

void QuickAccessController::Implementation::setHovered(QuickAccessItem &item, bool hovered)
{
    item.isHovered = hovered;
    if (hovered)
        item.dismissWork.stop();
    else
        item.dismissWork.start(surroundings.afterHover);
}

/// What was left of its time when a capture hid it is left when it comes back.
void QuickAccessController::Implementation::setShown(QuickAccessItem &item, bool shown)
{
    if (shown)
        return item.dismissWork.start(item.timeLeft);
    const bool counts = item.dismissWork.isActive();
    item.timeLeft = counts ? item.dismissWork.remainingTimeAsDuration() : surroundings.afterHover;
    item.dismissWork.stop();
    item.isHovered = false;
}

void QuickAccessController::Implementation::dismissWhenDue(const QuickAccessPanel *panel)
{
    QuickAccessItem *item = itemOf(panel);
    if (item && !item->isHovered && !item->dismissWork.isActive())
        dismiss(*item);
}

void QuickAccessController::Implementation::dismiss(QuickAccessItem &item)
{
    QuickAccessPanel *panel = item.panel;
    item.dismissWork.stop();
    items.erase(std::ranges::find(items, &item, &std::unique_ptr<QuickAccessItem>::get));
    panel->fadeOut();
    layOut();
}

QuickAccessItem *QuickAccessController::Implementation::itemOf(const QuickAccessPanel *panel) const
{
    const auto found = std::ranges::find(items, panel, [](const auto &item) { return item->panel; });
    return found == items.end() ? nullptr : found->get();
}

void QuickAccessController::Implementation::act(const QuickAccessPanel *panel, QuickAccessAction action)
{
    QuickAccessItem *item = itemOf(panel);
    if (!item)
        return; // pressed while it faded
    const RasterImage image = item->image;
    switch (action) {
    case QuickAccessAction::Copy:
        return copy(*item);
    case QuickAccessAction::Save:
        return save(panel);
    case QuickAccessAction::CopyText:
        return surroundings.textCopier->copyText(image);
    case QuickAccessAction::Annotate:
        dismiss(*item);
        return surroundings.router.openEditor(image, PictureTitle::untitled());
    case QuickAccessAction::Pin: {
        const QRect near = panel->restingPlace();
        dismiss(*item);
        return surroundings.pins.pin(image, near);
    }
    case QuickAccessAction::Close:
        return dismiss(*item);
    }
}

void QuickAccessController::Implementation::copy(QuickAccessItem &item)
{
    surroundings.exports.copy(item.image, true);
    surroundings.toasts.show(QCoreApplication::translate("QuickAccess", "Copied to clipboard"));
    dismiss(item);
}

/// A thumbnail that was not saved stays.
void QuickAccessController::Implementation::save(const QuickAccessPanel *panel)
{
    QuickAccessItem *item = itemOf(panel);
    item->dismissWork.stop();
    const RasterImage image = item->image; // which may go while the user is asked where
    const Result<QString> saved = surroundings.router.saveToDisk(image);
    item = itemOf(panel);
    if (!item)
        return;
    if (saved && !saved->isEmpty())
        dismiss(*item);
    else if (!item->isHovered)
        item->dismissWork.start(surroundings.afterHover);
}

QuickAccessController::QuickAccessController(const Surroundings &surroundings) :
    m_implementation(std::make_unique<Implementation>(*this, surroundings))
{
    connect(
        qApp, &QGuiApplication::screenRemoved, this, [this] { m_implementation->layOut(); }, Qt::QueuedConnection);
}

QuickAccessController::~QuickAccessController() = default;

void QuickAccessController::show(const RasterImage &image)
{
    while (m_implementation->items.size() >= QuickAccessStack::mostItems)
        m_implementation->dismiss(*m_implementation->items.back());
    QuickAccessPanel *panel = m_implementation->add(image).panel;
    m_implementation->layOut();
    panel->announce();
}

bool QuickAccessController::isEmpty() const { return m_implementation->items.empty(); }

} // namespace tessaly
