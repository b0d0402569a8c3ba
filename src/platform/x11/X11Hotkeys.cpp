// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11Hotkeys.h"

#include "core/Hotkey/CaptureHotKey.h"
#include "core/Hotkey/KeyCodes.h"
#include "platform/x11/KeyboardMap.h"
#include "platform/x11/X11Connection.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <QSocketNotifier>
#include <QWindow>

namespace tessaly {

namespace {

/// The server's codes of keys are the kernel's, moved by this.
constexpr int firstKernelKey = 8;

/// The bits that the modifiers have in the server's events; it is up to the keyboard's map.
struct ModifierBits {
    uint16_t alt = XCB_MOD_MASK_1;
    uint16_t super = XCB_MOD_MASK_4;
    uint16_t numLock = 0;

    static ModifierBits read(xcb_connection_t *xcb)
    {
        const KeyboardMap keyboard(xcb);
        ModifierBits bits;
        if (const auto alt = keyboard.modifierOf({ KeyboardMap::leftAlt, KeyboardMap::rightAlt }))
            bits.alt = alt;
        if (const auto super = keyboard.modifierOf({ KeyboardMap::leftSuper, KeyboardMap::rightSuper }))
            bits.super = super;
        bits.numLock = keyboard.modifierOf({ KeyboardMap::numLock });
        return bits;
    }

    uint16_t of(quint32 stored) const
    {
        return static_cast<uint16_t>((stored & CaptureHotKey::command ? int(XCB_MOD_MASK_CONTROL) : 0)
            | (stored & CaptureHotKey::shift ? int(XCB_MOD_MASK_SHIFT) : 0) | (stored & CaptureHotKey::option ? alt : 0)
            | (stored & CaptureHotKey::control ? super : 0));
    }

    /// Those that a combination can have; other bits of an event tell locks and pointer buttons.
    uint16_t all() const { return static_cast<uint16_t>(XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT | alt | super); }

    bool operator==(const ModifierBits &) const = default;
};

/// Tells a key that goes down from one that is held: the server then sends a release and a press of one moment, or
/// presses alone. The release may have gone to another program, so that after a while without a press it is forgotten.
class HeldKey {
public:
    bool isRepeat(const xcb_key_press_event_t &press)
    {
        constexpr xcb_timestamp_t longestDelay = 2000; // ms
        const bool isHeld = m_isDown && press.time - m_pressed < longestDelay;
        const bool wasHeld = !m_isDown && press.time == m_released;
        const bool isSame = press.detail == std::exchange(m_key, press.detail);
        m_isDown = true;
        m_pressed = press.time;
        return isSame && (isHeld || wasHeld);
    }

    void release(const xcb_key_release_event_t &release)
    {
        if (release.detail != m_key)
            return;
        m_isDown = false;
        m_released = release.time;
    }

private:
    bool m_isDown = false;
    xcb_keycode_t m_key = 0;
    xcb_timestamp_t m_pressed = 0;
    xcb_timestamp_t m_released = 0;
};

} // namespace

struct X11Hotkeys::Implementation final : QObject, QAbstractNativeEventFilter {
    Implementation(X11Hotkeys &owner, std::unique_ptr<X11Connection> server);
    ~Implementation() override;

    struct Grab {
        quint32 identifier;
        uint16_t modifiers;
        QList<xcb_keycode_t> keys; ///< those that were granted
    };

    bool isAlive() const { return xcb_connection_has_error(server->xcb()) == 0; }
    std::array<uint16_t, 4> lockVariants() const;
    bool grab(xcb_keycode_t key, uint16_t modifiers) const;
    void ungrab(const Grab &grab) const;
    void readEvents();
    void press(const xcb_key_press_event_t &event);
    const Grab *find(const xcb_key_press_event_t &event) const;
    void followKeyboard();
    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;

