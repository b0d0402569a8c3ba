// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/CaptureHistory.h"
#include "core/Preferences/Settings.h"
#include "tests/support/FakeDesktop.h"

#include <QTemporaryDir>

namespace tessaly::test {

/// A history over a folder of its own, with all that it needs.
struct HistoryDesk {
    QTemporaryDir folder;
    FakeClock clock;
    Settings settings { QString() };
    std::unique_ptr<CaptureHistory> history = make();

    QString path() const { return folder.filePath(QStringLiteral("History")); }
    std::unique_ptr<CaptureHistory> make()
    {
        return std::make_unique<CaptureHistory>(CaptureHistory::Surroundings { { path() }, settings, clock });
    }
    /// A second after what was before, and written when this returns.
    QUuid record(const RasterImage &image, const QString &title)
    {
        clock.time = clock.time.addSecs(1);
        const auto id = history->record(image, title);
        history->flush();
        return *id;
    }
};

} // namespace tessaly::test
