#pragma once

#include "platform/ScreenSaver.h"

#include <gio/gio.h>

#include <cstdint>
#include <optional>

/// The service org.freedesktop.ScreenSaver. Every call goes its way without being waited for, so that neither a slow
/// service nor a bus that hangs holds a frame up. Each inhibit() has a connection of its own, whose end gives back what
/// release() cannot: an answer that is still under way.
class DesktopScreenSaver final : public ScreenSaver {
public:
    DesktopScreenSaver();
    ~DesktopScreenSaver() override;
    DesktopScreenSaver(const DesktopScreenSaver&) = delete;
    DesktopScreenSaver& operator=(const DesktopScreenSaver&) = delete;

    void inhibit() override;
    void release() override;
    void update() override;

private:
    static void onConnected(GObject*, GAsyncResult* result, gpointer self);
    static void onInhibited(GObject* source, GAsyncResult* result, gpointer self);

    void sendInhibit();
    void sendUnInhibit();

    GMainContext* const context; // answers wait in it for update()
    GCancellable* attempt = nullptr;
    GDBusConnection* connection = nullptr;
    std::optional<std::uint32_t> cookie; // the service's name for what it has granted
};
