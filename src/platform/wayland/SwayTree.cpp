// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/SwayTree.h"

#include <QJsonDocument>

namespace tessaly::SwayTree {

namespace {

/// Where a window lies in depth; the smaller number is nearer to the eye.
enum class Level { FullScreen, Floating, Tiled };

struct Found {
    ScreenWindow window;
    Level level;
    bool focused;
    bool visible;
};

QRectF rectOf(const QJsonValue &value)
{
    return QRectF(
        value[u"x"].toDouble(), value[u"y"].toDouble(), value[u"width"].toDouble(), value[u"height"].toDouble());
}

/// Sway's rectangle of a window leaves its title bar out, which lies above it: as one line, or as one for each of the
/// windows that are stacked at this place.
QRectF withTitleBar(const QJsonObject &node, const QJsonObject &parent)
{
    const double line = rectOf(node[u"deco_rect"]).height();
    const bool stacked = parent[u"layout"].toString() == u"stacked";
    const double lines = stacked ? double(parent[u"nodes"].toArray().size()) : 1;
    return rectOf(node[u"rect"]).adjusted(0, -line * lines, 0, 0);
}

Found windowOf(const QJsonObject &node, const QJsonObject &parent, Level level)
{
    ScreenWindow window;
    window.id = static_cast<quint64>(node[u"id"].toDouble());
    window.title = node[u"name"].toString();
    const QString applicationId = node[u"app_id"].toString();
    const QString x11Class = node[u"window_properties"][u"class"].toString();
    window.applicationName = applicationId.isEmpty() ? x11Class : applicationId;
    window.processId = static_cast<qint64>(node[u"pid"].toDouble());
    window.layoutRect = withTitleBar(node, parent);
    return { window, level, node[u"focused"].toBool(), node[u"visible"].toBool() };
}

void collect(const QJsonObject &node, const QJsonObject &parent, Level level, QList<Found> &found)
{
    if (node[u"fullscreen_mode"].toInt() > 0 && node[u"type"].toString() != u"workspace")
        level = Level::FullScreen;
    if (node[u"pid"].isDouble())
        found.append(windowOf(node, parent, level));
    const QJsonArray floating = node[u"floating_nodes"].toArray();
    for (const QJsonValue &child : floating)
        collect(child.toObject(), node, std::min(level, Level::Floating), found);
    const QJsonArray tiled = node[u"nodes"].toArray();
    for (const QJsonValue &child : tiled)
        collect(child.toObject(), node, level, found);
}

QList<Found> allWindows(const QByteArray &tree)
{
    QList<Found> found;
    collect(QJsonDocument::fromJson(tree).object(), {}, Level::Tiled, found);
    return found;
}

} // namespace

QList<ScreenWindow> visibleWindows(const QByteArray &tree)
{
    QList<Found> found = allWindows(tree);
    found.removeIf([](const Found &one) { return !one.visible; });
    // Sway lists what it draws last at the end.
    std::ranges::reverse(found);
    std::ranges::stable_sort(found, {}, [](const Found &one) { return std::pair(one.level, !one.focused); });
    QList<ScreenWindow> windows;
    for (const Found &one : std::as_const(found))
        windows.append(one.window);
    return windows;
}

std::optional<ScreenWindow> focusedWindow(const QByteArray &tree)
{
    const QList<Found> found = allWindows(tree);
    const auto focused = std::ranges::find_if(found, &Found::focused);
    return focused == found.end() ? std::nullopt : std::optional(focused->window);
}

} // namespace tessaly::SwayTree
