// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/CaptureOptions.h"

#include "app/CommandLine/CommandOptions.h"
#include "app/CommandLine/Console.h"
#include "app/CommandLine/Text.h"
#include "core/Capture/RequestReading.h"

#include <QFileInfo>

#include <limits>

namespace tessaly {

namespace {

constexpr qint64 maxDelay = 3600; // seconds

} // namespace

void CaptureOptions::declare(CommandOptions &options)
{
    options.optional(to, "--to", "PLACE",
        "Where the capture goes: editor, clipboard, file (a new one in the save folder, whose path is printed) or "
        "text (what is written in it); by default the editor");
    options.optional(output, "-o,--output", "OUT",
        "Picture to write; its extension says the format, and without one it is PNG; - is PNG on standard output");
    options.wholeNumber(delay, "--delay", { 0, maxDelay }, "Seconds to wait before the capture");
    if (subject == CaptureSubject::Region)
        options.optional(rectText, "--rect", "X,Y,W,H",
            "Capture this area instead of asking: points of the display, from its top left");
    if (subject == CaptureSubject::Window)
        options.wholeNumber(window, "--window", { 1, std::numeric_limits<qint64>::max() },
            "Capture this window instead of asking; tessaly windows lists their numbers");
    if (subject == CaptureSubject::Region || subject == CaptureSubject::FullScreen)
        options.wholeNumber(
            display, "--display", { 1, 1000 }, "Which display to take, counted from 1, the primary one; by default 1");
}

std::optional<QString> CaptureOptions::usageProblem() const
{
    if (to && !enumFromRaw<CaptureSink>(*to))
        return Text::tr("--to: \"%1\" is none of editor, clipboard, file and text.").arg(*to);
    if (to && output && sink() != CaptureSink::File)
        return Text::tr("-o writes a picture, which --to %1 does not; give one of them.").arg(*to);
    if (rectText && !rect())
        return Text::tr("--rect: \"%1\" is not X,Y,W,H, four numbers with a width and a height above 0.")
            .arg(*rectText);
    if (subject == CaptureSubject::Region && display && !rectText)
        return Text::tr("--display goes with --rect; without it the region is selected on any display.");
    if (output && output->isEmpty())
        return Text::tr("-o names no file.");
    if (output == u"-" && !isSettled())
        return Text::tr("What is selected cannot go to standard output; name a file.");
    if (output == u"-" && Console::printsToTerminal())
        return Text::tr("Standard output is a terminal, which cannot show a picture.");
    return std::nullopt;
}

CaptureSink CaptureOptions::sink() const
{
    const auto usual = output ? CaptureSink::File : CaptureSink::Editor;
    return to ? enumFromRaw<CaptureSink>(*to).value_or(usual) : usual;
}

std::optional<QRectF> CaptureOptions::rect() const
{
    return rectText ? RequestReading::rectFrom(*rectText) : std::nullopt;
}

bool CaptureOptions::isSettled() const
{
    switch (subject) {
    case CaptureSubject::Region:
        return rectText.has_value();
    case CaptureSubject::Window:
        return window.has_value();
    default:
        return true;
    }
}

bool CaptureOptions::staysHere() const { return sink() == CaptureSink::File || sink() == CaptureSink::Text; }

QVariantMap CaptureOptions::forProgram() const
{
    QVariantMap request { { QStringLiteral("to"), QString(rawValue(sink())) } };
    if (output)
        request.insert(QStringLiteral("output"), QFileInfo(*output).absoluteFilePath());
    if (rectText)
        request.insert(QStringLiteral("rect"), *rectText);
    const std::pair<const char *, std::optional<qint64>> numbers[] {
        { "delay", delay },
        { "display", display },
        { "window", window },
    };
    for (const auto &[name, value] : numbers) {
        if (value)
            request.insert(QLatin1StringView(name), *value);
    }
    return request;
}

} // namespace tessaly
