// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QDBusVariant;

namespace tessaly {

/// Listens to what the desktop prefers, light or dark, through the desktop portal on the session bus. Nobody answers
/// where there is no bus or no portal.
class DesktopAppearance : public QObject {
    Q_OBJECT

public:
    /// Asks once and from then on hears of every change; never blocks.
    explicit DesktopAppearance(QObject *parent = nullptr);

Q_SIGNALS:
    /// Also for the first answer. "No preference" counts as light.
    void answered(bool dark);

private Q_SLOTS:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void ask();
};

} // namespace tessaly
