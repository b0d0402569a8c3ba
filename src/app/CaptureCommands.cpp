// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CaptureCommands.h"

#include "app/CaptureDesk.h"

#include <algorithm>

namespace tessaly {

namespace {

using Id = CommandId;

struct Row {
    CommandId id;
    void (*act)(CaptureDesk &desk);
};

template <CaptureMode Mode, CaptureSink Sink>
void capture(CaptureDesk &desk)
{
    desk.captures().capture(Mode, Sink);
}

constexpr Row rows[] {
    { Id::CaptureRegion, capture<CaptureMode::Region, CaptureSink::Editor> },
    { Id::CaptureWindow, capture<CaptureMode::Window, CaptureSink::Editor> },
    { Id::CaptureFrontWindow, [](CaptureDesk &desk) { desk.captures().captureFrontWindow(CaptureSink::Editor); } },
    { Id::CaptureFullScreen, capture<CaptureMode::FullScreen, CaptureSink::Editor> },
    { Id::FullScreenOn, [](CaptureDesk &) {} }, // its choices act
    { Id::RecaptureLastRegion, [](CaptureDesk &desk) { desk.captures().captureLastRegion(); } },
    { Id::CopyTextFromRegion, capture<CaptureMode::Region, CaptureSink::Text> },
    { Id::RegionToClipboard, capture<CaptureMode::Region, CaptureSink::Clipboard> },
    { Id::RegionToFile, capture<CaptureMode::Region, CaptureSink::File> },
    { Id::FullScreenToClipboard, capture<CaptureMode::FullScreen, CaptureSink::Clipboard> },
    { Id::FullScreenToFile, capture<CaptureMode::FullScreen, CaptureSink::File> },
    { Id::UnlockPinnedScreenshots, [](CaptureDesk &desk) { desk.pins().unlockAll(); } },
    { Id::ClosePinnedScreenshots, [](CaptureDesk &desk) { desk.pins().closeAll(); } },
};

const Row *rowOf(CommandId command)
{
    const auto found = std::ranges::find(rows, command, &Row::id);
    return found == std::end(rows) ? nullptr : found;
}

} // namespace

bool CaptureCommands::knows(CommandId command) const
{
    if (!rowOf(command))
        return false;
    const bool isOfWindow = command == Id::CaptureWindow || command == Id::CaptureFrontWindow;
    const CaptureDesk *desk = m_desk.present();
    // Before there is a desk everything is offered: finding out would hold up the first window.
    return !isOfWindow || !desk || desk->captures().canPickWindows();
}

bool CaptureCommands::canPerform(CommandId command) const
{
    const CaptureDesk *desk = m_desk.present();
    switch (command) {
    case Id::UnlockPinnedScreenshots:
        return desk && desk->pins().lockedCount() > 0;
    case Id::ClosePinnedScreenshots:
        return desk && desk->pins().count() > 0;
    case Id::RecaptureLastRegion:
        return !desk || desk->captures().hasLastRegion();
    default:
        return knows(command);
    }
}

void CaptureCommands::perform(CommandId command)
{
    if (const Row *row = rowOf(command))
        row->act(m_desk.made());
}

QList<MenuChoice> CaptureCommands::choices(CommandId command) const
{
    QList<MenuChoice> choices;
    if (command != Id::FullScreenOn)
        return choices;
    for (const Display &display : m_desk.made().captures().displays())
        choices += { QStringLiteral("%1 (%2 × %3)")
                         .arg(display.name, QString::number(display.pixelSize.width()),
                             QString::number(display.pixelSize.height())),
            QString::number(display.id()) };
    return choices;
}

void CaptureCommands::choose(CommandId command, const QString &value)
{
    if (command == Id::FullScreenOn)
        m_desk.made().captures().captureFullScreen(value.toUInt());
}

} // namespace tessaly
