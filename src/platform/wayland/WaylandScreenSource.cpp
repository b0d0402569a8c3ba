// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/WaylandScreenSource.h"

#include "platform/wayland/ScreenCopy.h"

#include <QCoreApplication>
#include <QTimer>

namespace tessaly {

/// One connection with what is read through it; a compositor that is started again needs a new one.
struct WaylandScreenSource::Implementation {
    explicit Implementation(CaptureUse captureUse, std::shared_ptr<WaylandConnection> opened) :
        use(captureUse),
        connection(std::move(opened)),
        outputs(*connection),
        copy(connection)
    {
    }

    /// A picture may keep the connection for longer than this, on any thread.
    ~Implementation() { connection->stopFollowing(); }

    static Result<std::unique_ptr<Implementation>> create(CaptureUse use);

    CaptureUse use;
    std::shared_ptr<WaylandConnection> connection;
    WaylandOutputs outputs;
    ScreenCopy copy;
};

Result<std::unique_ptr<WaylandScreenSource::Implementation>> WaylandScreenSource::Implementation::create(CaptureUse use)
{
    auto connection = WaylandConnection::open();
    if (!connection)
        return connection.failure();
    auto opened = std::make_unique<Implementation>(use, std::move(*connection));
    if (!opened->copy.isOffered())
        return Failure { QCoreApplication::translate(
            "WaylandScreenSource", "This Wayland compositor does not let programs capture the screen.") };
    // What the compositor says between two captures must be taken from the connection, or it is ended when it is full.
    if (use == CaptureUse::Repeated && QCoreApplication::instance())
        opened->connection->followEvents({});
    return opened;
}

WaylandScreenSource::WaylandScreenSource(std::unique_ptr<Implementation> implementation) :
    m_implementation(std::move(implementation))
{
}
WaylandScreenSource::~WaylandScreenSource() = default;

Result<std::unique_ptr<ScreenSource>> WaylandScreenSource::create(CaptureUse use)
{
    auto implementation = Implementation::create(use);
    if (!implementation)
        return implementation.failure();
    return std::unique_ptr<ScreenSource>(new WaylandScreenSource(std::move(*implementation)));
}

QList<Display> WaylandScreenSource::monitors()
{
    const auto connection = WaylandConnection::open();
    if (!connection)
        return {};
    const WaylandOutputs outputs(**connection);
    // The first round names what the compositor has, the second describes it.
    const bool described = (*connection)->roundTrip() && (*connection)->roundTrip();
    return described ? outputs.displays() : QList<Display>();
}

Result<QList<Display>> WaylandScreenSource::displays()
{
    // A monitor that has just come is described in the second round.
    bool answered = m_implementation->connection->roundTrip() && m_implementation->connection->roundTrip();
    if (!answered) {
        auto again = Implementation::create(m_implementation->use);
        if (!again)
            return again.failure();
        m_implementation = std::move(*again);
        answered = m_implementation->connection->roundTrip();
    }
    auto displays = answered ? m_implementation->outputs.displays() : QList<Display>();
    if (displays.isEmpty())
        return Failure { QCoreApplication::translate("WaylandScreenSource", "No display was found.") };
    return displays;
}

void WaylandScreenSource::capture(const Shot &shot, Answer answer)
{
    if (!m_implementation->connection->isAlive()) {
        if (const auto connected = displays(); !connected)
            return answer(connected.failure());
    }
    const auto *output = m_implementation->outputs.find(shot.display.name);
    if (!output)
        return answer(Failure { QCoreApplication::translate("WaylandScreenSource", "The display %1 is not connected.")
                                    .arg(shot.display.name) });
    QImage pixels = m_implementation->copy.capture(*output, shot.pixelRect);
    if (pixels.isNull())
        return answer(Failure { QCoreApplication::translate(
            "WaylandScreenSource", "The Wayland compositor did not give the pixels of the display %1.")
                                    .arg(shot.display.name) });
    const QSizeF pointSize = QSizeF(pixels.size()) / shot.display.scale;
    answer(RasterImage { std::move(pixels), pointSize });
}

void WaylandScreenSource::whenSettled(std::function<void()> then)
{
    // A compositor shows a window that has gone until the others have taken its place, and then in its next frame.
    constexpr int millisecondsToSettle = 100;
    if (!QCoreApplication::instance())
        return then();
    QTimer::singleShot(millisecondsToSettle, QCoreApplication::instance(), std::move(then));
}

void WaylandScreenSource::release() { m_implementation->copy.release(); }

} // namespace tessaly
