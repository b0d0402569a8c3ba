// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Hotkey/HotkeyService.h"

#include "core/Hotkey/GlobalHotKey.h"
#include "core/Preferences/HotKeyKeys.h"
#include "core/Preferences/Settings.h"

namespace tessaly {

namespace {

constexpr size_t actionCount = enumNames<CaptureAction>.size();

bool isHotKeySetting(const QString &key)
{
    const auto isOf = [&key](const HotKeyKeys &keys) {
        return key == QLatin1StringView(keys.keyCode.name) || key == QLatin1StringView(keys.modifiers.name)
            || key == QLatin1StringView(keys.keyLabel.name);
    };
    return std::ranges::any_of(hotKeyKeys, isOf);
}

} // namespace

struct HotkeyService::Implementation {
    State take(CaptureAction action, const QList<CaptureHotKey> &earlier);

    Settings &settings;
    HotkeyBackend &backend;
    std::function<void(CaptureAction)> run;
    HotKeyTable table { backend };
    std::vector<std::unique_ptr<GlobalHotKey>> hotKeys;
    std::array<State, actionCount> states {};
    bool started = false;
    bool paused = false;
    bool isDue = false; ///< a reload, which the event loop brings
};

/// Registers the combination of an action unless one of the earlier ones has it.
HotkeyService::State HotkeyService::Implementation::take(CaptureAction action, const QList<CaptureHotKey> &earlier)
{
    const CaptureHotKey hotKey = CaptureHotKey::load(settings, action);
    // What is labelled otherwise is another record, but the same keys.
    if (std::ranges::any_of(earlier, [&](const CaptureHotKey &other) { return other.hasSameKeys(hotKey); }))
        return State::Doubled;
    auto registered = GlobalHotKey::create(table, action, hotKey, [this, action] { run(action); });
    if (!registered)
        return State::Refused;
    hotKeys.push_back(std::move(registered));
    return State::Active;
}

HotkeyService::HotkeyService(Settings &settings, HotkeyBackend &backend, std::function<void(CaptureAction)> run) :
    m_implementation(new Implementation { settings, backend, std::move(run) })
{
    Implementation &own = *m_implementation;
    own.states.fill(State::NotOffered);
    const auto reloadSoon = [this] {
        Implementation &self = *m_implementation;
        if (!self.started || std::exchange(self.isDue, true))
            return;
        const auto reloadIfDue = [this] {
            if (m_implementation->isDue)
                reload();
        };
        QMetaObject::invokeMethod(this, reloadIfDue, Qt::QueuedConnection);
    };
    connect(&settings, &Settings::changed, this, [reloadSoon](const QString &key) {
        if (isHotKeySetting(key))
            reloadSoon();
    });
    backend.changed = reloadSoon;
    backend.pressed = [this](quint32 identifier) {
        const auto press = [this, identifier] {
            if (!m_implementation->paused)
                m_implementation->table.press(identifier);
        };
        QMetaObject::invokeMethod(this, press, Qt::QueuedConnection);
    };
}

HotkeyService::~HotkeyService()
{
    m_implementation->backend.changed = nullptr;
    m_implementation->backend.pressed = nullptr;
}

void HotkeyService::reload()
{
    Implementation &own = *m_implementation;
    own.started = true;
    own.isDue = own.paused;
    if (own.paused)
        return;
    own.hotKeys.clear();
    own.states.fill(State::NotOffered);
    if (ability() != HotkeyBackend::Ability::None) {
        QList<CaptureHotKey> taken;
        for (const CaptureActionRow &row : captureActions()) {
            own.states[static_cast<size_t>(row.action)] = own.take(row.action, taken);
            taken += CaptureHotKey::load(own.settings, row.action);
        }
    }
    Q_EMIT reloaded();
}

HotkeyService::State HotkeyService::stateOf(CaptureAction action) const
{
    const State state = m_implementation->states[static_cast<size_t>(action)];
    const auto words = given(action);
    return state == State::Active && words && words->isEmpty() ? State::Refused : state;
}

HotkeyBackend::Ability HotkeyService::ability() const { return m_implementation->backend.ability(); }

std::optional<QString> HotkeyService::given(CaptureAction action) const
{
    return m_implementation->backend.given(action);
}

void HotkeyService::pause()
{
    Implementation &own = *m_implementation;
    own.paused = true;
    if (ability() == HotkeyBackend::Ability::Grabs)
        own.hotKeys.clear();
}

void HotkeyService::resume()
{
    Implementation &own = *m_implementation;
    if (std::exchange(own.paused, false) && own.started)
        reload();
}

} // namespace tessaly
