// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationStore.h"

#include <functional>
#include <optional>

class QWidget;

namespace tessaly {

/// What the options bar is about at the moment.
struct OptionSubject {
    enum class Topic {
        Nothing, ///< the select tool without a selection
        Marks,
        Crop,
        Frame,
    };

    Topic topic = Topic::Nothing;
    AnnotationKind kind = AnnotationKind::Arrow; ///< of Marks
    bool isSelection = false; ///< the selected mark, and not only those to come
    ToolStyle style; ///< of the selected mark, else of new ones
};

/// The selected mark, or else the tool.
OptionSubject optionSubject(const AnnotationStore &store);

/// One control of the options bar: for what it is there, and how it shows the present state.
struct OptionItem {
    QWidget *widget = nullptr;
    std::function<bool(const OptionSubject &)> applies;
    std::function<void(const OptionSubject &)> refresh;
};

} // namespace tessaly
