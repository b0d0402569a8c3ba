// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Base/SerialQueue.h"
#include "platform/portal/PortalFailure.h"
#include "platform/portal/PortalRequest.h"

#include <QImage>

#include <memory>

namespace tessaly {

/// Has the portal take one picture of the whole desktop: quietly, and in its dialog only when that is refused. It
/// speaks to the bus on a connection of its own, which ends with it. Main thread only.
class PortalPicture final : public QObject {
public:
    struct Reason {
        PortalFailure::Kind kind;
        Failure failure;
    };
    using Answer = std::function<void(Result<QImage, Reason>)>;

    /// The dialog has the user's time, and waits longer than the portal may think.
    static constexpr int dialogPatienceFactor = 6;

    /// `answer` is called once from the event loop, and may delete this; an object that goes before never calls it.
    PortalPicture(std::chrono::milliseconds patience, Answer answer);
    ~PortalPicture() override;

private:
    enum class Manner {
        Quiet, ///< the desktop asks the user at most for the permission
        Interactive, ///< the user chooses in a dialog of the desktop
    };
    void ask(Manner manner);
    void read(const QString &uri);
    void finish(Result<QImage, Reason> picture);

    std::chrono::milliseconds m_patience;
    Answer m_answer;
    QString m_connection;
    std::unique_ptr<PortalRequest> m_request;
    SerialQueue m_reader; ///< the last: its job ends before what it answers to goes
};

} // namespace tessaly
