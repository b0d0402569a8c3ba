// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Document/TessalyDocument.h"

namespace tessaly::TessalyDocument { }
