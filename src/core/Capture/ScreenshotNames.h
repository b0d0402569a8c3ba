// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

/// What captures that are saved by themselves are called.
namespace tessaly::ScreenshotNames {

/// "2024-01-31 at 09.15.02".
QString timestamp(const QDateTime &time);

/// "Screenshot 2024-01-31 at 09.15.02.png"; from the number 2 up it follows the time.
QString fileName(const QDateTime &time, int number, QLatin1StringView extension);

/// The first of these names in the folder that is not taken.
QString freePath(const QString &folder, const QDateTime &time, QLatin1StringView extension);

} // namespace tessaly::ScreenshotNames
