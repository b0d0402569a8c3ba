// SPDX-License-Identifier: GPL-3.0-or-later
// How long a frame takes while a mark of each kind is dragged over a 3840×2160 capture: from the pointer's movement to
// the changed window on the X server.
#include "bench/support/Limits.h"
#include "bench/support/MixedMarks.h"
#include "bench/support/Screens.h"
#include "core/Annotation/AnnotationStore.h"
#include "core/Base/Clock.h"
#include "core/Editing/EditorZoom.h"
#include "core/Preferences/Settings.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/VirtualScreen.h"
#include "ui/Editor/Canvas/CanvasView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>

using namespace tessaly;

namespace {

constexpr QSize screenSize { 3840, 2160 };
constexpr int framesOfDrag = 40;
constexpr int kindCount = int(enumNames<AnnotationKind>.size());

/// Counts what is painted, so that no frame is timed that was not shown.
class PaintCounter : public QObject {
public:
    int paints = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
};

/// A canvas as large as the screen, at one pixel a point.
class Stage {
public:
    Stage(const QImage &desktop, int markCount) : m_store({ desktop, QSizeF(desktop.size()) }, m_settings)
    {
        // The same thirteen on top of all the others, so that only the number of marks tells the runs apart.
        const QSizeF canvas = m_store.image().pointSize;
        auto dragged = bench::mixedMarks(kindCount, canvas);
        for (Annotation &mark : dragged)
            mark.id = QUuid::createUuid();
        m_store.setAnnotations(bench::mixedMarks(std::max(0, markCount - kindCount), canvas) + dragged);
        m_view.installEventFilter(&m_counter);
        m_view.setWindowFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
        m_view.setGeometry(QRect({}, screenSize));
        m_view.show();
        QApplication::processEvents();
        m_zoom.actualSize();
        m_store.activate(Tool::Select);
        QApplication::processEvents();
    }

    void setSnapping(bool on) { m_view.controller().setSnapping(on); }

    QList<Annotation> draggable() const { return m_store.annotations().last(kindCount); }

    /// Drags the mark about and back; the milliseconds of every frame. Empty when it could not be grabbed.
    std::vector<double> drag(const Annotation &mark)
    {
        m_view.raise();
        m_store.setSelectedID(mark.id);
        QApplication::processEvents();
        const QPointF start = m_view.controller().transform().toView(m_view.controller().visibleBox(mark.id).center());
        if (m_view.controller().markAt(start) != mark.id)
            return {};
        frame(QEvent::MouseButtonPress, start);
        frame(QEvent::MouseMove, start + QPointF(6, 6)); // the drag begins
        std::vector<double> times;
        for (int step = 1; step <= framesOfDrag; ++step) {
            const int away = std::min(step, framesOfDrag - step);
            const int paintsBefore = m_counter.paints;
            const double time = frame(QEvent::MouseMove, start + QPointF(6 + 7 * away, 6 + 4 * away));
            if (m_counter.paints > paintsBefore) // a mark that stays where it snapped is not painted
                times.push_back(time);
        }
        frame(QEvent::MouseButtonRelease, start + QPointF(6, 6));
        m_store.undo();
        QApplication::processEvents();
        return times;
    }

private:
    double frame(QEvent::Type type, QPointF at)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, at, button, held, Qt::NoModifier);
        QElapsedTimer timer;
        timer.start();
        QApplication::sendEvent(&m_view, &event);
        QCoreApplication::sendPostedEvents();
        QEvent paintNow(QEvent::UpdateRequest); // the platform would wait some milliseconds before it asks for one
        QApplication::sendEvent(&m_view, &paintNow);
        QApplication::processEvents();
        return double(timer.nsecsElapsed()) / 1e6;
    }

    PaintCounter m_counter;
    Settings m_settings { QString() };
    AnnotationStore m_store;
    EditorZoom m_zoom;
    test::FakeClipboard m_clipboard;
    SavedStyles m_styles { m_settings };
    CopiedStyle m_copiedStyle;
    SystemClock m_clock;
    CanvasView m_view { m_store, m_zoom, { m_clipboard, m_styles, m_copiedStyle, m_clock } };
};

/// Drags the mark of a kind on every stage, one after the other, so that what else the machine does meets all alike;
/// adds the frames to those of each stage. A kind that cannot be grabbed on all of them is left out.
void dragOnAll(std::vector<std::unique_ptr<Stage>> &stages, int kind, std::vector<std::vector<double>> &frames)
{
    std::vector<std::vector<double>> times;
    for (const auto &stage : stages) {
        times.push_back(stage->drag(stage->draggable().at(kind)));
        if (times.back().empty())
            return;
    }
    std::printf("    %-14s", rawValue(stages.front()->draggable().at(kind).kind).data());
    for (size_t index = 0; index < stages.size(); ++index) {
        std::printf("  %6.2f, %6.2f", bench::quantile(times[index], 0.5), bench::quantile(times[index], 0.99));
        frames[index].insert(frames[index].end(), times[index].begin(), times[index].end());
    }
    std::printf("\n");
}

} // namespace

int main(int argc, char **argv)
{
    const test::VirtualScreen screen(QStringLiteral("3840x2160x24"));
    qputenv("DISPLAY", screen.displayName().toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    QApplication application(argc, argv);
    const QImage desktop = bench::busyDesktop(screenSize);
    constexpr std::array counts { kindCount, 200, 1000 };
    std::vector<std::unique_ptr<Stage>> stages;
    for (const int count : counts)
        stages.push_back(std::make_unique<Stage>(desktop, count));
    std::printf("median and 99 of 100 with %d, %d and %d marks, in ms\n", counts[0], counts[1], counts[2]);
    const auto framesOf = [&](bool snapping) {
        std::vector<std::vector<double>> frames(counts.size());
        for (const auto &stage : stages)
            stage->setSnapping(snapping);
        std::printf("snapping %s\n", snapping ? "on" : "off");
        constexpr int repetitions = 2;
        for (int kind = 0; kind < repetitions * kindCount; ++kind)
            dragOnAll(stages, kind % kindCount, frames);
        if (frames.front().empty())
            qFatal("no mark could be dragged");
        return frames;
    };
    const auto ratioOf = [](const std::vector<std::vector<double>> &frames) {
        return bench::quantile(frames.back(), 0.5) / bench::quantile(frames.front(), 0.5);
    };
    const auto snapped = framesOf(true), free = framesOf(false);
    bench::Limits limits;
    for (size_t index = 0; index < counts.size(); ++index) {
        std::printf("%d marks\n", counts[index]);
        limits.check("a frame, median", bench::quantile(snapped[index], 0.5), 8, "ms");
        limits.check("a frame, 99 of 100", bench::quantile(snapped[index], 0.99), 16, "ms");
    }
    // Among many marks there is nearly always one to snap to, and its guide across the screen is painted, too: that
    // costs the same with every number of marks, and is not what this compares.
    std::printf("1000 marks beside 13, guides included: %.2f times\n", ratioOf(snapped));
    limits.check("1000 marks beside 13", ratioOf(free), 1.5, "times");
    return limits.exitStatus();
}
