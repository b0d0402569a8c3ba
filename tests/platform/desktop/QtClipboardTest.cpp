// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/QtClipboard.h"

#include "tests/support/VirtualScreen.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <thread>
#include <xcb/xcb.h>

using namespace tessaly;

namespace {

/// What was asked of an offer, which outlives it.
using Asked = std::shared_ptr<QStringList>;

class CountingOffer final : public ClipboardOffer {
public:
    CountingOffer(QByteArray bytes, Asked asked) : m_bytes(std::move(bytes)), m_asked(std::move(asked)) { }
    QStringList types() const override { return { "image/png", "image/tiff" }; }
    QByteArray data(const QString &type) override
    {
        *m_asked += type;
        return type.toLatin1() + m_bytes;
    }

private:
    QByteArray m_bytes;
    Asked m_asked;
};

/// A clipboard manager on a connection and a thread of its own: fetches what it is asked to save, or keeps silent.
class Manager {
public:
    explicit Manager(bool answers) : m_answers(answers), m_xcb(xcb_connect(nullptr, nullptr))
    {
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_xcb)).data;
        m_window = xcb_generate_id(m_xcb);
        xcb_create_window(m_xcb, 0, m_window, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
            XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(m_xcb, m_window, atom("CLIPBOARD_MANAGER"), XCB_CURRENT_TIME);
        std::free(xcb_get_input_focus_reply(m_xcb, xcb_get_input_focus(m_xcb), nullptr)); // the server has all that
        m_thread = std::thread([this] { serve(); });
    }

    /// Ends with the selection, which the destructor takes away from a second connection.
    ~Manager()
    {
        xcb_connection_t *other = xcb_connect(nullptr, nullptr);
        xcb_set_selection_owner(other, XCB_NONE, atom("CLIPBOARD_MANAGER"), XCB_CURRENT_TIME);
        std::free(xcb_get_input_focus_reply(other, xcb_get_input_focus(other), nullptr));
        m_thread.join();
        xcb_disconnect(other);
        xcb_disconnect(m_xcb);
    }

    QByteArray saved() const { return m_saved; } ///< read it when the request is over

private:
    xcb_atom_t atom(const QByteArray &name) const
    {
        auto *reply
            = xcb_intern_atom_reply(m_xcb, xcb_intern_atom(m_xcb, 0, uint16_t(name.size()), name.constData()), nullptr);
        const xcb_atom_t value = reply->atom;
        std::free(reply);
        return value;
    }

    void serve()
    {
        xcb_selection_request_event_t request {};
        while (xcb_generic_event_t *event = xcb_wait_for_event(m_xcb)) {
            const int type = event->response_type & ~0x80;
            if (type == XCB_SELECTION_REQUEST && m_answers) {
                request = *reinterpret_cast<xcb_selection_request_event_t *>(event);
                xcb_convert_selection(
                    m_xcb, m_window, atom("CLIPBOARD"), atom("image/png"), atom("FETCHED"), XCB_CURRENT_TIME);
                xcb_flush(m_xcb);
            } else if (type == XCB_SELECTION_NOTIFY) {
                fetch();
                answer(request);
            }
            std::free(event);
            if (type == XCB_SELECTION_CLEAR)
                return;
        }
    }

    void fetch()
    {
        auto *reply = xcb_get_property_reply(
            m_xcb, xcb_get_property(m_xcb, 1, m_window, atom("FETCHED"), XCB_ATOM_ANY, 0, 1000), nullptr);
        m_saved = QByteArray(
            static_cast<const char *>(xcb_get_property_value(reply)), xcb_get_property_value_length(reply));
        std::free(reply);
    }

    void answer(const xcb_selection_request_event_t &request)
    {
        xcb_selection_notify_event_t done {};
        done.response_type = XCB_SELECTION_NOTIFY;
        done.requestor = request.requestor;
        done.selection = request.selection;
        done.target = request.target;
        done.property = request.property;
        xcb_send_event(m_xcb, 0, request.requestor, 0, reinterpret_cast<const char *>(&done));
        xcb_flush(m_xcb);
    }

    bool m_answers;
    xcb_connection_t *m_xcb;
    xcb_window_t m_window = XCB_NONE;
    QByteArray m_saved;
    std::thread m_thread;
};

/// Runs xclip while this program serves its clipboard.
QByteArray xclip(const QStringList &arguments)
{
    QProcess process;
    process.start("xclip", QStringList { "-selection", "clipboard" } + arguments);
    if (!QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 10'000))
        return {};
    return process.readAllStandardOutput();
}

} // namespace

/// The clipboard of a real X server, seen by other programs.
class QtClipboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void othersPasteWhatIsOffered()
    {
        QtClipboard clipboard;
        const QSignalSpy changes(&clipboard, &Clipboard::changed);
        const Asked asked = std::make_shared<QStringList>();
        clipboard.offer(std::make_unique<CountingOffer>("-1", asked));
        QTRY_COMPARE(changes.size(), 1);
        const QByteArray targets = xclip({ "-t", "TARGETS", "-o" });
        QVERIFY(targets.contains("image/png") && targets.contains("image/tiff"));
        QVERIFY(asked->isEmpty()); // nothing is made before it is wanted
        QCOMPARE(xclip({ "-t", "image/tiff", "-o" }), "image/tiff-1");
        QCOMPARE(*asked, QStringList("image/tiff"));
        QVERIFY(clipboard.types().contains("image/png"));
        QCOMPARE(clipboard.data("image/png"), "image/png-1");
    }

    void whatOthersCopyIsPasted()
    {
        QtClipboard clipboard;
        QProcess process;
        process.start("xclip", { "-selection", "clipboard", "-t", "image/png", "-i" });
        process.write("bytes");
        process.closeWriteChannel();
        QTRY_COMPARE(clipboard.data("image/png"), "bytes");
        QVERIFY(clipboard.types().contains("image/png"));
    }

    void leavingGivesTheManagerWhatIsOffered_data()
    {
        QTest::addColumn<bool>("answers");
        QTest::addColumn<QByteArray>("saved");
        QTest::newRow("a manager") << true << QByteArray("image/png-2");
        QTest::newRow("a silent manager") << false << QByteArray();
    }

    void leavingGivesTheManagerWhatIsOffered()
    {
        QFETCH(bool, answers);
        Manager manager(answers);
        QtClipboard clipboard;
        clipboard.offer(std::make_unique<CountingOffer>("-2", std::make_shared<QStringList>()));
        clipboard.handOver();
        QTEST(manager.saved(), "saved");
        QVERIFY(!QGuiApplication::clipboard()->ownsClipboard());
    }

    void withoutAManagerLeavingIsSimple()
    {
        QtClipboard clipboard;
        const Asked asked = std::make_shared<QStringList>();
        clipboard.offer(std::make_unique<CountingOffer>("-3", asked));
        clipboard.handOver();
        QVERIFY(asked->isEmpty());
        QVERIFY(!QGuiApplication::clipboard()->ownsClipboard());
    }
};

int main(int argc, char **argv)
{
    const test::VirtualScreen screen(QStringLiteral("320x240x24"));
    if (screen.displayName().isEmpty())
        qFatal("no X server could be started");
    qputenv("DISPLAY", screen.displayName().toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    QGuiApplication application(argc, argv);
    QtClipboardTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "QtClipboardTest.moc"
