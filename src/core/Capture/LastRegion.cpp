// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/LastRegion.h"

#include "core/Preferences/Settings.h"
#include "core/Screen/CaptureEngine.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace tessaly::LastRegion {

namespace {

constexpr double smallestPoints = 2;

/// The five numbers; none when there are more, fewer or other things.
std::optional<std::array<double, 5>> numbersOf(const QByteArray &stored)
{
    const QJsonArray array = QJsonDocument::fromJson(stored).array();
    std::array<double, 5> numbers;
    if (array.size() != qsizetype(numbers.size()))
        return {};
    for (size_t index = 0; index < numbers.size(); ++index) {
        const QJsonValue value = array[qsizetype(index)];
        // A region farther away than this lies on no display, and its pixels would not fit their type.
        if (!value.isDouble() || (index > 0 && std::abs(value.toDouble()) > 1e6))
            return {};
        numbers[index] = value.toDouble();
    }
    return numbers;
}

} // namespace

void save(Settings &settings, const RegionSelection &selection)
{
    const QRectF rect = selection.rect();
    const QJsonArray numbers { double(selection.display.id()), rect.x(), rect.y(), rect.width(), rect.height() };
    // A setting that cannot be written holds for this run all the same.
    static_cast<void>(settings.set(SettingKeys::lastRegionRect, QJsonDocument(numbers).toJson(QJsonDocument::Compact)));
}

std::optional<RegionSelection> load(const Settings &settings, const QList<Display> &displays)
{
    const auto numbers = numbersOf(settings.value(SettingKeys::lastRegionRect).value_or(QByteArray()));
    if (!numbers)
        return {};
    const auto [id, x, y, width, height] = *numbers;
    if (width < smallestPoints || height < smallestPoints)
        return {};
    const auto display = std::ranges::find_if(displays, [id](const Display &each) { return double(each.id()) == id; });
    if (display == displays.end())
        return {};
    const QRect pixelRect = CaptureEngine::pixelsOf(QRectF(x, y, width, height), display->scale) & display->pixelRect();
    if (pixelRect.isEmpty()) // the display has become smaller
        return {};
    return RegionSelection { *display, pixelRect, {} };
}

} // namespace tessaly::LastRegion
