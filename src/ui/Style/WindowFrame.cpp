// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/WindowFrame.h"

#include "core/Base/JsonFields.h"

#include <QJsonDocument>

#include <algorithm>

namespace tessaly {

static constexpr std::tuple fields {
    json::Field { "height", &WindowFrame::height },
    json::Field { "maximized", &WindowFrame::maximized },
    json::Field { "width", &WindowFrame::width },
    json::Field { "x", &WindowFrame::x },
    json::Field { "y", &WindowFrame::y },
};

WindowFrame WindowFrame::of(const QRect &rect, bool maximized)
{
    return { rect.x(), rect.y(), rect.width(), rect.height(), maximized };
}

QByteArray WindowFrame::toJson() const
{
    return QJsonDocument(json::write(*this, fields)).toJson(QJsonDocument::Compact);
}

std::optional<WindowFrame> WindowFrame::fromJson(const QByteArray &json)
{
    WindowFrame frame;
    const char *wrong = json::readOver(frame, QJsonDocument::fromJson(json).object(), fields);
    return wrong || frame.width <= 0 || frame.height <= 0 ? std::nullopt : std::optional(frame);
}

bool WindowFrame::isReachable(const QList<QRect> &available) const
{
    const QRect top(x, y, width, 40);
    return std::ranges::any_of(available, [&top](const QRect &screen) {
        const QRect seen = top & screen;
        return seen.width() >= 100 && seen.height() >= 20;
    });
}

} // namespace tessaly
