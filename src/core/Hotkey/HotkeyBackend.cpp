// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Hotkey/HotkeyBackend.h"

namespace tessaly {

HotkeyBackend::~HotkeyBackend() = default;

std::optional<QString> HotkeyBackend::given(CaptureAction) const { return std::nullopt; }

} // namespace tessaly
