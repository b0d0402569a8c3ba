// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractNativeEventFilter>

#include <cstdint>
#include <functional>

struct xcb_connection_t;

namespace tessaly {

/// The tray of an X server that takes the windows of programs into its own (XEmbed): the owner of a selection. It is
/// followed by the events that Qt's connection hears anyway. On other window systems there is none.
class EmbeddingTray : private QAbstractNativeEventFilter {
public:
    /// `changed` is called when a tray has come or gone.
    explicit EmbeddingTray(std::function<void()> changed);
    ~EmbeddingTray();

    bool isThere() const { return m_owner != 0; }

private:
    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *) override;
    void look();

    std::function<void()> m_changed;
    xcb_connection_t *m_connection = nullptr;
    std::uint32_t m_selection = 0; ///< atoms
    std::uint32_t m_announcement = 0;
    std::uint32_t m_owner = 0; ///< a window; 0 for none
};

} // namespace tessaly
