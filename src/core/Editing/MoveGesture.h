// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/MarkGesture.h"

namespace tessaly {

/// Moves a mark; with Ctrl it leaves the original and moves a copy, whenever Ctrl is pressed or let go.
class MoveGesture final : public MarkGesture {
public:
    MoveGesture(EditingContext &context, const Annotation &mark, QPointF pressedAt);

    void begin() override;
    void update(const GestureInput &input) override;
    CursorShape cursor() const override;

private:
    void setCopying(bool copying);

    QPointF m_pressedAt;
    QRectF m_frame; ///< of the mark before it moved
    std::optional<Annotation> m_copy; ///< where the original was
};

} // namespace tessaly
