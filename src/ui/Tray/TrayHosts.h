// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Tray/EmbeddingTray.h"

#include <QObject>

namespace tessaly {

/// Which trays this desktop has now. It asks without waiting and without calling Qt's own tray, which asks once for the
/// program's life.
class TrayHosts : public QObject {
    Q_OBJECT

public:
    explicit TrayHosts(QObject *parent = nullptr);

    /// A tray for items on the session bus (StatusNotifierItem): something keeps the list of items, and a panel shows
    /// them. The former may be there before the latter, and then Qt would hold that there is none.
    bool hasNotifierHost() const { return m_hasNotifierHost; }
    bool hasEmbeddingTray() const { return m_embedding.isThere(); }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void ask();

private:
    void setNotifierHost(bool there);

    EmbeddingTray m_embedding;
    bool m_hasNotifierHost = false;
};

} // namespace tessaly
