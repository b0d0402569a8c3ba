// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Hotkey/CaptureAction.h"
#include "core/Hotkey/HotkeyBackend.h"

#include <QObject>

#include <memory>

namespace tessaly {

class Settings;

/// Keeps the registered hot keys in step with the settings. One for the program; main thread only.
class HotkeyService : public QObject {
    Q_OBJECT

public:
    /// Keeps the references. Nothing is registered before reload(); from then on a change of the settings or of the
    /// keyboard reloads by itself, from the event loop. `run` is called from there, too.
    HotkeyService(Settings &settings, HotkeyBackend &backend, std::function<void(CaptureAction)> run);
    ~HotkeyService() override;

    enum class State {
        Active,
        Refused, ///< another program holds the combination
        Doubled, ///< an earlier action has the same one
        NotOffered, ///< this desktop gives programs no hot keys
    };
    /// Makes the registered hot keys match the settings.
    void reload();
    State stateOf(CaptureAction action) const;
    HotkeyBackend::Ability ability() const;
    /// See HotkeyBackend::given().
    std::optional<QString> given(CaptureAction action) const;

    /// While a combination is recorded nothing is heard, and combinations that are taken are let go: their keys would
    /// not come to the window. The states stay; with resume() all is as the settings say.
    void pause();
    void resume();

Q_SIGNALS:
    /// After a reload.
    void reloaded();

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
