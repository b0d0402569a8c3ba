// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Welcome/ProgramVersion.h"

namespace tessaly {

QString programVersion() { return QStringLiteral(TESSALY_VERSION); }

} // namespace tessaly
