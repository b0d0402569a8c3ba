// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tessaly {

class Alerts;
class AnnotationStore;
class CaptureHistory;
class DocumentActions;
class LongWork;

/// The question before a capture with unsaved changes closes.
namespace UnsavedChangesAlert {

enum class Answer {
    Close, ///< nothing is lost
    Discard, ///< the changes are given up: they no longer count as unsaved
    Cancel, ///< also when saving failed
};

struct Services {
    Alerts &alerts;
    DocumentActions &documents;
    CaptureHistory &history;
    LongWork &work;
};

/// Asks when there is something to ask, and saves when that is the answer. There is nothing to ask when the history
/// keeps the capture; what it has not written yet is written first.
Answer run(AnnotationStore &store, const Services &services);

} // namespace UnsavedChangesAlert

} // namespace tessaly
