// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/CaptureService.h"

#include "core/Capture/CaptureDelivery.h"
#include "core/Capture/CaptureFailureAlert.h"
#include "core/Capture/CaptureRun.h"
#include "core/Capture/HiddenForCapture.h"
#include "core/Capture/LastRegion.h"
#include "core/Desktop/Sounds.h"
#include "core/Preferences/Settings.h"

#include <QCoreApplication>
#include <QTimer>

namespace tessaly {

using std::chrono::milliseconds;

struct CaptureService::Implementation {
    explicit Implementation(CaptureService &service, const Surroundings &surroundings);

    void begin(CaptureRequest request);
    void abandonRun();
    void noteSourceApplication();
    void ended(CaptureRun::End how);
    void fail(const CaptureRequest &request, const Failure &failure, bool offersWaysOut);
    void remember(const CaptureRun &finished, bool counts) const;
    void finish(const CaptureRequest &request, const CaptureOutcome &outcome) const;

    CaptureService &service;
    Surroundings with;
    HiddenForCapture hidden;
    std::shared_ptr<CaptureRun> run;
    QString sourceName; ///< of the program that the user was in when the last request came
    QTimer rest;
    QTimer readiness; ///< for the next capture, when the user has what came of this one
    int ending = 0; ///< requests that have their picture or their failure, and still wait for the user or a file
};

CaptureService::Implementation::Implementation(CaptureService &owner, const Surroundings &surroundings) :
    service(owner),
    with(surroundings),
    hidden(surroundings.ownWindows, surroundings.windows, surroundings.longestWait)
{
    rest.setSingleShot(true);
    rest.setInterval(with.rest);
    readiness.setSingleShot(true);
    readiness.setInterval(std::min(with.rest, milliseconds(1000)));
    QObject::connect(&readiness, &QTimer::timeout, &service, [this] {
        with.overlay.prepare(OverlayUse::Later);
        with.screen.prepare();
    });
    QObject::connect(&rest, &QTimer::timeout, &service, [this] { with.screen.release(); });
}

void CaptureService::Implementation::abandonRun()
{
    const auto old = std::exchange(run, nullptr);
    old->abandon();
    old->request().finished(CaptureCancelled {});
}

void CaptureService::Implementation::begin(CaptureRequest request)
{
    if (run)
        abandonRun();
    if (run) // whoever was told of that has asked for another one, which is the newer
        return request.finished(CaptureCancelled {});
    rest.stop();
    readiness.stop();
    noteSourceApplication();
    if (request.subject == CaptureSubject::FrontWindow)
        hidden.restore();
    const auto started = std::make_shared<CaptureRun>(with, hidden, std::move(request));
    started->ended = [this](CaptureRun::End how) { ended(std::move(how)); };
    run = started;
    started->begin();
}

/// While this program has the focus, as after a click into its start window, the one before it stays noted.
void CaptureService::Implementation::noteSourceApplication()
{
    const auto front = with.windows.frontApplication();
    if (!front)
        sourceName.clear();
    else if (front->processId != QCoreApplication::applicationPid())
        sourceName = front->name;
}

void CaptureService::Implementation::ended(CaptureRun::End how)
{
    const auto finished = std::exchange(run, nullptr);
    const CaptureRequest request = finished->request();
    hidden.restore();
    rest.start();
    readiness.start();
    const bool captured = std::holds_alternative<RasterImage>(how);
    if (!captured)
        remember(*finished, false);
    if (const auto *failure = std::get_if<Failure>(&how))
        return fail(request, *failure, true);
    if (const auto *nothing = std::get_if<CaptureRun::NothingThere>(&how))
        return fail(request, nothing->failure, false);
    if (!captured)
        return finish(request, CaptureCancelled {});
    if (with.settings.value(SettingKeys::captureSound))
        with.sounds.playScreenCapture();
    ++ending;
    const auto outcome = CaptureDelivery::deliver(with, request, std::get<RasterImage>(how), sourceName);
    remember(*finished, request.sink != CaptureSink::Text);
    --ending;
    finish(request, outcome);
}

/// In one write, for which the picture has not waited.
void CaptureService::Implementation::remember(const CaptureRun &finished, bool counts) const
{
    const auto change = [&] {
        if (finished.area())
            LastRegion::save(with.settings, *finished.area());
        const auto &count = SettingKeys::newsletterCaptureCount;
        if (counts)
            static_cast<void>(with.settings.set(count, with.settings.value(count) + 1));
    };
    // What cannot be written holds for this run all the same.
    static_cast<void>(with.settings.changeTogether(change));
}

void CaptureService::Implementation::finish(const CaptureRequest &request, const CaptureOutcome &outcome) const
{
    request.finished(outcome);
    if (!service.isBusy())
        Q_EMIT service.becameIdle();
}

/// The alert waits for the user and must not do so within the desktop's answer or the overlay's last click.
void CaptureService::Implementation::fail(const CaptureRequest &request, const Failure &failure, bool offersWaysOut)
{
    ++ending;
    const auto tell = [this, request, failure, offersWaysOut] {
        if (offersWaysOut)
            CaptureFailureAlert::showWithWaysOut(with, failure);
        else
            CaptureFailureAlert::show(with, failure);
        --ending;
        finish(request, failure);
    };
    QMetaObject::invokeMethod(&service, tell, Qt::QueuedConnection);
}

CaptureService::CaptureService(const Surroundings &surroundings) :
    m_implementation(std::make_unique<Implementation>(*this, surroundings))
{
}

CaptureService::~CaptureService()
{
    if (m_implementation->run)
        m_implementation->abandonRun();
    m_implementation->hidden.restore();
}

void CaptureService::start(CaptureRequest request)
{
    if (request.subject == CaptureSubject::LastRegion && !hasLastRegion()) {
        m_implementation->with.sounds.beep();
        return request.finished(Failure { tr("No region has been captured yet.") });
    }
    m_implementation->begin(std::move(request));
}

void CaptureService::cancel()
{
    Implementation &self = *m_implementation;
    if (!self.run)
        return;
    self.abandonRun();
    if (self.run) // another one has begun meanwhile
        return;
    self.hidden.restore();
    self.rest.start();
    if (!isBusy())
        Q_EMIT becameIdle();
}

void CaptureService::capture(CaptureMode mode, CaptureSink sink)
{
    constexpr std::array subjects { CaptureSubject::Region, CaptureSubject::Window, CaptureSubject::FullScreen };
    start({ .subject = subjects[static_cast<size_t>(mode)], .sink = sink });
}

void CaptureService::captureFrontWindow(CaptureSink sink)
{
    start({ .subject = CaptureSubject::FrontWindow, .sink = sink });
}

void CaptureService::captureFullScreen(std::optional<quint32> displayID)
{
    start({ .subject = CaptureSubject::FullScreen, .display = displayID });
}

void CaptureService::captureLastRegion() { start({ .subject = CaptureSubject::LastRegion }); }

bool CaptureService::hasLastRegion() const
{
    return LastRegion::load(m_implementation->with.settings, displays()).has_value();
}

bool CaptureService::isBusy() const { return m_implementation->run || m_implementation->ending > 0; }

QList<Display> CaptureService::displays() const
{
    const auto displays = m_implementation->with.screen.displays();
    return displays ? *displays : QList<Display>();
}

bool CaptureService::canPickWindows() const { return m_implementation->with.picker.isAvailable(); }

void CaptureService::prepare()
{
    m_implementation->with.overlay.prepare(OverlayUse::Later);
    m_implementation->with.screen.prepare();
    if (!m_implementation->run)
        m_implementation->rest.start();
}

} // namespace tessaly
