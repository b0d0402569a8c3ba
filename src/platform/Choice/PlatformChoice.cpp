// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Choice/PlatformChoice.h"

#include "platform/x11/X11ScreenSource.h"

namespace tessaly::PlatformChoice {

Result<std::unique_ptr<ScreenSource>> screenSource() { return X11ScreenSource::create(); }

} // namespace tessaly::PlatformChoice
