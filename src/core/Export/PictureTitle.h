// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tessaly::PictureTitle {

/// Of a picture that nothing has given a name, in the user's language: for windows, the history and names of files.
QString untitled();

} // namespace tessaly::PictureTitle
