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

    QList<Annotation> draggable() const { return m_store.annotations().last(kindCount); }

    /// Drags the mark about and back; the milliseconds of every frame. Empty when it could not be grabbed.
    std::vector<double> drag(const Annotation &mark)
    {
        m_store.setSelectedID(mark.id);
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

/// The frames of a drag of one mark of every kind.
std::vector<double> dragEveryKind(const QImage &desktop, int markCount)
{
    Stage stage(desktop, markCount);
    std::vector<double> all;
    const auto marks = stage.draggable();
    for (const Annotation &mark : marks) {
        const auto times = stage.drag(mark);
        if (times.empty())
            continue;
        std::printf("    %-14s median %6.2f  99 %% %6.2f ms\n", rawValue(mark.kind).data(), bench::quantile(times, 0.5),
            bench::quantile(times, 0.99));
        all.insert(all.end(), times.begin(), times.end());
    }
    return all;
}

} // namespace

int main(int argc, char **argv)
{
    const test::VirtualScreen screen(QStringLiteral("3840x2160x24"));
    qputenv("DISPLAY", screen.displayName().toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    QApplication application(argc, argv);
    const QImage desktop = bench::busyDesktop(screenSize);
    std::vector<double> medians;
    bench::Limits limits;
    for (const int count : { kindCount, 200, 1000 }) {
        std::printf("%d marks\n", count);
        const auto times = dragEveryKind(desktop, count);
        if (times.empty()) {
            std::fprintf(stderr, "no mark could be dragged\n");
            return 1;
        }
        medians.push_back(bench::quantile(times, 0.5));
        limits.check("a frame, median", medians.back(), 8, "ms");
        limits.check("a frame, 99 of 100", bench::quantile(times, 0.99), 16, "ms");
    }
    limits.check("1000 marks beside 13", medians.back() / medians.front(), 1.5, "times");
    return limits.exitStatus();
}
