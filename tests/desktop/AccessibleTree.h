// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

struct _AtspiAccessible;

namespace tessaly::test {

/// A control of a running program as assistive technology sees it.
struct SeenControl {
    std::shared_ptr<_AtspiAccessible> handle;
    QString name;
    QString role; ///< "push button", "check box"
    QRect rect; ///< pixels of the screen
    bool showing = false;
    bool active = false; ///< a window that has the keyboard
    bool checked = false;
    bool sensitive = false;
};

/// The accessible objects of the program called `application` on the session bus of this process.
class AccessibleTree {
public:
    explicit AccessibleTree(QString application);

    /// All controls of all windows, those within others after them.
    QList<SeenControl> controls() const;

    /// The first control on the screen whose name starts with `name`, of that role where one is given; waits for it to
    /// appear. Empty when it does not.
    std::optional<SeenControl> find(const QString &name, const QString &role = {}) const;

    /// Waits until such a window has the keyboard, which it gets some time after it was shown.
    bool waitUntilActive(const QString &name, const QString &role = {}) const;

    /// Whether such a control is on the screen now.
    bool shows(const QString &name) const;

    /// Does what a click on it would.
    bool activate(const SeenControl &control) const;

private:
    std::optional<SeenControl> waitFor(
        const QString &name, const QString &role, const std::function<bool(const SeenControl &)> &isWanted) const;

    QString m_application;
};

} // namespace tessaly::test
