// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/PictureArchive.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/PackedPicture.h"

#include <algorithm>
#include <future>

namespace tessaly {

/// A picture up to its orientation. There is always a way to get it: its pixels as they are, packed, or by an edit of
/// its base.
struct PictureArchive::Source {
    RasterImage image; ///< empty while only packed or to be made again
    Orientation imageOrientation;

    std::optional<PackedPicture> packed;
    QSizeF packedPointSize;
    Orientation packedOrientation;

    ImageEdit edit; ///< that made it of its base
    qint64 work = 0; ///< of the edit, in pixels
    Picture base; ///< empty for a picture made of nothing, and while it is packed
    std::weak_ptr<Source> formerBase; ///< while it is packed
    Orientation formerBaseOrientation;

    Cancellation packingNotWanted;
    std::future<std::optional<PackedPicture>> packing; ///< last, for its destruction waits for the thread

    ~Source() { packingNotWanted.cancel(); }

    /// So an empty picture is there, too.
    bool hasNothingElse() const { return !packed && !base.source; }
    bool isKept() const { return packed || packing.valid() || !base.source; }

    /// The work of making it again from what is kept.
    qint64 replay() const { return isKept() ? 0 : work + base.source->replay(); }
};

namespace {

/// Two edits of a screen of 3840 × 2160, some 30 ms with the turns between them.
constexpr qint64 usualReplay = qint64(2) * 3840 * 2160;
constexpr qint64 mostReplay = usualReplay * 64;

/// However small the picture, more than a few dozen edits are not done again.
constexpr qint64 leastWork = usualReplay / 16;

constexpr std::size_t maxRecent = 2;

qint64 pixelCount(const RasterImage &image) { return qint64(image.pixels.width()) * image.pixels.height(); }

bool isSame(const RasterImage &one, const RasterImage &other)
{
    return one.pixels.cacheKey() == other.pixels.cacheKey() && one.pointSize == other.pointSize;
}

} // namespace

PictureArchive::PictureArchive(qint64 budgetBytes) : m_budgetBytes(budgetBytes), m_maxReplay(usualReplay) { }
PictureArchive::~PictureArchive() = default;

PictureArchive::Picture PictureArchive::enter(const RasterImage &image)
{
    takePacked();
    if (!m_latest.source || !isSame(m_latest.source->image, image)) {
        const Picture fresh { std::make_shared<Source>(), {} };
        m_sources.push_back(fresh.source);
        setLatest(fresh, image);
    }
    return m_latest;
}

void PictureArchive::edited(const ImageEdit &edit, const RasterImage &result)
{
    if (const auto turn = edit.orientation())
        return setLatest({ m_latest.source, m_latest.orientation.then(*turn) }, result);
    const Picture made { std::make_shared<Source>(), {} };
    const qint64 passes = edit.kind == ImageEdit::Kind::Resize ? 4 : 1;
    made.source->edit = edit;
    made.source->base = m_latest;
    made.source->work = std::max(passes * std::max(pixelCount(m_latest.source->image), pixelCount(result)), leastWork);
    m_sources.push_back(made.source);
    setLatest(made, result);
}

void PictureArchive::setLatest(const Picture &picture, const RasterImage &image)
{
    const std::shared_ptr<Source> before = std::exchange(m_latest, picture).source;
    picture.source->image = image;
    picture.source->imageOrientation = picture.orientation;
    std::erase(m_recent, picture.source);
    if (before && before != picture.source)
        keepAsItIs(before);
}

void PictureArchive::keepAsItIs(const std::shared_ptr<Source> &source)
{
    std::erase(m_recent, source);
    m_recent.push_back(source);
    std::erase_if(m_recent, [](const auto &recent) { return recent.use_count() == 1; }); // no step needs it any more
    while (m_recent.size() > maxRecent) {
        const auto oldest = std::move(m_recent.front());
        m_recent.pop_front();
        retire(oldest);
    }
}

/// Lets go of pixels that can be got in another way, or sees to it that they can.
void PictureArchive::retire(const std::shared_ptr<Source> &source)
{
    if (source->packing.valid())
        return; // takePacked will let go of them
    const bool isQuicklyMade = source->base.source && source->replay() <= m_maxReplay;
    if (source->packed || isQuicklyMade) {
        source->image = {};
        return;
    }
    finishPacking(); // one at a time, so that few pictures wait with all their pixels
    m_beingPacked = source;
    source->packedPointSize = source->image.pointSize;
    source->packedOrientation = source->imageOrientation;
    source->packing
        = std::async(std::launch::async, [pixels = source->image.pixels, notWanted = source->packingNotWanted] {
              return PackedPicture::pack(pixels, notWanted);
          });
}

void PictureArchive::finishPacking()
{
    if (m_beingPacked)
        m_beingPacked->packing.wait();
    takePacked();
}

void PictureArchive::takePacked()
{
    using namespace std::chrono_literals;
    std::erase_if(m_sources, [](const auto &source) { return source.expired(); });
    if (!m_beingPacked || m_beingPacked->packing.wait_for(0s) != std::future_status::ready)
        return;
    const auto source = std::exchange(m_beingPacked, nullptr);
    source->packed = source->packing.get();
    if (!source->packed)
        return; // no memory: its pixels stay as they are
    source->formerBase = source->base.source;
    source->formerBaseOrientation = source->base.orientation;
    source->base = {};
    if (source != m_latest.source && std::ranges::find(m_recent, source) == m_recent.end())
        source->image = {};
    economize();
}

qint64 PictureArchive::packedBytes() const
{
    qint64 bytes = 0;
    for (const auto &source : m_sources) {
        const auto alive = source.lock();
        bytes += alive && alive->packed ? alive->packed->byteCount() : 0;
    }
    return bytes;
}

/// Lets go of what can be made again within the limit.
void PictureArchive::dropPacked()
{
    for (const auto &weak : m_sources) {
        const auto source = weak.lock();
        const auto base = source && source->packed ? source->formerBase.lock() : nullptr;
        if (!base || source->work + base->replay() > m_maxReplay)
            continue;
        source->base = { base, source->formerBaseOrientation };
        source->packed.reset();
    }
}

/// Doubles the limit until the rest keeps to the budget. A picture made of nothing always stays.
void PictureArchive::economize()
{
    for (; packedBytes() > m_budgetBytes; m_maxReplay *= 2) {
        dropPacked();
        if (m_maxReplay >= mostReplay)
            return;
    }
}

std::optional<RasterImage> PictureArchive::upToOrientation(Source &source, Orientation wanted)
{
    const int threads = Parallel::defaultThreadCount();
    const auto turned = [&](const RasterImage &image, Orientation from) {
        return oriented(image, from.inverse().then(wanted), threads);
    };
    const bool isAsItIs = !source.image.pixels.isNull() || source.hasNothingElse();
    if (isAsItIs)
        return turned(source.image, source.imageOrientation);
    if (source.packed) {
        QImage pixels = source.packed->unpacked(threads);
        if (pixels.isNull())
            return std::nullopt;
        return turned({ std::move(pixels), source.packedPointSize }, source.packedOrientation);
    }
    const auto before = image(source.base);
    if (!before)
        return std::nullopt;
    if (source.base.source != m_latest.source) {
        // Going back one step after another, the base is what is asked for next.
        source.base.source->image = *before;
        source.base.source->imageOrientation = source.base.orientation;
        keepAsItIs(source.base.source);
    }
    const auto made = applied(*before, source.edit, threads);
    return made ? turned(*made, {}) : std::nullopt;
}

std::optional<RasterImage> PictureArchive::image(const Picture &picture)
{
    takePacked();
    return upToOrientation(*picture.source, picture.orientation);
}

void PictureArchive::show(const Picture &picture, const RasterImage &image) { setLatest(picture, image); }

} // namespace tessaly
