// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusContext>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariantMap>

#include <functional>

namespace tessaly {

class CaptureService;

/// Takes requests of other programs on the session bus: name org.tessaly.Tessaly, object /org/tessaly/Tessaly,
/// interface org.tessaly.Automation1. One for the program.
class AutomationService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.tessaly.Automation1")

public:
    /// The service is asked for with the first request.
    explicit AutomationService(std::function<CaptureService &()> captures);
    ~AutomationService() override;

    /// Takes the name on the bus. False when another Tessaly has it, or there is no bus; this one then takes no
    /// requests.
    bool claim();
    /// Gives the name back; what is asked from now on another one may answer.
    void release();

public Q_SLOTS: // by the names that they have on the bus
    /// Captures as RequestReading says, and answers when it is done: "outcome" is "captured", "cancelled" or "failed",
    /// with the "path" of a file that was saved, and the "message" of a failure. A request that is under way is
    /// cancelled, and so is one with the option "until-caller-leaves" when its caller leaves the bus. What cannot be
    /// understood is an error.
    Q_SCRIPTABLE QVariantMap Capture(const QString &subject, const QVariantMap &options);
    /// Runs on from now when no window is left.
    Q_SCRIPTABLE void Stay();
    /// Leaves alone a file that the caller is about to write into the folder of the desktop's screenshots.
    Q_SCRIPTABLE void IgnoreFile(const QString &path);
    /// Lets every pinned screenshot take clicks again.
    Q_SCRIPTABLE void UnlockPinnedScreenshots();
    /// Ends the program, unless the user keeps something open that is not saved.
    Q_SCRIPTABLE void Quit();

Q_SIGNALS:
    void quitRequested();
    void stayRequested();
    void unlockRequested();
    void ignoreRequested(const QString &path);

private Q_SLOTS:
    void handleDisconnected();

private:
    void handleLeft(const QString &caller);

    std::function<CaptureService &()> m_captures;
    QDBusServiceWatcher m_waiting; ///< callers whose requests end with them
    QString m_latest; ///< who asked last
    bool m_claimed = false;
};

} // namespace tessaly
