// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Hotkey/HotkeyService.h"

#include <QWidget>

class QLabel;

namespace tessaly {

/// Quietly, below a combination: that it is not heard, and why, or which keys the desktop has made of it. Without
/// anything to say it is hidden.
class ShortcutStateView final : public QWidget {
public:
    explicit ShortcutStateView(QWidget *parent = nullptr);

    /// `doubledBy`: the action that has the keys, where the state is Doubled.
    void setState(HotkeyService::State state, const std::optional<QString> &given, const QString &doubledBy);
    QString text() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void dress();

    QLabel *m_icon;
    QLabel *m_text;
    bool m_isWarning = false;
};

} // namespace tessaly
