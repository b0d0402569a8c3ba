// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Hotkey/GlobalHotKey.h"

namespace tessaly {

void HotKeyTable::press(quint32 identifier) const
{
    if (const GlobalHotKey *hotKey = m_hotKeys.value(identifier)) {
        const auto callback = hotKey->callback(); // it may release the hot key
        callback();
    }
}

std::unique_ptr<GlobalHotKey> GlobalHotKey::create(
    HotKeyTable &table, CaptureAction action, const CaptureHotKey &hotKey, std::function<void()> callback)
{
    const quint32 identifier = table.m_nextIdentifier++;
    if (!table.m_backend.add(identifier, action, hotKey.keyCode, hotKey.modifiers))
        return nullptr;
    return std::unique_ptr<GlobalHotKey>(new GlobalHotKey(table, identifier, std::move(callback)));
}

GlobalHotKey::GlobalHotKey(HotKeyTable &table, quint32 identifier, std::function<void()> callback) :
    m_table(table),
    m_identifier(identifier),
    m_callback(std::move(callback))
{
    m_table.m_hotKeys.insert(m_identifier, this);
}

GlobalHotKey::~GlobalHotKey()
{
    m_table.m_backend.remove(m_identifier);
    m_table.m_hotKeys.remove(m_identifier);
}

} // namespace tessaly
