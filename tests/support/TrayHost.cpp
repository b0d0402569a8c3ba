// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/TrayHost.h"

#include <QDateTime>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <QDBusVariant>
#include <QEventLoop>
#include <QSize>

#include <algorithm>

namespace tessaly::test {

namespace {

constexpr auto watcherName = QLatin1StringView("org.kde.StatusNotifierWatcher");
constexpr auto watcherPath = QLatin1StringView("/StatusNotifierWatcher");
constexpr auto itemPath = QLatin1StringView("/StatusNotifierItem");
constexpr auto itemInterface = QLatin1StringView("org.kde.StatusNotifierItem");
constexpr auto menuPath = QLatin1StringView("/MenuBar");
constexpr auto menuInterface = QLatin1StringView("com.canonical.dbusmenu");

TrayEntry read(const QDBusArgument &argument)
{
    TrayEntry entry;
    argument.beginStructure();
    argument >> entry.id >> entry.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        entry.children += read(child.variant().value<QDBusArgument>());
    }
    argument.endArray();
    argument.endStructure();
    return entry;
}

QList<TrayEntry> submenusOf(const TrayEntry &entry)
{
    QList<TrayEntry> found;
    for (const TrayEntry &child : entry.children) {
        if (child.properties.contains(QStringLiteral("children-display")))
            found += child;
    }
    return found;
}

} // namespace

QString TrayEntry::label() const { return properties.value(QStringLiteral("label")).toString().remove(u'_'); }

QStringList TrayEntry::labels() const
{
    QStringList labels;
    for (const TrayEntry &child : children) {
        if (child.isVisible())
            labels += child.isSeparator() ? QStringLiteral("-") : child.label();
    }
    return labels;
}

std::optional<TrayEntry> TrayEntry::find(const QStringList &path) const
{
    if (path.isEmpty())
        return *this;
    for (const TrayEntry &child : children) {
        if (child.isVisible() && child.label() == path.first())
            return child.find(path.mid(1));
    }
    return std::nullopt;
}

QStringList TrayItemList::items() const
{
    const QMutexLocker lock(&m_mutex);
    return m_items;
}

void TrayItemList::clear()
{
    const QMutexLocker lock(&m_mutex);
    m_items.clear();
}

void TrayItemList::setHasPanel(bool has)
{
    const QMutexLocker lock(&m_mutex);
    m_hasPanel = has;
}

QString TrayItemList::introspect(const QString &) const
{
    return QStringLiteral("<interface name=\"org.kde.StatusNotifierWatcher\">"
                          "<method name=\"RegisterStatusNotifierItem\"><arg type=\"s\" direction=\"in\"/></method>"
                          "<property name=\"IsStatusNotifierHostRegistered\" type=\"b\" access=\"read\"/>"
                          "<signal name=\"StatusNotifierHostRegistered\"/></interface>");
}

bool TrayItemList::handleMessage(const QDBusMessage &message, const QDBusConnection &bus)
{
    const QMutexLocker lock(&m_mutex);
    const QString member = message.member();
    if (member == u"RegisterStatusNotifierItem") {
        m_items += message.service();
        return bus.send(message.createReply());
    }
    if (member == u"Get" && message.arguments().value(1).toString() == u"IsStatusNotifierHostRegistered")
        return bus.send(message.createReply(QVariant::fromValue(QDBusVariant(m_hasPanel))));
    return false;
}

TrayHost::TrayHost(const QDBusConnection &bus) : m_bus(bus)
{
    m_list.moveToThread(&m_thread);
    m_thread.start();
    m_bus.registerVirtualObject(watcherPath, &m_list);
}

TrayHost::~TrayHost()
{
    m_bus.unregisterObject(watcherPath);
    m_thread.quit();
    m_thread.wait();
}

bool TrayHost::start(Panel panel)
{
    m_list.setHasPanel(panel == Panel::Present);
    return m_bus.registerService(watcherName);
}

void TrayHost::addPanel()
{
    m_list.setHasPanel(true);
    m_bus.send(QDBusMessage::createSignal(watcherPath, watcherName, QStringLiteral("StatusNotifierHostRegistered")));
}

void TrayHost::stop()
{
    m_bus.unregisterService(watcherName);
    m_list.clear();
}

QStringList TrayHost::items() const
{
    QStringList living;
    for (const QString &item : m_list.items()) {
        if (m_bus.interface()->isServiceRegistered(item))
            living += item;
    }
    return living;
}

QVariantList TrayHost::ask(
    const QString &path, const QString &interface, const QString &method, const QVariantList &arguments) const
{
    const QStringList present = items();
    if (present.isEmpty())
        return {};
    QDBusMessage call = QDBusMessage::createMethodCall(present.first(), path, interface, method);
    call.setArguments(arguments);
    const QDBusPendingCallWatcher pending(m_bus.asyncCall(call));
    QEventLoop events; // the item may live in this thread
    QObject::connect(&pending, &QDBusPendingCallWatcher::finished, &events, &QEventLoop::quit);
    events.exec();
    const QDBusMessage reply = pending.reply();
    if (reply.type() == QDBusMessage::ErrorMessage)
        qWarning("%s: %s", qPrintable(method), qPrintable(reply.errorMessage()));
    return reply.arguments();
}

QVariant TrayHost::property(const QString &name) const
{
    const QVariantList answer = ask(
        itemPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"), { itemInterface, name });
    return answer.value(0).value<QDBusVariant>().variant();
}

QList<QSize> TrayHost::iconSizes() const
{
    QList<QSize> sizes;
    const auto pixmaps = property(QStringLiteral("IconPixmap")).value<QDBusArgument>();
    pixmaps.beginArray();
    while (!pixmaps.atEnd()) {
        int width = 0, height = 0;
        QByteArray pixels;
        pixmaps.beginStructure();
        pixmaps >> width >> height >> pixels;
        pixmaps.endStructure();
        sizes += QSize(width, height);
    }
    pixmaps.endArray();
    return sizes;
}

bool TrayHost::activate() const
{
    if (items().isEmpty())
        return false;
    ask(itemPath, itemInterface, QStringLiteral("Activate"), { 0, 0 });
    return true;
}

TrayEntry TrayHost::menu() const
{
    const QVariantList answer = ask(menuPath, menuInterface, QStringLiteral("GetLayout"), { 0, -1, QStringList() });
    return answer.size() == 2 ? read(answer.at(1).value<QDBusArgument>()) : TrayEntry();
}

TrayEntry TrayHost::openMenu() const
{
    ask(menuPath, menuInterface, QStringLiteral("AboutToShow"), { 0 });
    for (const TrayEntry &submenu : submenusOf(menu()))
        ask(menuPath, menuInterface, QStringLiteral("AboutToShow"), { submenu.id });
    return menu();
}

bool TrayHost::click(const QStringList &path) const
{
    const auto entry = openMenu().find(path);
    if (!entry || !entry->isEnabled() || entry->isSeparator())
        return false;
    ask(menuPath, menuInterface, QStringLiteral("Event"),
        { entry->id, QStringLiteral("clicked"), QVariant::fromValue(QDBusVariant(0)),
            static_cast<uint>(QDateTime::currentSecsSinceEpoch()) });
    return true;
}

} // namespace tessaly::test
