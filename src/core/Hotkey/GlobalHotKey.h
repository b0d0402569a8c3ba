// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Hotkey/CaptureHotKey.h"
#include "core/Hotkey/HotkeyBackend.h"

#include <QHash>

#include <memory>

namespace tessaly {

class GlobalHotKey;

/// Which hot key has which number; it owns none of them.
class HotKeyTable {
public:
    explicit HotKeyTable(HotkeyBackend &backend) : m_backend(backend) { }

    /// Runs what the hot key is for; a number that none has any more is ignored.
    void press(quint32 identifier) const;

private:
    friend class GlobalHotKey;

    HotkeyBackend &m_backend;
    quint32 m_nextIdentifier = 1; ///< none is used twice
    QHash<quint32, const GlobalHotKey *> m_hotKeys;
};

/// A combination that is heard as long as this lives.
class GlobalHotKey {
public:
    /// Null where it is refused; its number is used up all the same. The table outlives it.
    static std::unique_ptr<GlobalHotKey> create(
        HotKeyTable &table, CaptureAction action, const CaptureHotKey &hotKey, std::function<void()> callback);
    ~GlobalHotKey();
    GlobalHotKey(const GlobalHotKey &) = delete;
    GlobalHotKey &operator=(const GlobalHotKey &) = delete;

    quint32 identifier() const { return m_identifier; }
    const std::function<void()> &callback() const { return m_callback; }

private:
    GlobalHotKey(HotKeyTable &table, quint32 identifier, std::function<void()> callback);

    HotKeyTable &m_table;
    quint32 m_identifier;
    std::function<void()> m_callback;
};

} // namespace tessaly
