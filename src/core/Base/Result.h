// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Failure.h"

#include <utility>
#include <variant>

namespace tessaly {

/// Either the value that was asked for or the reason why there is none.
///
/// Test it as a condition before reading: `*result` and `result->` need a value, `failure()` needs a failure.
template <class Value, class Reason = Failure>
class [[nodiscard]] Result {
public:
    Result(Value value) : m_content(std::in_place_index<0>, std::move(value)) { }
    Result(Reason failure) : m_content(std::in_place_index<1>, std::move(failure)) { }

    explicit operator bool() const { return m_content.index() == 0; }

    const Value &operator*() const & { return std::get<0>(m_content); }
    Value &operator*() & { return std::get<0>(m_content); }
    Value &&operator*() && { return std::get<0>(std::move(m_content)); }
    const Value *operator->() const { return &std::get<0>(m_content); }
    Value *operator->() { return &std::get<0>(m_content); }

    const Reason &failure() const { return std::get<1>(m_content); }

private:
    std::variant<Value, Reason> m_content;
};

/// The value of an operation that only succeeds or fails.
struct Done {
    bool operator==(const Done &) const = default;
};

using Outcome = Result<Done>;

} // namespace tessaly
