// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/Surfaces/DataControlClipboard.h"

#include "platform/wayland/Surfaces/PipeTransfer.h"
#include "platform/wayland/WaylandConnection.h"

#include <fcntl.h>
#include <unistd.h>
#include <wlr-data-control-unstable-v1.h>

namespace tessaly {

/// What another program, or this one, has copied; the compositor's object and its types.
struct ForeignOffer {
    zwlr_data_control_offer_v1 *offer;
    QStringList types;
};

struct DataControlClipboard::Implementation {
    explicit Implementation(DataControlClipboard &clipboard) : owner(clipboard) { }
    ~Implementation();

    bool connect();
    void forgetSource();
    void drop(zwlr_data_control_offer_v1 *offer);
    void select(zwlr_data_control_offer_v1 *offer);
    void compositorEnded();
    static Implementation &of(void *data) { return *static_cast<Implementation *>(data); }

    static const zwlr_data_control_device_v1_listener deviceListener;
    static const zwlr_data_control_offer_v1_listener offerListener;
    static const zwlr_data_control_source_v1_listener sourceListener;

    DataControlClipboard &owner;
    std::shared_ptr<WaylandConnection> connection;
    wl_seat *seat = nullptr;
    zwlr_data_control_manager_v1 *manager = nullptr;
    zwlr_data_control_device_v1 *device = nullptr;
    /// While these are set the clipboard's content is this program's.
    zwlr_data_control_source_v1 *source = nullptr;
    std::unique_ptr<ClipboardOffer> offered;
    QList<ForeignOffer> announced; ///< of which the selected one is the content
    zwlr_data_control_offer_v1 *selected = nullptr;
    bool isKnown = false; ///< whether the compositor has told its content yet
};

const zwlr_data_control_device_v1_listener DataControlClipboard::Implementation::deviceListener {
    .data_offer =
        [](void *data, zwlr_data_control_device_v1 *, zwlr_data_control_offer_v1 *offer) {
            of(data).announced.append(ForeignOffer { offer, {} });
            zwlr_data_control_offer_v1_add_listener(offer, &offerListener, data);
        },
    .selection
    = [](void *data, zwlr_data_control_device_v1 *, zwlr_data_control_offer_v1 *offer) { of(data).select(offer); },
    .finished = [](void *data, zwlr_data_control_device_v1 *) { of(data).select(nullptr); },
    // Text that is merely marked is nobody's business here.
    .primary_selection
    = [](void *data, zwlr_data_control_device_v1 *, zwlr_data_control_offer_v1 *offer) { of(data).drop(offer); },
};

const zwlr_data_control_offer_v1_listener DataControlClipboard::Implementation::offerListener {
    .offer =
        [](void *data, zwlr_data_control_offer_v1 *offer, const char *type) {
            for (ForeignOffer &one : of(data).announced) {
                if (one.offer == offer)
                    one.types.append(QString::fromUtf8(type));
            }
        },
};

const zwlr_data_control_source_v1_listener DataControlClipboard::Implementation::sourceListener {
    .send =
        [](void *data, zwlr_data_control_source_v1 *source, const char *type, int32_t file) {
            auto &self = of(data);
            QByteArray bytes;
            if (source == self.source && self.offered)
                bytes = self.offered->data(QString::fromUtf8(type));
            PipeTransfer::write(self.owner, file, std::move(bytes));
        },
    .cancelled =
        [](void *data, zwlr_data_control_source_v1 *source) {
            if (source == of(data).source)
                of(data).forgetSource();
        },
};

DataControlClipboard::Implementation::~Implementation()
{
    if (!connection)
        return;
    forgetSource();
    for (const ForeignOffer &one : std::as_const(announced))
        zwlr_data_control_offer_v1_destroy(one.offer);
    if (device)
        zwlr_data_control_device_v1_destroy(device);
    if (manager)
        zwlr_data_control_manager_v1_destroy(manager);
    if (seat)
        wl_seat_destroy(seat);
}

bool DataControlClipboard::Implementation::connect()
{
    auto opened = WaylandConnection::open();
    if (!opened)
        return false;
    connection = std::move(*opened);
    manager = connection->bind<zwlr_data_control_manager_v1>(zwlr_data_control_manager_v1_interface, 2);
    seat = connection->bind<wl_seat>(wl_seat_interface, 1);
    if (!manager || !seat)
        return false;
    device = zwlr_data_control_manager_v1_get_data_device(manager, seat);
    zwlr_data_control_device_v1_add_listener(device, &deviceListener, this);
    connection->followEvents([this] { compositorEnded(); });
    return true;
}

void DataControlClipboard::Implementation::forgetSource()
{
    if (source)
        zwlr_data_control_source_v1_destroy(source);
    source = nullptr;
    offered.reset();
}

void DataControlClipboard::Implementation::drop(zwlr_data_control_offer_v1 *offer)
{
    const auto dropped = announced.removeIf([offer](const ForeignOffer &one) { return one.offer == offer; });
    if (dropped > 0)
        zwlr_data_control_offer_v1_destroy(offer);
}

void DataControlClipboard::Implementation::select(zwlr_data_control_offer_v1 *offer)
{
    selected = offer;
    isKnown = true;
    announced.removeIf([offer](const ForeignOffer &one) {
        if (one.offer != offer)
            zwlr_data_control_offer_v1_destroy(one.offer);
        return one.offer != offer;
    });
    Q_EMIT owner.changed();
}

void DataControlClipboard::Implementation::compositorEnded()
{
    forgetSource();
    select(nullptr);
}

DataControlClipboard::DataControlClipboard() : m_implementation(std::make_unique<Implementation>(*this)) { }
DataControlClipboard::~DataControlClipboard() = default;

std::unique_ptr<Clipboard> DataControlClipboard::create()
{
    std::unique_ptr<DataControlClipboard> clipboard(new DataControlClipboard);
    if (!clipboard->m_implementation->connect())
        return nullptr;
    return clipboard;
}

void DataControlClipboard::offer(std::unique_ptr<ClipboardOffer> offer)
{
    auto &self = *m_implementation;
    if (!self.connection->isAlive())
        return;
    auto *source = zwlr_data_control_manager_v1_create_data_source(self.manager);
    zwlr_data_control_source_v1_add_listener(source, &Implementation::sourceListener, &self);
    const QStringList types = offer->types();
    for (const QString &type : types)
        zwlr_data_control_source_v1_offer(source, type.toUtf8().constData());
    zwlr_data_control_device_v1_set_selection(self.device, source);
    self.forgetSource();
    self.source = source;
    self.offered = std::move(offer);
    self.connection->flush();
}

QStringList DataControlClipboard::types() const
{
    // The compositor tells the content right after the start.
    if (!m_implementation->isKnown && m_implementation->connection->isAlive())
        m_implementation->connection->roundTrip();
    return knownTypes().value_or(QStringList());
}

std::optional<QStringList> DataControlClipboard::knownTypes() const
{
    const auto &self = *m_implementation;
    if (self.offered)
        return self.offered->types();
    if (!self.isKnown)
        return {};
    const auto found = std::ranges::find(self.announced, self.selected, &ForeignOffer::offer);
    return found == self.announced.end() ? QStringList() : found->types;
}

QByteArray DataControlClipboard::data(const QString &type) const
{
    constexpr int millisecondsOfSilence = 2000;
    if (!types().contains(type))
        return {};
    // Asking the compositor would be asking this thread, which waits.
    if (m_implementation->offered)
        return m_implementation->offered->data(type);
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return {};
    zwlr_data_control_offer_v1_receive(m_implementation->selected, type.toUtf8().constData(), ends[1]);
    m_implementation->connection->flush();
    ::close(ends[1]);
    const QByteArray bytes = PipeTransfer::readAll(ends[0], millisecondsOfSilence);
    ::close(ends[0]);
    return bytes;
}

} // namespace tessaly
