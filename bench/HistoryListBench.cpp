// SPDX-License-Identifier: GPL-3.0-or-later
// What a history of 1000 captures costs the one who looks for something in it: a keystroke of the search, the first
// screen of the start window with its pictures, and a step of scrolling.
#include "bench/support/GeneratedHistory.h"
#include "bench/support/Limits.h"
#include "core/Base/LongWork.h"
#include "core/Export/ExportService.h"
#include "core/History/CaptureHistory.h"
#include "core/Preferences/Settings.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeRecognition.h"
#include "tests/support/VirtualScreen.h"
#include "ui/Start/HistoryGrid.h"
#include "ui/Start/SearchField.h"
#include "ui/Start/StartWindowController.h"
#include "ui/Style/Appearance.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>

using namespace tessaly;

namespace {

constexpr int entryCount = 1000;

double elapsedMs(const QElapsedTimer &timer) { return double(timer.nsecsElapsed()) / 1e6; }

/// Every query as it grows letter by letter: common and rare words, some that are nowhere, several at once.
QStringList keystrokes()
{
    QStringList typed;
    for (const QString &query : { QStringLiteral("firefox error 404"), QStringLiteral("größenvergleich"),
             QStringLiteral("zzz"), QStringLiteral("https://example.org/reports"), QStringLiteral("conta verri 2026"),
             QStringLiteral("qx"), QStringLiteral("xylophone"), QStringLiteral("e r t z u i o p") }) {
        for (int length = 1; length <= query.size(); ++length)
            typed += query.left(length);
    }
    return typed;
}

/// The slowest keystroke, each by the median of some typings.
double slowestKeystroke(const QList<HistoryEntry> &entries)
{
    const QLocale locale(QLocale::English, QLocale::UnitedKingdom);
    QHash<QUuid, std::pair<SearchKey, QByteArray>> prepared;
    QElapsedTimer timer;
    timer.start();
    for (const HistoryEntry &entry : entries) {
        const SearchKey key { entry.title, entry.created, entry.recognizedText };
        prepared.insert(entry.id, { key, HistorySearch::haystack(key, locale) });
    }
    std::printf("folding all texts, on another thread: %.1f ms\n", elapsedMs(timer));
    HistorySearch search(locale);
    search.adopt(std::move(prepared));
    const QStringList typed = keystrokes();
    std::vector<std::vector<double>> times(size_t(typed.size()));
    constexpr int typings = 7;
    for (int typing = 0; typing < typings; ++typing) {
        for (int index = 0; index < typed.size(); ++index) {
            timer.restart();
            const auto found = search.matches(typed.at(index), entries);
            times[size_t(index)].push_back(elapsedMs(timer));
            if (found.size() > entries.size())
                qFatal("more was found than there is");
        }
    }
    double slowest = 0, highest = 0;
    qsizetype slowestIndex = 0;
    for (int index = 0; index < typed.size(); ++index) {
        const double median = bench::quantile(times[size_t(index)], 0.5);
        highest = std::max(highest, bench::quantile(times[size_t(index)], 1));
        if (median > slowest) {
            slowest = median;
            slowestIndex = index;
        }
    }
    std::printf("slowest after \"%s\"; highest of %zu single times %.2f ms\n", qPrintable(typed.at(slowestIndex)),
        times.size() * typings, highest);
    return slowest;
}

/// One program that shows its start window once.
class Stage {
public:
    explicit Stage(const HistoryStore &files) : m_history({ files, m_settings, m_clock })
    {
        m_clock.time = bench::GeneratedHistory::newest();
        // Captures of any age stay.
        static_cast<void>(m_settings.set(SettingKeys::historyRetentionDays, 0));
        m_history.load();
        while (!m_history.isLoaded())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        m_history.flush(); // the search is prepared
    }

    struct Times {
        double painted = 0; ///< until the tiles were first there
        double complete = 0; ///< until all of them showed their pictures
    };

    Times show()
    {
        Watch watch(*this);
        QElapsedTimer timer;
        timer.start();
        Times times;
        m_start.show();
        watch.follow(grid());
        while (!watch.isComplete()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            if (times.painted == 0 && watch.paints > 0)
                times.painted = elapsedMs(timer);
        }
        times.complete = elapsedMs(timer);
        return times;
    }

    /// Steps of the wheel through the whole list; the milliseconds until each is painted.
    std::vector<double> scroll()
    {
        QScrollBar &bar = *grid().verticalScrollBar();
        std::vector<double> times;
        for (int step = 0; bar.value() < bar.maximum(); ++step) {
            QElapsedTimer timer;
            timer.start();
            bar.setValue(bar.value() + bar.singleStep());
            paintNow();
            times.push_back(elapsedMs(timer));
            QCoreApplication::processEvents();
        }
        return times;
    }