    X11Hotkeys &owner;
    std::unique_ptr<X11Connection> server;
    QSocketNotifier notifier;
    ModifierBits bits;
    QList<Grab> grabs;
    HeldKey held;
};

X11Hotkeys::Implementation::Implementation(X11Hotkeys &ownerOfThis, std::unique_ptr<X11Connection> connection) :
    owner(ownerOfThis),
    server(std::move(connection)),
    notifier(xcb_get_file_descriptor(server->xcb()), QSocketNotifier::Read),
    bits(ModifierBits::read(server->xcb()))
{
    connect(&notifier, &QSocketNotifier::activated, this, &Implementation::readEvents);
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11Hotkeys::Implementation::~Implementation() { QCoreApplication::instance()->removeNativeEventFilter(this); }

/// Caps Lock and Num Lock shall make no difference, and the server knows combinations as they are only.
std::array<uint16_t, 4> X11Hotkeys::Implementation::lockVariants() const
{
    return { 0, XCB_MOD_MASK_LOCK, bits.numLock, static_cast<uint16_t>(bits.numLock | XCB_MOD_MASK_LOCK) };
}

/// All variants or none.
bool X11Hotkeys::Implementation::grab(xcb_keycode_t key, uint16_t modifiers) const
{
    xcb_connection_t *xcb = server->xcb();
    QList<std::pair<uint16_t, xcb_void_cookie_t>> requests;
    for (const uint16_t locks : lockVariants()) {
        const auto variant = static_cast<uint16_t>(modifiers | locks);
        requests.emplace_back(variant,
            xcb_grab_key_checked(xcb, 0, server->root(), variant, key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
    QList<uint16_t> granted;
    for (const auto &[variant, request] : requests) {
        if (!XcbReply<xcb_generic_error_t>(xcb_request_check(xcb, request)))
            granted += variant;
    }
    if (granted.size() == requests.size() && isAlive())
        return true;
    for (const uint16_t variant : granted)
        xcb_ungrab_key(xcb, key, server->root(), variant);
    xcb_flush(xcb);
    return false;
}

void X11Hotkeys::Implementation::ungrab(const Grab &grab) const
{
    for (const xcb_keycode_t key : grab.keys) {
        for (const uint16_t locks : lockVariants())
            xcb_ungrab_key(server->xcb(), key, server->root(), static_cast<uint16_t>(grab.modifiers | locks));
    }
    xcb_flush(server->xcb());
}

void X11Hotkeys::Implementation::readEvents()
{
    bool keyboardChanged = false;
    while (const XcbReply<xcb_generic_event_t> event { xcb_poll_for_event(server->xcb()) }) {
        switch (event->response_type & 0x7f) {
        case XCB_KEY_PRESS:
            press(*reinterpret_cast<const xcb_key_press_event_t *>(event.get()));
            break;
        case XCB_KEY_RELEASE:
            held.release(*reinterpret_cast<const xcb_key_release_event_t *>(event.get()));
            break;
        case XCB_MAPPING_NOTIFY: // comes to every connection that does not speak XKB
            keyboardChanged = true;
            break;
        default:
            break;
        }
    }
    if (!isAlive())
        return notifier.setEnabled(false);
    if (keyboardChanged)
        followKeyboard();
}

/// Keys have their numbers on every layout; which bits the modifiers are may have changed.
void X11Hotkeys::Implementation::followKeyboard()
{
    const ModifierBits now = ModifierBits::read(server->xcb());
    if (now == bits || !isAlive())
        return;
    for (const Grab &grab : std::exchange(grabs, {}))
        ungrab(grab);
    bits = now;
    if (owner.changed)
        owner.changed();
}

const X11Hotkeys::Implementation::Grab *X11Hotkeys::Implementation::find(const xcb_key_press_event_t &event) const
{
    const auto isMeant = [&](const Grab &grab) {
        return grab.keys.contains(event.detail) && grab.modifiers == (event.state & bits.all());
    };
    const auto grab = std::ranges::find_if(grabs, isMeant);
    return grab == grabs.end() ? nullptr : &*grab;
}

void X11Hotkeys::Implementation::press(const xcb_key_press_event_t &event)
{
    const Grab *grab = find(event);
    if (grab && !held.isRepeat(event) && owner.pressed)
        owner.pressed(grab->identifier);
}

/// While a window of this program has all keys, as the selection does, hot keys come to it. In a menu they stay its
/// own, as they do in those of other programs.
bool X11Hotkeys::Implementation::nativeEventFilter(const QByteArray &type, void *message, qintptr *)
{
    if (type != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_key_press_event_t *>(message);
    const int kind = event->response_type & 0x7f;
    if (kind == XCB_KEY_RELEASE)
        held.release(*event);
    if (kind != XCB_KEY_PRESS || !find(*event))
        return false;
    const auto isMenu = [](const QWindow *window) { return window->isVisible() && window->type() == Qt::Popup; };
    if (std::ranges::any_of(QGuiApplication::topLevelWindows(), isMenu))
        return false;
    press(*event);
    return true;
}

X11Hotkeys::X11Hotkeys() : X11Hotkeys(QString()) { }

X11Hotkeys::X11Hotkeys(const QString &display)
{
    if (auto server = X11Connection::open(display))
        m_implementation = std::make_unique<Implementation>(*this, *std::move(server));
}

X11Hotkeys::~X11Hotkeys() = default;

HotkeyBackend::Ability X11Hotkeys::ability() const { return m_implementation ? Ability::Grabs : Ability::None; }

bool X11Hotkeys::add(quint32 identifier, CaptureAction, quint32 keyCode, quint32 modifiers)
{
    const KeyRow *row = KeyCodes::find(keyCode);
    if (!m_implementation || !row || !m_implementation->isAlive())
        return false;
    Implementation &own = *m_implementation;
    // Events that came meanwhile are in the connection's memory, where its socket does not tell of them.
    QMetaObject::invokeMethod(&own, &Implementation::readEvents, Qt::QueuedConnection);
    Implementation::Grab grab { identifier, own.bits.of(modifiers), {} };
    const xcb_setup_t *setup = xcb_get_setup(own.server->xcb());
    for (const quint16 kernelCode : row->evdevCodes) {
        const int key = kernelCode + firstKernelKey;
        if (kernelCode == 0 || key < setup->min_keycode || key > setup->max_keycode)
            continue;
        const bool isOurs = std::ranges::any_of(own.grabs, [&](const Implementation::Grab &other) {
            return other.modifiers == grab.modifiers && other.keys.contains(xcb_keycode_t(key));
        });
        if (!isOurs && own.grab(xcb_keycode_t(key), grab.modifiers))
            grab.keys += xcb_keycode_t(key);
        else if (kernelCode == row->evdevCodes.front())
            return false;
    }
    if (!grab.keys.isEmpty())
        own.grabs += grab;
    return !grab.keys.isEmpty();
}

void X11Hotkeys::remove(quint32 identifier)
{
    if (!m_implementation)
        return;
    Implementation &own = *m_implementation;
    const auto grab = std::ranges::find_if(own.grabs, [=](const auto &each) { return each.identifier == identifier; });
    if (grab == own.grabs.end())
        return;
    own.ungrab(*grab);
    own.grabs.erase(grab);
}

} // namespace tessaly
