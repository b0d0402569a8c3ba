// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tessaly {

class Alerts;
class AnnotationStore;
class DocumentActions;

/// The question before a capture with unsaved changes closes.
namespace UnsavedChangesAlert {

enum class Answer {
    Close, ///< nothing is lost
    Discard, ///< the changes are given up: they no longer count as unsaved
    Cancel, ///< also when saving failed
};

/// Asks when there is something to ask, and saves when that is the answer.
Answer run(AnnotationStore &store, Alerts &alerts, DocumentActions &documents);

} // namespace UnsavedChangesAlert

} // namespace tessaly
