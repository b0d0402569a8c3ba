// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationStore.h"
#include "core/Base/Clock.h"

namespace tessaly {

/// Small steps of keys or the wheel: those that follow each other within a second are one undo step, as long as
/// nothing else happens to the capture in between.
class StepSeries : public QObject {
    Q_OBJECT

public:
    enum class Kind { Key, Wheel };

    /// Keeps the references.
    StepSeries(AnnotationStore &store, const Clock &clock);

    /// Changes the selected mark; nothing is recorded when it stays as it is.
    void step(Kind kind, const std::function<Annotation(const Annotation &)> &change);

private:
    bool goesOn(Kind kind) const;

    AnnotationStore &m_store;
    const Clock &m_clock;
    std::optional<Kind> m_kind; ///< of the series that may go on
    QDateTime m_last;
    bool m_isStepping = false;
};

} // namespace tessaly
