// SPDX-License-Identifier: GPL-3.0-or-later
// Reading a history of a thousand captures whose text was recognised: index, folder and their agreement. The limit is
// absolute, for the start window waits for it.
#include "bench/support/GeneratedHistory.h"
#include "bench/support/Limits.h"
#include "bench/support/Screens.h"
#include "core/Export/ImageEncoder.h"
#include "core/History/HistoryKeeper.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace tessaly;

namespace {

constexpr int repetitions = 31;

double median(const std::function<void()> &work, int times = repetitions)
{
    std::vector<double> milliseconds;
    for (int i = 0; i < times; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        milliseconds.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    return bench::quantile(milliseconds, 0.5);
}

/// A change waits for the disk, away from the main thread; what it costs is the disk's, so the limits are wide.
void checkChanges(const HistoryStore &files, bench::Limits &limits)
{
    const RasterImage screen = RasterImage::fromPixels(bench::busyDesktop());
    AnnotationDocument document;
    document.canvasSize = QSizeF(screen.pixelSize());
    const auto package = TessalyDocument::package(
        document, *encodeImage(screen, ExportFormat::Png, {}), TessalyDocument::thumbnailPng(screen));
    const HistoryEntry entry = bench::GeneratedHistory::entries(1001).last();
    const auto bytes = package->imagePng.size() + package->thumbnailPng->size();
    std::printf("a screen of 3840x2160: package of %.1f MB\n", double(bytes) / 1e6);
    HistoryKeeper keeper(files);
    HistoryKeeper guest(files);
    (void)keeper.load();
    bool isDone = true;
    const auto check = [&](const char *what, const std::function<Outcome()> &change) {
        limits.check(what, median([&] { isDone = isDone && change(); }, 15), 1000, "ms");
    };
    check("put, as the keeper", [&] { return keeper.put(*package, entry); });
    check("update", [&] { return keeper.update(entry); });
    check("put, as a guest", [&] { return guest.put(*package, entry); });
    limits.check("changes that failed", isDone ? 0 : 1, 0, "");
}

} // namespace

int main()
{
    const QTemporaryDir folder;
    const HistoryStore files { folder.filePath(QStringLiteral("History")) };
    const auto entries = bench::GeneratedHistory::entries(1000);
    if (!bench::GeneratedHistory::write(files, entries) || files.load().entries != entries || files.load().repaired) {
        std::fprintf(stderr, "the history could not be generated\n");
        return 1;
    }
    const QString indexPath = files.directory + QStringLiteral("/index.json");
    std::printf("%d captures, index of %.1f MB\n", int(entries.size()), double(QFileInfo(indexPath).size()) / 1e6);

    bench::Limits limits;
    limits.check("load 1000 entries", median([&] { (void)files.load(); }), 40, "ms");
    limits.check("write their index", median([&] { (void)files.save(entries); }), 100, "ms");
    limits.check("keeper: lock, clear up and load", median([&] { (void)HistoryKeeper(files).load(); }), 50, "ms");
    QFile::remove(indexPath);
    limits.check("load without an index", median([&] { (void)files.load(); }), 400, "ms");
    checkChanges(files, limits);
    return limits.exitStatus();
}
