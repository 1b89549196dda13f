#include "platform/DesktopScreenSaver.h"

#include "base/Logger.h"

#include <cstdlib>
#include <string>

namespace {

constexpr const char* kService = "org.freedesktop.ScreenSaver";
constexpr const char* kObject = "/org/freedesktop/ScreenSaver";
constexpr const char* kApplication = "Quackdash";
constexpr const char* kReason = "A match is running";
constexpr int kTimeout = 10000; // milliseconds until a service that says nothing counts as none

/// Return where the session bus is, or nothing. GLib, asked for it, would start one of its own where there is none.
std::string busAddress()
{
    if (const char* const given = std::getenv("DBUS_SESSION_BUS_ADDRESS")) return given;
    const char* const folder = std::getenv("XDG_RUNTIME_DIR");
    const std::string socket = std::string(folder ? folder : "") + "/bus";
    if (!folder || !g_file_test(socket.c_str(), G_FILE_TEST_EXISTS)) return "";
    char* const escaped = g_dbus_address_escape_value(socket.c_str());
    std::string address = std::string("unix:path=") + escaped;
    g_free(escaped);
    return address;
}

void complain(const char* reason)
{
    logLine(1) << "The screen may go dark during the match: " << reason << std::endl;
}

/// Say what failed, unless it was given up, and free the error.
void report(GError* error)
{
    g_dbus_error_strip_remote_error(error);
    if (!g_error_matches(error, G_IO_ERROR, G_IO_ERROR_CANCELLED)) complain(g_strdelimit(error->message, "\n", ' '));
    g_error_free(error);
}

/// While it lives, what is begun answers in that context.
class AnswersIn {
public:
    explicit AnswersIn(GMainContext* ownContext) : context(ownContext) { g_main_context_push_thread_default(context); }
    ~AnswersIn() { g_main_context_pop_thread_default(context); }
    AnswersIn(const AnswersIn&) = delete;
    AnswersIn& operator=(const AnswersIn&) = delete;

private:
    GMainContext* const context;
};

} // namespace

DesktopScreenSaver::DesktopScreenSaver() : context(g_main_context_new()) {}

DesktopScreenSaver::~DesktopScreenSaver()
{
    release();
    g_main_context_unref(context);
}

void DesktopScreenSaver::inhibit()
{
    release();
    const std::string address = busAddress();
    if (address.empty()) return complain("there is no session bus");

    constexpr auto kFlags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
        G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    attempt = g_cancellable_new();
    const AnswersIn answers(context);
    g_dbus_connection_new_for_address(address.c_str(), kFlags, nullptr, attempt, &onConnected, this);
}

void DesktopScreenSaver::onConnected(GObject*, GAsyncResult* result, gpointer self)
{
    GError* error = nullptr;
    GDBusConnection* const connected = g_dbus_connection_new_for_address_finish(result, &error);
    if (!connected) {
        report(error);
        return;
    }
    auto* const saver = static_cast<DesktopScreenSaver*>(self);
    saver->connection = connected;
    saver->sendInhibit();
}

void DesktopScreenSaver::sendInhibit()
{
    const AnswersIn answers(context);
    g_dbus_connection_call(connection, kService, kObject, kService, "Inhibit",
        g_variant_new("(ss)", kApplication, kReason), G_VARIANT_TYPE("(u)"), G_DBUS_CALL_FLAGS_NONE, kTimeout, attempt,
        &onInhibited, this);
}

void DesktopScreenSaver::onInhibited(GObject* source, GAsyncResult* result, gpointer self)
{
    GError* error = nullptr;
    GVariant* const answer = g_dbus_connection_call_finish(G_DBUS_CONNECTION(source), result, &error);
    if (!answer) {
        report(error);
        return;
    }
    guint32 granted = 0;
    g_variant_get(answer, "(u)", &granted);
    g_variant_unref(answer);
    static_cast<DesktopScreenSaver*>(self)->cookie = granted;
    logLine(2) << "The desktop keeps the screen awake" << std::endl;
}

void DesktopScreenSaver::update()
{
    while (g_main_context_iteration(context, FALSE)) {}
}

void DesktopScreenSaver::release()
{
    if (!attempt) return;
    g_cancellable_cancel(attempt);
    g_clear_object(&attempt);
    if (!connection) return;
    const AnswersIn answers(context);
    if (cookie) sendUnInhibit();
    g_dbus_connection_close(connection, nullptr, nullptr, nullptr);
    g_clear_object(&connection);
    cookie.reset();
}

void DesktopScreenSaver::sendUnInhibit()
{
    GDBusMessage* const message = g_dbus_message_new_method_call(kService, kObject, kService, "UnInhibit");
    g_dbus_message_set_flags(message, G_DBUS_MESSAGE_FLAGS_NO_REPLY_EXPECTED);
    g_dbus_message_set_body(message, g_variant_new("(u)", *cookie));
    g_dbus_connection_send_message(connection, message, G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr, nullptr);
    g_object_unref(message);
    g_dbus_connection_flush_sync(connection, nullptr, nullptr); // before the process ends; the socket takes it at once
}
