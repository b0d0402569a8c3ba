// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"

#include <algorithm>
#include <vector>

namespace tessaly {

/// How one state of a list of marks came from another. Marks are known by their identity; of several with the same
/// identity the first belongs to the first.
struct MarkListDifference {
    static constexpr size_t none = size_t(-1);

    struct Origin {
        size_t index = none; ///< in the old list; none for a mark that is new
        bool isSame = false; ///< nothing about the mark changed
        bool moved = false; ///< before or behind others that stayed

        bool isOther() const { return !isSame || moved; }
    };
    std::vector<Origin> origins; ///< for each mark of the new list
    std::vector<size_t> removed; ///< indices in the old list

    MarkListDifference(const std::vector<const Annotation *> &before, const QList<Annotation> &after);

    /// Whether both lists are the same.
    bool isNone() const { return removed.empty() && std::ranges::none_of(origins, &Origin::isOther); }
};

/// Equality that does not look into a picture's bytes where both marks share them.
bool isSameMark(const Annotation &one, const Annotation &other);

} // namespace tessaly
