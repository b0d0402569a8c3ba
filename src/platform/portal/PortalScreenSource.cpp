// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/PortalScreenSource.h"

#include "platform/portal/DesktopPicture.h"
#include "platform/portal/PortalPicture.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QScreen>

namespace tessaly {

using namespace std::chrono_literals;

namespace {

/// The screens of Qt, in layout units; none where its platform has no desktop.
QList<Display> screensOfQt()
{
    const bool hasScreens = qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr;
    const QString platform = hasScreens ? QGuiApplication::platformName() : QString();
    if (platform.isEmpty() || platform == u"offscreen" || platform.startsWith(u"minimal"))
        return {};
    QList<Display> displays;
    for (const QScreen *screen : QGuiApplication::screens()) {
        const QRect geometry = screen->geometry();
        const QSize pixels = (QSizeF(geometry.size()) * screen->devicePixelRatio()).toSize();
        // On X11 Qt divides the sizes and leaves the places in device pixels.
        const QRect layout = platform == u"xcb" ? QRect(geometry.topLeft(), pixels) : geometry;
        displays += Display { screen->name(), layout, pixels, screen->devicePixelRatio(), displays.isEmpty() };
    }
    return displays;
}

Display wholeDesktop(QSize pixelSize)
{
    return { QStringLiteral("Desktop"), QRect(QPoint(), pixelSize), pixelSize, 1, true };
}

/// An event loop to wait in, also for a program without one. What the waiting starts must end before it.
class Waiting {
public:
    Waiting()
    {
        if (!QCoreApplication::instance())
            m_application = std::make_unique<QCoreApplication>(m_argumentCount, nullptr);
    }

    void until(const std::function<bool()> &done)
    {
        while (!done())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

private:
    int m_argumentCount = 0;
    std::unique_ptr<QCoreApplication> m_application;
};

} // namespace

struct PortalScreenSource::Implementation {
    using Taken = std::function<void(const Result<QImage> &)>;

    CaptureUse use = CaptureUse::Once;
    Monitors monitors;
    std::chrono::milliseconds patience {};
    std::optional<PortalFailure::Kind> lastFailure;
    std::unique_ptr<PortalPicture> taking;
    QList<Taken> waiting; ///< for what is being taken
    QImage kept;
    QDeadlineTimer keptUntil;
    QTimer forget;

    /// Empty when nothing tells them.
    QList<Display> knownDisplays() const;
    void withPicture(Taken then);
    void withPictureAtOnce(Taken then);
    void onTaken(Result<QImage, PortalPicture::Reason> picture);
    void keep(const QImage &picture);
};

QList<Display> PortalScreenSource::Implementation::knownDisplays() const
{
    const QList<Display> told = monitors ? monitors() : QList<Display>();
    return told.isEmpty() ? screensOfQt() : told;
}

void PortalScreenSource::Implementation::withPicture(Taken then)
{
    if (!kept.isNull() && !keptUntil.hasExpired())
        return then(kept);
    waiting += std::move(then);
    if (!taking) {
        taking = std::make_unique<PortalPicture>(
            patience, [this](Result<QImage, PortalPicture::Reason> picture) { onTaken(std::move(picture)); });
    }
}

void PortalScreenSource::Implementation::withPictureAtOnce(Taken then)
{
    Waiting loop;
    bool done = false;
    withPicture([&](const Result<QImage> &picture) {
        done = true;
        then(picture);
    });
    loop.until([&] { return done; });
}

void PortalScreenSource::Implementation::onTaken(Result<QImage, PortalPicture::Reason> picture)
{
    taking.reset();
    lastFailure = picture ? std::nullopt : std::optional(picture.failure().kind);
    if (picture)
        keep(*picture);
    const Result<QImage> answer = picture ? Result<QImage>(*picture) : Result<QImage>(picture.failure().failure);
    for (const Taken &each : std::exchange(waiting, {}))
        each(answer);
}

void PortalScreenSource::Implementation::keep(const QImage &picture)
{
    constexpr auto oneMoment = 200ms;
    kept = picture;
    keptUntil = QDeadlineTimer(oneMoment);
    if (use == CaptureUse::Repeated)
        forget.start(oneMoment);
}

PortalScreenSource::PortalScreenSource(CaptureUse use, Monitors monitors, std::chrono::milliseconds patience) :
    m_implementation(std::make_unique<Implementation>())
{
    m_implementation->use = use;
    m_implementation->monitors = std::move(monitors);
    m_implementation->patience = patience;
    m_implementation->forget.setSingleShot(true);
    m_implementation->forget.callOnTimeout([this] { release(); });
}

PortalScreenSource::~PortalScreenSource() = default;

Result<QList<Display>> PortalScreenSource::displays()
{
    if (const QList<Display> known = m_implementation->knownDisplays(); !known.isEmpty())
        return known;
    std::optional<Result<QList<Display>>> displays;
    m_implementation->withPictureAtOnce([&](const Result<QImage> &picture) {
        displays
            = picture ? Result(QList { wholeDesktop(picture->size()) }) : Result<QList<Display>>(picture.failure());
    });
    return *displays;
}

void PortalScreenSource::capture(const Shot &shot, Answer answer)
{
    const auto onTaken = [this, shot, answer = std::move(answer)](const Result<QImage> &picture) {
        if (!picture)
            return answer(picture.failure());
        const QList<Display> known = m_implementation->knownDisplays();
        const auto cut = DesktopPicture::cut(
            *picture, known.isEmpty() ? QList { wholeDesktop(picture->size()) } : known, shot.display);
        if (cut)
            return answer(RasterImage::fromPixels(cut->copy(shot.pixelRect & cut->rect()), shot.display.scale));
        m_implementation->lastFailure = PortalFailure::Kind::Unusable;
        answer(PortalFailure::unusable(cut.failure().message));
    };
    if (m_implementation->use == CaptureUse::Once)
        m_implementation->withPictureAtOnce(onTaken);
    else
        m_implementation->withPicture(onTaken);
}

std::optional<QString> PortalScreenSource::wayOut() const
{
    const auto failed = m_implementation->lastFailure;
    return failed ? PortalFailure::wayOut(*failed, qEnvironmentVariable("XDG_CURRENT_DESKTOP")) : std::nullopt;
}

void PortalScreenSource::whenSettled(std::function<void()> then)
{
    // The compositor shows its next frame without the windows; no message tells when.
    QTimer::singleShot(50ms, &m_implementation->forget, std::move(then));
}

void PortalScreenSource::release() { m_implementation->kept = {}; }

} // namespace tessaly
