// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/ImageEdit.h"
#include "ui/Editor/EditorServices.h"

namespace tessaly {

class AnnotationStore;

/// Edits of the picture that may take long.
namespace ImageWork {

/// Computes the edit off the main thread and commits it as one undo step. Nothing changes when the user cancels; an
/// alert says so when the picture cannot be made.
void run(const ImageEdit &edit, AnnotationStore &store, const EditorServices &services);

} // namespace ImageWork

} // namespace tessaly
