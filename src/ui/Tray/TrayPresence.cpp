// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tray/TrayPresence.h"

#include "ui/Tray/TrayHosts.h"
#include "ui/Tray/TrayIcon.h"

#include <QMenu>
#include <QSystemTrayIcon>
#include <QTimer>

namespace tessaly {

namespace {

using namespace std::chrono_literals;

/// Panels and programs start at the same time when a session begins.
constexpr std::chrono::milliseconds patience = 3s;

/// A panel with both kinds of tray brings them one shortly after the other; items on the bus are shown better.
constexpr std::chrono::milliseconds betweenTrays = 1s;

/// Where the icon was put. Qt decides with its first icon, for the program's life; a tray of the other kind that comes
/// later is not used. So no icon is made before there is a tray.
enum class Kind { None, Notifier, Embedded };

} // namespace

struct TrayPresence::Implementation {
    explicit Implementation(TrayPresence &presence, std::function<std::unique_ptr<QMenu>()> makeMenu);

    void follow();
    void findPlace();
    void makeIcon(Kind where);
    bool hostIsThere() const;
    void setState(State next);

    TrayPresence &presence;
    std::function<std::unique_ptr<QMenu>()> makeMenu;
    std::unique_ptr<TrayHosts> hosts; ///< from when an icon is first wanted
    std::unique_ptr<QMenu> menu;
    std::unique_ptr<QSystemTrayIcon> icon;
    Kind kind = Kind::None;
    QTimer waiting; ///< for any tray
    QTimer choosing; ///< between a tray that embeds and one that may yet come
    bool hasChosen = false;
    bool wanted = false;
    State state = State::Off;
};

TrayPresence::Implementation::Implementation(TrayPresence &presence, std::function<std::unique_ptr<QMenu>()> makeMenu) :
    presence(presence),
    makeMenu(std::move(makeMenu))
{
    waiting.setSingleShot(true);
    waiting.setInterval(patience);
    QObject::connect(&waiting, &QTimer::timeout, &presence, [this] { follow(); });
    choosing.setSingleShot(true);
    choosing.setInterval(betweenTrays);
    QObject::connect(&choosing, &QTimer::timeout, &presence, [this] {
        hasChosen = true;
        follow();
    });
}

bool TrayPresence::Implementation::hostIsThere() const
{
    return kind == Kind::Notifier ? hosts->hasNotifierHost() : hosts->hasEmbeddingTray();
}

void TrayPresence::Implementation::makeIcon(Kind where)
{
    kind = where;
    if (!menu)
        menu = makeMenu();
    icon = std::make_unique<QSystemTrayIcon>(TrayIcon::icon());
    icon->setToolTip(TrayPresence::tr("Tessaly"));
    icon->setContextMenu(menu.get());
    QObject::connect(
        icon.get(), &QSystemTrayIcon::activated, &presence, [this](QSystemTrayIcon::ActivationReason reason) {
            if (reason == QSystemTrayIcon::Trigger)
                Q_EMIT presence.activated();
        });
    icon->show();
}

/// What is wanted, what is there, and how long it has been waited for.
void TrayPresence::Implementation::follow()
{
    if (!wanted) {
        waiting.stop();
        choosing.stop();
        icon.reset();
        return setState(State::Off);
    }
    if (!icon)
        findPlace();
    const bool shown = icon && hostIsThere();
    if (shown)
        waiting.stop();
    else if (state == State::Shown || state == State::Off) // the panel is being started, or again
        waiting.start();
    setState(shown ? State::Shown : waiting.isActive() ? State::Waiting : State::NoTray);
}

void TrayPresence::Implementation::findPlace()
{
    if (hosts->hasNotifierHost() && kind != Kind::Embedded)
        return makeIcon(Kind::Notifier);
    if (!hosts->hasEmbeddingTray() || kind == Kind::Notifier)
        return;
    if (kind == Kind::Embedded || hasChosen)
        makeIcon(Kind::Embedded);
    else if (!choosing.isActive())
        choosing.start();
}

void TrayPresence::Implementation::setState(State next)
{
    if (state == next)
        return;
    state = next;
    Q_EMIT presence.stateChanged();
}

TrayPresence::TrayPresence(std::function<std::unique_ptr<QMenu>()> menu) :
    m_implementation(new Implementation(*this, std::move(menu)))
{
}

TrayPresence::~TrayPresence() = default;

TrayPresence::State TrayPresence::state() const { return m_implementation->state; }

bool TrayPresence::isSettling() const { return m_implementation->choosing.isActive(); }

void TrayPresence::setWanted(bool wanted)
{
    Implementation &self = *m_implementation;
    self.wanted = wanted;
    if (wanted && !self.hosts) {
        self.hosts = std::make_unique<TrayHosts>();
        connect(self.hosts.get(), &TrayHosts::changed, this, [this] { m_implementation->follow(); });
    }
    self.follow();
}

} // namespace tessaly
