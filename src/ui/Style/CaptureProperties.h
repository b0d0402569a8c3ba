// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Properties by which a window of this program says what a capture does with it; true or false.
namespace tessaly::CaptureProperties {

/// It is hidden until the picture is taken. Windows with a title bar are without it, too.
inline constexpr char hides[] = "tessalyHiddenForCapture";
/// It is closed.
inline constexpr char ends[] = "tessalyEndsWithCapture";

} // namespace tessaly::CaptureProperties
