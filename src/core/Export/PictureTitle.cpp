// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/PictureTitle.h"

#include <QCoreApplication>

namespace tessaly::PictureTitle {

QString untitled() { return QCoreApplication::translate("PictureTitle", "Untitled"); }

} // namespace tessaly::PictureTitle