    /// Letters into the search field; the milliseconds until each is searched for and painted.
    std::vector<double> type()
    {
        auto *search = window().findChild<SearchField *>();
        std::vector<double> times;
        for (const QString &query : keystrokes()) {
            QElapsedTimer timer;
            timer.start();
            search->setText(query);
            paintNow();
            times.push_back(elapsedMs(timer));
            QCoreApplication::processEvents();
        }
        return times;
    }

private:
    /// Sees which pictures have come and been painted.
    class Watch : public QObject {
    public:
        explicit Watch(Stage &stage) : m_stage(stage)
        {
            connect(&stage.m_history.thumbnails(), &HistoryThumbnails::ready, this, [this](const QUuid &id) {
                m_ready += id;
                if (m_stage.visible().contains(id))
                    m_isPainted = false;
            });
        }
        void follow(HistoryGrid &grid) { grid.viewport()->installEventFilter(this); }

        bool isComplete() const
        {
            const QSet<QUuid> visible = m_stage.visible();
            return m_isPainted && !visible.isEmpty() && m_ready.contains(visible);
        }

        int paints = 0;

    protected:
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::Paint) {
                ++paints;
                m_isPainted = true;
            }
            return false;
        }

    private:
        Stage &m_stage;
        QSet<QUuid> m_ready;
        bool m_isPainted = false;
    };

    static QWidget &window()
    {
        for (QWidget *each : QApplication::topLevelWidgets()) {
            if (each->objectName() == u"startWindow")
                return *each;
        }
        qFatal("there is no start window");
    }
    static HistoryGrid &grid() { return *window().findChild<HistoryGrid *>(); }

    static void paintNow()
    {
        QCoreApplication::sendPostedEvents();
        QEvent request(QEvent::UpdateRequest); // the platform would wait some milliseconds before it asks for one
        QApplication::sendEvent(&window(), &request);
    }

    QSet<QUuid> visible() const
    {
        const HistoryGrid &view = grid();
        QSet<QUuid> ids;
        const HistoryListModel &model = view.entries();
        for (int row = 0; row < model.rowCount(); ++row) {
            if (view.visualRect(model.index(row)).intersects(view.viewport()->rect()))
                ids += model.entry(model.index(row)).id;
        }
        return ids;
    }

    Settings m_settings { QString() };
    test::FakeClock m_clock;
    test::FakeClipboard m_clipboard;
    test::FakeAlerts m_alerts;
    test::FakeSavePanels m_panels;
    test::FakeSharing m_sharing;
    test::FakeLinks m_links;
    DirectWork m_work;
    ExportService m_exports { { m_settings, m_clipboard, m_alerts, m_panels, m_sharing, m_work, m_clock } };
    CaptureHistory m_history;
    StartWindowController m_start { { m_history, m_settings, m_clipboard, m_exports, m_links, m_clock },
        { [] {}, [] {}, [](const QUuid &) {} } };
};

} // namespace

int main(int argc, char **argv)
{
    const test::VirtualScreen screen(QStringLiteral("1600x1000x24"));
    qputenv("DISPLAY", screen.displayName().toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    const HistoryStore files { folder.filePath(QStringLiteral("History")) };
    const auto entries = bench::GeneratedHistory::entries(entryCount);
    if (!bench::GeneratedHistory::write(files, entries))
        qFatal("the history could not be written");
    Settings settings { QString() };
    const Appearance appearance(settings);

    bench::Limits limits;
    limits.check("slowest keystroke over 1000 entries", slowestKeystroke(entries), 3, "ms");

    constexpr int shows = 7;
    std::vector<double> painted, complete, scrolling, typing;
    for (int show = 0; show < shows; ++show) {
        Stage stage(files);
        const Stage::Times times = stage.show();
        std::printf("shown: tiles after %.1f ms, their pictures after %.1f ms\n", times.painted, times.complete);
        painted.push_back(times.painted);
        complete.push_back(times.complete);
        const auto steps = stage.scroll(), letters = stage.type();
        scrolling.insert(scrolling.end(), steps.begin(), steps.end());
        typing.insert(typing.end(), letters.begin(), letters.end());
    }
    std::printf("%zu steps of scrolling: median %.2f ms; %zu letters, searched and painted: median %.2f, 99 of 100 "
                "%.2f ms\n",
        scrolling.size(), bench::quantile(scrolling, 0.5), typing.size(), bench::quantile(typing, 0.5),
        bench::quantile(typing, 0.99));
    limits.check("first screen with its pictures, the first time", complete.front(), 150, "ms");
    limits.check("first screen with its pictures, median", bench::quantile(complete, 0.5), 150, "ms");
    limits.check("a step of scrolling, 99 of 100", bench::quantile(scrolling, 0.99), 16, "ms");
    return limits.exitStatus();
}
