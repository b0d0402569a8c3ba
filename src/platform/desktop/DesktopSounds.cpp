// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/DesktopSounds.h"

#include "core/Base/SerialQueue.h"

#include <QLibrary>
#include <QTimer>

#include <canberra.h>

namespace tessaly {

namespace {

/// ALSA, by which Canberra plays where there is no sound server, writes a page to the standard error of a computer
/// without a sound card. This takes its place.
void ignoreSoundCardError(const char *, int, const char *, int, const char *, ...) { }

/// The library as long as it is loaded. One thread only.
class Canberra {
public:
    explicit Canberra(const QString &name) : m_library(name) { }
    ~Canberra() { release(); }

    /// Silent where there is no library, no sound server or no such sound.
    void play(const char *event)
    {
        if (!m_context && !open())
            return;
        m_play(m_context, 0, CA_PROP_EVENT_ID, event, nullptr);
    }

    void release()
    {
        if (m_context)
            m_destroy(std::exchange(m_context, nullptr));
        for (QLibrary *library : { &m_library, &m_alsa }) {
            if (library->isLoaded())
                library->unload();
        }
    }

private:
    template <class Function>
    bool resolve(Function *&function, const char *name)
    {
        function = reinterpret_cast<Function *>(m_library.resolve(name));
        return function != nullptr;
    }

    void quietenAlsa()
    {
        using SetHandler = int(decltype(&ignoreSoundCardError));
        if (auto *setHandler = reinterpret_cast<SetHandler *>(m_alsa.resolve("snd_lib_error_set_handler")))
            setHandler(ignoreSoundCardError);
    }

    bool open()
    {
        quietenAlsa();
        decltype(ca_context_create) *create = nullptr;
        decltype(ca_context_change_props) *describe = nullptr;
        const bool complete = resolve(create, "ca_context_create") && resolve(describe, "ca_context_change_props")
            && resolve(m_play, "ca_context_play") && resolve(m_destroy, "ca_context_destroy");
        if (!complete || create(&m_context) != CA_SUCCESS) {
            m_context = nullptr;
            return false;
        }
        describe(
            m_context, CA_PROP_APPLICATION_NAME, "Tessaly", CA_PROP_APPLICATION_ID, "org.tessaly.Tessaly", nullptr);
        return true;
    }

    QLibrary m_library;
    QLibrary m_alsa { QStringLiteral("libasound.so.2") };
    ca_context *m_context = nullptr;
    decltype(ca_context_play) *m_play = nullptr;
    decltype(ca_context_destroy) *m_destroy = nullptr;
};

} // namespace

struct DesktopSounds::Implementation {
    std::shared_ptr<Canberra> canberra;
    QTimer idle;
    SerialQueue queue; ///< reaching a sound server that hangs takes time, which is not the user's

    void play(const char *event)
    {
        queue.post([canberra = canberra, event] { canberra->play(event); });
        idle.start();
    }
};

DesktopSounds::DesktopSounds(const QString &library, std::chrono::milliseconds idle) :
    m_implementation(std::make_unique<Implementation>())
{
    m_implementation->canberra = std::make_shared<Canberra>(library);
    m_implementation->idle.setSingleShot(true);
    m_implementation->idle.setInterval(idle);
    m_implementation->idle.callOnTimeout([implementation = m_implementation.get()] {
        implementation->queue.post([canberra = implementation->canberra] { canberra->release(); });
    });
}

DesktopSounds::~DesktopSounds() = default;

void DesktopSounds::playScreenCapture() { m_implementation->play("screen-capture"); }
void DesktopSounds::beep() { m_implementation->play("bell"); }

} // namespace tessaly
