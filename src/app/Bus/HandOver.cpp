// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Bus/HandOver.h"

#include "app/Bus/AutomationNames.h"
#include "app/Bus/DesktopArguments.h"
#include "platform/desktop/SessionBus.h"

#include <QDir>
#include <QElapsedTimer>
#include <QUrl>

#include <dbus/dbus.h>

#include <functional>
#include <memory>
#include <vector>

namespace tessaly::HandOver {

namespace {

struct Close {
    void operator()(DBusConnection *connection) const
    {
        dbus_connection_close(connection);
        dbus_connection_unref(connection);
    }
    void operator()(DBusMessage *message) const { dbus_message_unref(message); }
};
using Connection = std::unique_ptr<DBusConnection, Close>;
using Message = std::unique_ptr<DBusMessage, Close>;

class Error {
public:
    Error() { dbus_error_init(&m_error); }
    ~Error() { dbus_error_free(&m_error); }
    Error(const Error &) = delete;
    Error &operator=(const Error &) = delete;

    DBusError *get() { return &m_error; }
    bool hasName(const char *name) const { return dbus_error_has_name(&m_error, name); }

private:
    DBusError m_error;
};

/// One of its own: Qt's would share a connection that is made before there is an application.
Connection connectToBus()
{
    if (!SessionBus::isThere())
        return {};
    Error error;
    Connection connection(dbus_bus_get_private(DBUS_BUS_SESSION, error.get()));
    if (connection)
        dbus_connection_set_exit_on_disconnect(connection.get(), false);
    return connection;
}

/// Appends what `fill` puts into a container.
void append(DBusMessageIter &to, int type, const char *signature, const std::function<void(DBusMessageIter &)> &fill)
{
    DBusMessageIter inner;
    dbus_message_iter_open_container(&to, type, signature, &inner);
    fill(inner);
    dbus_message_iter_close_container(&to, &inner);
}

void append(DBusMessageIter &to, const QByteArray &text)
{
    const char *bytes = text.constData();
    dbus_message_iter_append_basic(&to, DBUS_TYPE_STRING, &bytes);
}

void appendVariant(DBusMessageIter &to, const QByteArray &text)
{
    append(to, DBUS_TYPE_VARIANT, "s", [&text](DBusMessageIter &variant) { append(variant, text); });
}

/// By which the desktop lets the other program's windows come to the front.
void appendPlatformData(DBusMessageIter &to)
{
    constexpr std::pair<const char *, const char *> variables[]
        = { { "desktop-startup-id", "DESKTOP_STARTUP_ID" }, { "activation-token", "XDG_ACTIVATION_TOKEN" } };
    append(to, DBUS_TYPE_ARRAY, "{sv}", [&](DBusMessageIter &map) {
        for (const auto &[name, variable] : variables) {
            const QByteArray value = qgetenv(variable);
            if (value.isEmpty() || !dbus_validate_utf8(value.constData(), nullptr))
                continue;
            append(map, DBUS_TYPE_DICT_ENTRY, nullptr, [&](DBusMessageIter &entry) {
                append(entry, QByteArray(name));
                appendVariant(entry, value);
            });
        }
    });
}

Message newCall(const char *interface, const char *method)
{
    Message call(dbus_message_new_method_call(AutomationNames::service, AutomationNames::object, interface, method));
    dbus_message_set_auto_start(call.get(), false);
    return call;
}

Message activateCall()
{
    Message call = newCall(AutomationNames::applicationInterface, "Activate");
    DBusMessageIter iterator;
    dbus_message_iter_init_append(call.get(), &iterator);
    appendPlatformData(iterator);
    return call;
}

Message openCall(const QStringList &files)
{
    Message call = newCall(AutomationNames::applicationInterface, "Open");
    DBusMessageIter iterator;
    dbus_message_iter_init_append(call.get(), &iterator);
    append(iterator, DBUS_TYPE_ARRAY, "s", [&files](DBusMessageIter &list) {
        const QDir here; // which is another one for the program that runs
        for (const QString &file : files)
            append(list, QUrl::fromLocalFile(here.absoluteFilePath(file)).toEncoded());
    });
    appendPlatformData(iterator);
    return call;
}

Message actionCall(const QByteArray &name, const QByteArrayList &parameters)
{
    Message call = newCall(AutomationNames::applicationInterface, "ActivateAction");
    DBusMessageIter iterator;
    dbus_message_iter_init_append(call.get(), &iterator);
    append(iterator, name);
    append(iterator, DBUS_TYPE_ARRAY, "v", [&parameters](DBusMessageIter &list) {
        for (const QByteArray &parameter : parameters)
            appendVariant(list, parameter);
    });
    appendPlatformData(iterator);
    return call;
}

std::vector<Message> callsFor(const DesktopArguments &arguments)
{
    std::vector<Message> calls;
    if (arguments.resident)
        calls.push_back(newCall(AutomationNames::interface, "Stay"));
    if (!arguments.files.isEmpty())
        calls.push_back(openCall(arguments.files));
    if (!arguments.historyEntries.isEmpty()) {
        QByteArrayList ids;
        for (const QUuid &id : arguments.historyEntries)
            ids += id.toByteArray(QUuid::WithoutBraces);
        calls.push_back(actionCall(AutomationNames::openHistoryEntry, ids));
    }
    if (arguments.action) {
        const QByteArray destination = arguments.action->destination.toUtf8();
        calls.push_back(actionCall(arguments.action->name.toUtf8(),
            destination.isEmpty() ? QByteArrayList() : QByteArrayList { destination }));
    }
    if (arguments.isPlain())
        calls.push_back(activateCall());
    return calls;
}

/// Empty where it was refused at once: the other one was ending, or does not know the call.
std::optional<Answer> ask(DBusConnection *connection, DBusMessage *call, std::chrono::milliseconds patience)
{
    QElapsedTimer timer;
    timer.start();
    Error error;
    const Message request(dbus_message_copy(call)); // which may be sent again
    const Message reply(dbus_connection_send_with_reply_and_block(
        connection, request.get(), static_cast<int>(patience.count()), error.get()));
    if (reply)
        return Answer::Taken;
    if (error.hasName(DBUS_ERROR_SERVICE_UNKNOWN) || error.hasName(DBUS_ERROR_NAME_HAS_NO_OWNER))
        return Answer::NoneRuns;
    // It has understood the call and cannot do what is asked, which this program could not either.
    if (error.hasName(AutomationNames::noCaptures) || error.hasName(DBUS_ERROR_INVALID_ARGS))
        return Answer::Taken;
    // The bus says of a program that has just gone what libdbus says when time is up, which it rounds.
    return timer.elapsed() >= patience.count() * 9 / 10 ? std::optional(Answer::Silent) : std::nullopt;
}

} // namespace

bool isOtherRunning()
{
    const Connection connection = connectToBus();
    return connection && dbus_bus_name_has_owner(connection.get(), AutomationNames::service, nullptr);
}

Answer toOther(const DesktopArguments &arguments, std::chrono::milliseconds patience)
{
    const std::vector<Message> calls = callsFor(arguments);
    const Connection connection = connectToBus();
    if (!connection)
        return Answer::NoneRuns;
    int refusals = 0;
    for (auto call = calls.begin(); call != calls.end();) {
        const auto answer = ask(connection.get(), call->get(), patience);
        if (answer == Answer::Taken)
            ++call;
        else if (answer)
            return *answer;
        else if (++refusals == 2)
            return Answer::Silent;
    }
    return Answer::Taken;
}

} // namespace tessaly::HandOver
