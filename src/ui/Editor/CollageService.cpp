// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/CollageService.h"

#include "core/Desktop/Alerts.h"
#include "core/Desktop/OpenPanels.h"
#include "core/Imaging/ImageReading.h"

#include <QCoreApplication>

namespace tessaly {

namespace {

/// As many as an alert can show.
constexpr qsizetype maxToldFailures = 8;

struct Made {
    std::optional<RasterImage> collage;
    QStringList failures; ///< a sentence for each file that could not be read, which it names
};

Made made(const QStringList &paths, CollageLayout layout, const Cancellation &cancellation)
{
    Made result;
    QList<RasterImage> images;
    for (const QString &path : paths) {
        if (cancellation.isCancelled())
            return result;
        auto image = readImageFile(path);
        if (image)
            images += std::move(*image);
        else
            result.failures += image.failure().message;
    }
    constexpr qint64 maxPixels = ImageReadOptions().maxPixels;
    result.collage = Collage::combine(images, layout, Collage::usualGap, Qt::white, maxPixels, cancellation);
    return result;
}

QString told(QStringList failures)
{
    if (failures.size() <= maxToldFailures)
        return failures.join(u'\n');
    const auto others = failures.size() - (maxToldFailures - 1);
    failures.resize(maxToldFailures - 1);
    return failures.join(u'\n') + u'\n' + QCoreApplication::translate("CollageService", "And %1 others.").arg(others);
}

} // namespace

void CollageService::createFromPanel(CollageLayout layout)
{
    const auto paths = m_surroundings.panels.chooseImages();
    if (!paths)
        return;
    const auto result = std::make_shared<Made>();
    const auto make = [result, paths = *paths, layout](
                          const Cancellation &cancellation) { *result = made(paths, layout, cancellation); };
    if (!m_surroundings.work.run(QCoreApplication::translate("CollageService", "Joining images…"), make))
        return;
    if (!result->failures.isEmpty())
        m_surroundings.alerts.warn(
            QCoreApplication::translate("CollageService", "Some images couldn't be opened"), told(result->failures));
    if (result->collage)
        m_surroundings.open(std::move(*result->collage), QCoreApplication::translate("CollageService", "Collage"));
}

} // namespace tessaly
