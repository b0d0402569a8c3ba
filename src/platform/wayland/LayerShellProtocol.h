// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The generated header calls an argument "namespace".
#define namespace namespace_
#include <wlr-layer-shell-unstable-v1.h>
#undef namespace
