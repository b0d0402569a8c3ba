// SPDX-License-Identifier: GPL-3.0-or-later
// Stands for the capture by the compositor in a build without the descriptions of the wlr protocols.
#include "platform/wayland/WaylandScreenSource.h"

#include <QCoreApplication>

namespace tessaly {

struct WaylandScreenSource::Implementation { };

static Failure notOffered()
{
    return Failure { QCoreApplication::translate(
        "WaylandScreenSource", "This build of Tessaly cannot ask the Wayland compositor for the screen.") };
}

WaylandScreenSource::WaylandScreenSource(std::unique_ptr<Implementation> implementation) :
    m_implementation(std::move(implementation))
{
}
WaylandScreenSource::~WaylandScreenSource() = default;
Result<std::unique_ptr<ScreenSource>> WaylandScreenSource::create(CaptureUse) { return notOffered(); }
QList<Display> WaylandScreenSource::monitors() { return {}; }
Result<QList<Display>> WaylandScreenSource::displays() { return notOffered(); }
void WaylandScreenSource::capture(const Shot &, Answer answer) { answer(notOffered()); }
void WaylandScreenSource::whenSettled(std::function<void()> then) { then(); }
void WaylandScreenSource::release() { }

} // namespace tessaly
