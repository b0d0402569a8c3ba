// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tessaly {

/// The desktop's event sounds, in the theme that the user chose. A desktop without sound stays silent.
class Sounds {
public:
    virtual ~Sounds();

    /// The sound of a picture taken. Returns at once.
    virtual void playScreenCapture() = 0;
    /// The sound that says that nothing can be done.
    virtual void beep() = 0;
};

} // namespace tessaly
