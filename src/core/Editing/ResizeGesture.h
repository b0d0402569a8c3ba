// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/BoxDrag.h"
#include "core/Editing/ReshapeGestures.h"

namespace tessaly {

/// Drags a corner or a side of a box or a path, or the corner of a text, which sets its font size.
class ResizeGesture final : public HandleGesture {
public:
    using HandleGesture::HandleGesture;

    void begin() override;
    void update(const GestureInput &input) override;
    CursorShape cursor() const override;

private:
    BoxDrag drag(const GestureInput &input) const;
    void resizeText(const GestureInput &input);

    QRectF m_frame; ///< before the drag
    QRectF m_dragged; ///< now; negative sizes where flipped
    bool m_keepsRatio = false;
};

} // namespace tessaly
