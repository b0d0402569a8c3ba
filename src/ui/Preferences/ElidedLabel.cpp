// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/ElidedLabel.h"

#include <QPainter>

namespace tessaly {

QSize ElidedLabel::minimumSizeHint() const
{
    constexpr int fewestLetters = 14;
    const QSize whole = sizeHint();
    return { std::min(whole.width(), fontMetrics().averageCharWidth() * fewestLetters), whole.height() };
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
    painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

} // namespace tessaly
