// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/OptionItem.h"

#include "core/Editing/MarkCommands.h"

#include <array>

namespace tessaly {

namespace {

std::optional<AnnotationKind> kindOf(Tool tool)
{
    for (const auto &row : enumNames<AnnotationKind>) {
        if (toolOf(row.value) == tool)
            return row.value;
    }
    return std::nullopt;
}

} // namespace

OptionSubject optionSubject(const AnnotationStore &store)
{
    using Topic = OptionSubject::Topic;
    OptionSubject subject { .style = store.toolStyle() };
    if (store.isCropping()) {
        subject.topic = Topic::Crop;
    } else if (const Annotation *mark = store.selected()) {
        subject.topic = Topic::Marks;
        subject.kind = mark->kind;
        subject.isSelection = true;
        subject.style.adopt(*mark);
    } else if (store.tool() == Tool::Frame) {
        subject.topic = Topic::Frame;
    } else if (const auto kind = kindOf(store.tool())) {
        subject.topic = Topic::Marks;
        subject.kind = *kind;
    }
    return subject;
}

} // namespace tessaly
