#include "platform/wayland/base/registry_probe.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QtGlobal>

#include <poll.h>
#include <wayland-client.h>

#include <cstring>
#include <memory>

namespace corvane {

namespace {

struct Disconnect {
    void operator()(wl_display *display) const { wl_display_disconnect(display); }
};
struct DestroyRegistry {
    void operator()(wl_registry *registry) const { wl_registry_destroy(registry); }
};
struct DestroyCallback {
    void operator()(wl_callback *callback) const { wl_callback_destroy(callback); }
};

const wl_registry_listener registryListener = {
    .global =
        [](void *data, wl_registry *, std::uint32_t, const char *interface, std::uint32_t) {
            if (std::strcmp(interface, "zwlr_layer_shell_v1") == 0)
                static_cast<CompositorRegistry *>(data)->hasLayerShell = true;
        },
    .global_remove = [](void *, wl_registry *, std::uint32_t) {},
};

const wl_callback_listener answerListener = {
    .done = [](void *data, wl_callback *,
               std::uint32_t) { static_cast<CompositorRegistry *>(data)->answers = true; },
};

/// Handles one lot of events; false where none came in time, or none will come any more.
bool waitForEvents(wl_display *display, const QDeadlineTimer &deadline)
{
    while (wl_display_prepare_read(display) != 0) {
        if (wl_display_dispatch_pending(display) < 0)
            return false;
    }
    wl_display_flush(display);
    pollfd waiting = {wl_display_get_fd(display), POLLIN, 0};
    if (::poll(&waiting, 1, static_cast<int>(deadline.remainingTime())) <= 0) {
        wl_display_cancel_read(display);
        return false;
    }
    return wl_display_read_events(display) == 0 && wl_display_dispatch_pending(display) >= 0;
}

/// Whether the environment says where a compositor is. Of a name without a folder the library would
/// complain on standard error.
bool isNamed()
{
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    return name.startsWith('/') || (!name.isEmpty() && qgetenv("XDG_RUNTIME_DIR").startsWith('/'));
}

} // namespace

CompositorRegistry probeRegistry()
{
    CompositorRegistry found;
    if (!isNamed() || qEnvironmentVariableIsSet("WAYLAND_SOCKET"))
        return found;
    const std::unique_ptr<wl_display, Disconnect> display(wl_display_connect(nullptr));
    if (!display)
        return found;
    const std::unique_ptr<wl_registry, DestroyRegistry> registry(
        wl_display_get_registry(display.get()));
    wl_registry_add_listener(registry.get(), &registryListener, &found);
    // What it offers is told before it answers this.
    const std::unique_ptr<wl_callback, DestroyCallback> answer(wl_display_sync(display.get()));
    wl_callback_add_listener(answer.get(), &answerListener, &found);
    const QDeadlineTimer deadline(probePatience);
    while (!found.answers) {
        if (!waitForEvents(display.get(), deadline))
            return {};
    }
    return found;
}

} // namespace corvane
