// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace tessaly::CellNoise {

/// The grey, 0.38 … 0.62, that lies over one cell. Cells are counted from the middle one, which is (0, 0). Without the
/// seed no grey can be told from others: the three random bytes behind it are a keyed hash of the cell.
float grey(quint64 seed, qint32 column, qint32 row);

/// A colour component 0 … 1 with another laid over it in the soft-light way.
float softLight(float below, float above);

} // namespace tessaly::CellNoise
