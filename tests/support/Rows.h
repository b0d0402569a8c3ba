// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTest>

namespace tessaly::test {

/// The columns of a table: columns<QSize, bool>("size", "valid").
template <typename... Types, typename... Names>
void columns(Names... names)
{
    static_assert(sizeof...(Types) == sizeof...(Names));
    (QTest::addColumn<Types>(names), ...);
}

/// A line of it, with the values in the order of the columns.
template <typename... Values>
void row(const char *name, const Values &...values)
{
    (QTest::newRow(name) << ... << values);
}

} // namespace tessaly::test
