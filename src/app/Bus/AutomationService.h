// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Intents/Intents.h"

#include <QDBusContext>
#include <QDBusServiceWatcher>
#include <QList>
#include <QObject>
#include <QUrl>
#include <QUuid>
#include <QVariantMap>

#include <functional>

namespace tessaly {

class CaptureService;

/// What other programs may have done here. Each returns once its work has begun or is about to.
struct AutomationRequests {
    std::function<CaptureService &()> captures; ///< asked for with the first capture
    std::function<Outcome(Intent intent, const QString &destination)> perform;
    std::function<void()> activate; ///< the program was started once more
    std::function<void(const QList<QUrl> &urls)> open;
    std::function<void(const QList<QUuid> &entries)> openHistoryEntries;
    std::function<void(const QString &sentence)> tell; ///< why something did not work, to the user
    /// The caller's right to bring a window to the front comes before what it asks for.
    std::function<void(const QVariantMap &platformData)> takeActivation;
};

/// Takes requests of other programs on the session bus: name org.tessaly.Tessaly, object /org/tessaly/Tessaly,
/// interfaces org.tessaly.Automation1 and org.freedesktop.Application. Only programs of the same user are heard. One
/// for the program.
class AutomationService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.tessaly.Automation1")

public:
    explicit AutomationService(AutomationRequests requests);
    ~AutomationService() override;

    /// Takes the name on the bus. False when another Tessaly has it, or there is no bus; this one then takes no
    /// requests.
    bool claim();
    /// Gives the name back; what is asked from now on another one may answer.
    void release();

    const AutomationRequests &requests() const { return m_requests; }

    /// An error as the bus names it, with its sentence.
    struct Refusal {
        QString name;
        QString sentence;
    };
    /// Empty when the work has begun.
    std::optional<Refusal> perform(Intent intent, const QString &destination);
    /// Whether the sender of a call belongs to another user. A sender that has gone by now does not.
    static bool isForeign(const QDBusConnection &bus, const QString &sender);

public Q_SLOTS: // by the names that they have on the bus
    /// Begin one of the five operations. The destination is "editor", "clipboard", "file" or empty, which is the
    /// editor; another one is an error.
    Q_SCRIPTABLE void CaptureRegion(const QString &destination);
    Q_SCRIPTABLE void CaptureWindow(const QString &destination);
    Q_SCRIPTABLE void CaptureFullScreen(const QString &destination);
    Q_SCRIPTABLE void CopyTextFromRegion();
    Q_SCRIPTABLE void OpenLastCapture();

    /// Captures as RequestReading says, and answers when it is done: in `outcome` the "outcome" is "captured",
    /// "cancelled" or "failed", with the "path" of a file that was saved, and the "message" of a failure. A request
    /// that is under way is cancelled, and so is one with the option "until-caller-leaves" when its caller leaves the
    /// bus. What cannot be understood is an error.
    Q_SCRIPTABLE void Capture(const QString &subject, const QVariantMap &options, QVariantMap &outcome);
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
    bool refusesCaller() const;
    void answer(Intent intent, const QString &destination = {});
    void handleLeft(const QString &caller);

    AutomationRequests m_requests;
    QDBusServiceWatcher m_waiting; ///< callers whose requests end with them
    QString m_latest; ///< who asked last
    bool m_claimed = false;
};

} // namespace tessaly
