// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QList>
#include <QMutex>
#include <QSize>
#include <QStringList>
#include <QThread>
#include <QVariantMap>

#include <optional>

namespace tessaly::test {

/// An entry of a menu as a panel sees it on the bus.
struct TrayEntry {
    int id = 0;
    QVariantMap properties;
    QList<TrayEntry> children;

    /// Without the mark of a mnemonic.
    QString label() const;
    bool isSeparator() const { return properties.value(QStringLiteral("type")).toString() == u"separator"; }
    bool isEnabled() const { return properties.value(QStringLiteral("enabled"), true).toBool(); }
    bool isVisible() const { return properties.value(QStringLiteral("visible"), true).toBool(); }
    bool isChecked() const { return properties.value(QStringLiteral("toggle-state")).toInt() == 1; }
    /// The labels of the visible entries, "-" for a separator.
    QStringList labels() const;
    /// The entry below this one that these labels lead to.
    std::optional<TrayEntry> find(const QStringList &path) const;
};

/// Keeps the list of items, on a thread of its own: programs wait for its answers.
class TrayItemList final : public QDBusVirtualObject {
public:
    QStringList items() const;
    void clear();
    void setHasPanel(bool has);

    /// Qt reads a property only where it is described.
    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override;

private:
    mutable QMutex m_mutex;
    QStringList m_items;
    bool m_hasPanel = true;
};

/// A panel with a tray for items on the bus (StatusNotifierItem): it notes who registers, and then looks at the items
/// and operates them as a panel does. The items may be in this process: calls let its events run. The connection must
/// be one of its own.
class TrayHost {
public:
    explicit TrayHost(const QDBusConnection &bus);
    ~TrayHost();

    enum class Panel { Present, Absent };
    /// Comes and goes on the bus, as a panel that crashes and is started again; without a panel it is the list of
    /// items only, which may be there first. False when it cannot.
    bool start(Panel panel = Panel::Present);
    /// The panel comes.
    void addPanel();
    void stop();

    /// The unique names of the programs that have registered an item since the start and still live.
    QStringList items() const;

    /// A property of the first item, "IconPixmap" as the list of its sizes in pixels.
    QVariant property(const QString &name) const;
    QList<QSize> iconSizes() const;
    /// A click on the first item itself.
    bool activate() const;

    /// The first item's menu as it opens: the panel says so before it reads it, also of every submenu.
    TrayEntry openMenu() const;
    TrayEntry menu() const;
    /// Clicks the entry that these labels lead to; false when there is none that can be clicked.
    bool click(const QStringList &path) const;

private:
    /// The answer's arguments, empty after a failure.
    QVariantList ask(
        const QString &path, const QString &interface, const QString &method, const QVariantList &arguments) const;

    QDBusConnection m_bus;
    TrayItemList m_list;
    QThread m_thread;
};

} // namespace tessaly::test
