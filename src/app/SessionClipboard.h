// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/Clipboard.h"

namespace tessaly {

class QtClipboard;

/// The clipboard of this session, by what it has for programs such as this one; it also knows how long the others need
/// what this program has put there.
class SessionClipboard final : public Clipboard {
    Q_OBJECT

public:
    /// There must be a QGuiApplication.
    SessionClipboard();
    ~SessionClipboard() override;

    void offer(std::unique_ptr<ClipboardOffer> offer) override;
    QStringList types() const override { return m_clipboard->types(); }
    std::optional<QStringList> knownTypes() const override { return m_clipboard->knownTypes(); }
    QByteArray data(const QString &type) const override { return m_clipboard->data(type); }

    /// Whether what was offered last is still what can be pasted.
    bool holdsOurs() const { return *m_offers > 0; }
    /// Whether the desktop would keep it after the end of the program.
    bool canHandOver() const;
    /// Before the program ends: leaves what it offers to the desktop, where that keeps such things.
    void handOver();

Q_SIGNALS:
    /// Something else has taken the place of what this program had offered.
    void lost();

private:
    std::unique_ptr<Clipboard> m_clipboard;
    QtClipboard *m_qtClipboard = nullptr; ///< when it is that one
    std::shared_ptr<int> m_offers; ///< alive, with those that are just being replaced
};

} // namespace tessaly
