// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/AccessibleTree.h"
#include "tests/support/Patience.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QThread>

#include <atspi/atspi.h>

namespace tessaly::test {

namespace {

using Handle = std::shared_ptr<AtspiAccessible>;

Handle owned(AtspiAccessible *accessible)
{
    return Handle(accessible, [](AtspiAccessible *object) {
        if (object)
            g_object_unref(object);
    });
}

/// A text that the library hands over.
QString taken(gchar *text)
{
    const QString result = QString::fromUtf8(text);
    g_free(text);
    return result;
}

bool has(AtspiStateSet *states, AtspiStateType state) { return states && atspi_state_set_contains(states, state); }

SeenControl described(const Handle &handle)
{
    SeenControl control { handle };
    control.name = taken(atspi_accessible_get_name(handle.get(), nullptr));
    control.role = taken(atspi_accessible_get_role_name(handle.get(), nullptr));
    if (AtspiStateSet *states = atspi_accessible_get_state_set(handle.get())) {
        control.showing = has(states, ATSPI_STATE_SHOWING) && has(states, ATSPI_STATE_VISIBLE);
        control.active = has(states, ATSPI_STATE_ACTIVE);
        control.checked = has(states, ATSPI_STATE_CHECKED);
        control.sensitive = has(states, ATSPI_STATE_SENSITIVE);
        g_object_unref(states);
    }
    if (AtspiComponent *component = atspi_accessible_get_component_iface(handle.get())) {
        if (AtspiRect *rect = atspi_component_get_extents(component, ATSPI_COORD_TYPE_SCREEN, nullptr)) {
            control.rect = QRect(rect->x, rect->y, rect->width, rect->height);
            g_free(rect);
        }
        g_object_unref(component);
    }
    return control;
}

void collect(const Handle &parent, int depth, QList<SeenControl> &found)
{
    if (depth == 0)
        return;
    const int count = atspi_accessible_get_child_count(parent.get(), nullptr);
    for (int index = 0; index < count; ++index) {
        const Handle child = owned(atspi_accessible_get_child_at_index(parent.get(), index, nullptr));
        if (!child)
            continue;
        found += described(child);
        collect(child, depth - 1, found);
    }
}

} // namespace

AccessibleTree::AccessibleTree(QString application) : m_application(std::move(application))
{
    atspi_init();
    // Else a busy program looks as if it had nothing on the screen.
    atspi_set_timeout(patience, patience);
}

QList<SeenControl> AccessibleTree::controls() const
{
    QList<SeenControl> found;
    const Handle desktop = owned(atspi_get_desktop(0));
    const int count = desktop ? atspi_accessible_get_child_count(desktop.get(), nullptr) : 0;
    for (int index = 0; index < count; ++index) {
        const Handle program = owned(atspi_accessible_get_child_at_index(desktop.get(), index, nullptr));
        if (!program || taken(atspi_accessible_get_name(program.get(), nullptr)) != m_application)
            continue;
        atspi_accessible_clear_cache(program.get());
        collect(program, 30, found);
    }
    return found;
}

std::optional<SeenControl> AccessibleTree::find(const QString &name, const QString &role) const
{
    return waitFor(name, role, [](const SeenControl &) { return true; });
}

bool AccessibleTree::waitUntilActive(const QString &name, const QString &role) const
{
    return waitFor(name, role, [](const SeenControl &control) { return control.active; }).has_value();
}

std::optional<SeenControl> AccessibleTree::waitFor(
    const QString &name, const QString &role, const std::function<bool(const SeenControl &)> &isWanted) const
{
    const QDeadlineTimer deadline(patience);
    do {
        for (const SeenControl &control : controls()) {
            if (control.showing && control.name.startsWith(name) && (role.isEmpty() || control.role == role)
                && isWanted(control))
                return control;
        }
        QThread::msleep(50);
    } while (!deadline.hasExpired());
    QStringList seen;
    for (const SeenControl &control : controls()) {
        if (control.showing && !control.name.isEmpty())
            seen += QLatin1StringView(control.active ? "active " : "") + control.role + u' ' + control.name;
    }
    qWarning().noquote() << "no" << name << "among" << seen.join(u", ");
    return std::nullopt;
}

bool AccessibleTree::shows(const QString &name) const
{
    const auto all = controls();
    return std::ranges::any_of(
        all, [&](const SeenControl &control) { return control.showing && control.name.startsWith(name); });
}

bool AccessibleTree::activate(const SeenControl &control) const
{
    AtspiAction *action = atspi_accessible_get_action_iface(control.handle.get());
    if (!action)
        return false;
    const bool done = atspi_action_do_action(action, 0, nullptr);
    g_object_unref(action);
    return done;
}

} // namespace tessaly::test
