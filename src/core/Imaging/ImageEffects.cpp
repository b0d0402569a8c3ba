// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ImageEffects.h"

namespace tessaly::ImageEffects {

NoiseSeed NoiseSeed::random() { return {}; }
double pixelCellSide(QSize, double, double) { return 6; }
QImage pixelated(const QImage &region, double, double, NoiseSeed) { return region; }
QImage obscuringBlur(const QImage &region, double) { return region; }
QImage gaussianBlur(const QImage &image, double) { return image; }
QImage rectangleShadow(QSize pixelSize, const QRectF &, double) { return QImage(pixelSize, QImage::Format_Grayscale8); }
QImage shapedShadow(const QImage &coverage, double) { return coverage; }

} // namespace tessaly::ImageEffects
