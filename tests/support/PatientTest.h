// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/Patience.h"

#include <QTest>

// Those of Qt wait for 5 seconds.
#undef QTRY_VERIFY
#define QTRY_VERIFY(expression) QTRY_VERIFY_WITH_TIMEOUT((expression), tessaly::test::patience)
#undef QTRY_VERIFY2
#define QTRY_VERIFY2(expression, message) QTRY_VERIFY2_WITH_TIMEOUT((expression), message, tessaly::test::patience)
#undef QTRY_COMPARE
#define QTRY_COMPARE(value, expected) QTRY_COMPARE_WITH_TIMEOUT(value, expected, tessaly::test::patience)
