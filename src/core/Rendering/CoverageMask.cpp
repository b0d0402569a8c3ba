// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/CoverageMask.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <utility>

namespace tessaly {

namespace {

/// A straight piece of the outline, downwards; coordinates are relative to the clip's corner.
struct Edge {
    double top, bottom; ///< rows
    double x; ///< at the top
    double slope; ///< columns per row
    float direction; ///< 1 where the outline runs downwards, −1 upwards
};

class EdgeList {
public:
    explicit EdgeList(const QRect &clip) : m_clip(clip) { }

    void add(const QPainterPath &path)
    {
        QPointF start, at;
        for (int index = 0; index < path.elementCount(); ++index) {
            const QPainterPath::Element element = path.elementAt(index);
            const QPointF point = relative(element);
            if (element.type == QPainterPath::MoveToElement) {
                addLine(at, start); // an open piece is filled as if it were closed
                start = point;
            } else if (element.type == QPainterPath::LineToElement) {
                addLine(at, point);
            } else {
                addCurve(at, point, relative(path.elementAt(index + 1)), relative(path.elementAt(index + 2)));
                index += 2;
                at = relative(path.elementAt(index));
                continue;
            }
            at = point;
        }
        addLine(at, start);
    }

    std::vector<Edge> take()
    {
        std::sort(m_edges.begin(), m_edges.end(), [](const Edge &a, const Edge &b) { return a.top < b.top; });
        return std::move(m_edges);
    }

private:
    QPointF relative(QPointF point) const { return point - m_clip.topLeft(); }

    void addLine(QPointF from, QPointF to)
    {
        const float direction = from.y() < to.y() ? 1.0f : -1.0f;
        if (direction < 0)
            std::swap(from, to);
        const double top = std::max(from.y(), 0.0), bottom = std::min(to.y(), double(m_clip.height()));
        // Too flat to cover anything; its slope might not even be a number.
        if (!(bottom - top > 1e-9))
            return;
        const double slope = (to.x() - from.x()) / (to.y() - from.y());
        m_edges.push_back({ top, bottom, from.x() + (top - from.y()) * slope, slope, direction });
    }

    void addCurve(QPointF a, QPointF b, QPointF c, QPointF d)
    {
        constexpr double tolerance = 0.02; // pixels between the curve and its chords
        const auto bend = [](QPointF p, QPointF q, QPointF r) {
            return std::hypot(p.x() - 2 * q.x() + r.x(), p.y() - 2 * q.y() + r.y());
        };
        const double steps = std::sqrt(0.75 * std::max(bend(a, b, c), bend(b, c, d)) / tolerance);
        const int count = std::clamp(int(std::ceil(steps)), 1, 500);
        QPointF from = a;
        for (int step = 1; step <= count; ++step) {
            const double t = double(step) / count, u = 1 - t;
            const QPointF to = a * (u * u * u) + b * (3 * u * u * t) + c * (3 * u * t * t) + d * (t * t * t);
            addLine(from, to);
            from = to;
        }
    }

    QRect m_clip;
    std::vector<Edge> m_edges;
};

/// One row: each touched pixel holds by how much the coverage changes there.
class RowSums {
public:
    explicit RowSums(int width) : m_width(width), m_changes(size_t(width) + 2), m_touched(size_t(width) / 64 + 1) { }

    /// The part of an edge within this row: from `xa` to `xb` while going `height` of a row.
    void add(double xa, double xb, float height)
    {
        const double left = std::clamp(std::min(xa, xb), 0.0, double(m_width));
        const double right = std::clamp(std::max(xa, xb), 0.0, double(m_width));
        const int first = int(left), last = int(right);
        if (first == last) {
            const float beyond = float((left + right) / 2 - first);
            change(first, height * (1 - beyond));
            change(first + 1, height * beyond);
            return;
        }
        // A slanted piece across several pixels: the covered area grows as a parabola, line, parabola.
        const double perColumn = height / (right - left);
        double before = 0;
        for (int x = first; x <= last; ++x) {
            const double from = std::max(left, double(x)), to = std::min(right, x + 1.0);
            const double crossed = (from - left) * perColumn, rising = (to - from) * perColumn;
            const double covered = crossed * (to - from) + rising * (to - from) / 2 + (x + 1 - to) * (crossed + rising);
            change(x, float(covered - before));
            before = covered;
        }
        change(last + 1, float(height - before));
    }

    /// Hands every stretch of equal sums to `emit(x, length, sum)` and starts over.
    template <class Emit>
    void flush(Emit emit)
    {
        float sum = 0;
        int since = 0;
        for (size_t word = 0; word < m_touched.size(); ++word) {
            for (uint64_t bits = std::exchange(m_touched[word], 0); bits != 0; bits &= bits - 1) {
                const int x = int(word * 64) + std::countr_zero(bits);
                emit(since, x - since, sum);
                sum += std::exchange(m_changes[size_t(x)], 0.0f);
                since = x;
            }
        }
        emit(since, m_width - since, sum);
    }

private:
    void change(int x, float by)
    {
        if (x >= m_width)
            return;
        m_changes[size_t(x)] += by;
        m_touched[size_t(x) / 64] |= uint64_t(1) << (x % 64);
    }

    int m_width;
    std::vector<float> m_changes;
    std::vector<uint64_t> m_touched;
};

unsigned coverageOf(float sum, Qt::FillRule rule)
{
    float covered = std::abs(sum);
    if (rule == Qt::OddEvenFill) {
        covered = std::fmod(covered, 2.0f);
        covered = covered > 1 ? 2 - covered : covered;
    }
    return unsigned(std::min(covered, 1.0f) * 255 + 0.5f);
}

} // namespace

CoverageMask::CoverageMask(const QPainterPath &outline, const QRect &clip)
{
    const QRectF extent = outline.controlPointRect();
    const QRect reached = QRectF(clip).intersected(extent.adjusted(-1, -1, 1, 1)).toAlignedRect().intersected(clip);
    if (reached.isEmpty())
        return;
    EdgeList list(reached);
    list.add(outline);
    const std::vector<Edge> edges = list.take();
    m_firstRow = reached.top();
    m_rowStarts.reserve(size_t(reached.height()) + 1);
    RowSums sums(reached.width());
    std::vector<Edge> active;
    auto next = edges.begin();
    for (int y = 0; y < reached.height(); ++y) {
        for (; next != edges.end() && next->top < y + 1; ++next)
            active.push_back(*next);
        size_t kept = 0;
        for (Edge &edge : active) {
            const double bottom = std::min(edge.bottom, y + 1.0), height = bottom - edge.top;
            const double x = edge.x + height * edge.slope;
            sums.add(edge.x, x, float(height) * edge.direction);
            edge.top = bottom;
            edge.x = x;
            if (edge.bottom > bottom)
                active[kept++] = edge;
        }
        active.resize(kept);
        sums.flush([&](int x, int length, float sum) {
            const unsigned coverage = length > 0 ? coverageOf(sum, outline.fillRule()) : 0;
            if (coverage == 0)
                return;
            Run *last = m_runs.size() > m_rowStarts.back() ? &m_runs.back() : nullptr;
            if (last && last->coverage == coverage && last->x + int(last->length) == reached.left() + x)
                last->length = last->length + uint32_t(length);
            else
                m_runs.push_back({ reached.left() + x, uint32_t(length), coverage });
        });
        m_rowStarts.push_back(uint32_t(m_runs.size()));
    }
}

} // namespace tessaly
