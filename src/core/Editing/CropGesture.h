// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/BoxDrag.h"
#include "core/Editing/EditingContext.h"
#include "core/Editing/Gesture.h"

namespace tessaly {

/// Where a press falls on the crop frame.
struct CropGrip {
    enum class Part { Handle, Inside, Outside };
    Part part = Part::Outside;
    HandleRole role = HandleRole::BottomRight; ///< of the handle
};

/// Of a view position. A frame over the whole picture has no inside: it could not be moved, and a new one is drawn.
CropGrip cropGripAt(QPointF view, const EditingContext &context, double handleScale);

/// Changes the frame of the crop mode, in whole pixels and never beyond the picture. It leaves no undo step: only
/// applying the crop does.
class CropGesture final : public Gesture {
public:
    /// Keeps the reference. The press is in image points.
    CropGesture(EditingContext &context, CropGrip grip, QPointF pressedAt);
    ~CropGesture() override;

    void begin() override { }
    void update(const GestureInput &input) override;
    void finish() override { m_isOpen = false; }
    void abandon() override { m_isOpen = false; }
    CursorShape cursor() const override;

private:
    QRectF dragged(const GestureInput &input);
    std::optional<double> ratio(const GestureInput &input) const;

    EditingContext &m_context;
    CropGrip m_grip;
    QRectF m_before;
    QPointF m_pressedAt;
    QPointF m_grabOffset; ///< from the handle to the press
    HandleRole m_role; ///< under the pointer
    bool m_isOpen = true;
};

/// The crop frame moved by a step, or with its right or bottom edge moved, as far as the picture allows.
QRectF steppedCrop(const EditingContext &context, QPointF step, bool resizes);

} // namespace tessaly
