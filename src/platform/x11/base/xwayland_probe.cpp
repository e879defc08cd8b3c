#include "platform/x11/base/xwayland_probe.h"

#include "platform/x11/base/x11_reply.h"

#include <xcb/randr.h>
#include <xcb/xcb.h>

#include <memory>
#include <string_view>
#include <vector>

namespace corvane {

namespace {

struct Disconnect {
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
};

/// An extension without requests, by which these servers tell who they are from version 23.1 on.
constexpr std::string_view extensionName = "XWAYLAND";
/// What the names of their outputs begin with before that. Later ones have the compositor's.
constexpr std::string_view outputPrefix = "XWAYLAND";

bool isOutputOfXWayland(const xcb_randr_get_output_info_reply_t &output)
{
    const auto *const name
        = reinterpret_cast<const char *>(xcb_randr_get_output_info_name(&output));
    const auto length = static_cast<std::size_t>(xcb_randr_get_output_info_name_length(&output));
    return std::string_view(name, length).starts_with(outputPrefix);
}

bool hasOutputOfXWayland(xcb_connection_t *connection)
{
    const auto *const randr = xcb_get_extension_data(connection, &xcb_randr_id);
    if (!randr || !randr->present)
        return false;
    // Who does not say which version they know is taken for one of an old version.
    const auto version = xcb_randr_query_version(connection, 1, 3);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto wanted = xcb_randr_get_screen_resources_current(connection, root);
    xcb_discard_reply(connection, version.sequence);
    const X11Reply<xcb_randr_get_screen_resources_current_reply_t> resources(
        xcb_randr_get_screen_resources_current_reply(connection, wanted, nullptr));
    if (!resources)
        return false;
    // Asked all at once.
    std::vector<xcb_randr_get_output_info_cookie_t> questions;
    const auto *const outputs = xcb_randr_get_screen_resources_current_outputs(resources.get());
    for (int i = 0; i < xcb_randr_get_screen_resources_current_outputs_length(resources.get()); ++i)
        questions.push_back(
            xcb_randr_get_output_info(connection, outputs[i], resources->config_timestamp));
    bool isFound = false;
    for (const auto question : questions) {
        const X11Reply<xcb_randr_get_output_info_reply_t> output(
            xcb_randr_get_output_info_reply(connection, question, nullptr));
        isFound = isFound || (output && isOutputOfXWayland(*output));
    }
    return isFound;
}

} // namespace

bool isXWayland()
{
    const std::unique_ptr<xcb_connection_t, Disconnect> connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) != 0)
        return false;
    xcb_prefetch_extension_data(connection.get(), &xcb_randr_id);
    const X11Reply<xcb_query_extension_reply_t> extension(xcb_query_extension_reply(
        connection.get(),
        xcb_query_extension(connection.get(), extensionName.size(), extensionName.data()),
        nullptr));
    return (extension && extension->present) || hasOutputOfXWayland(connection.get());
}

} // namespace corvane
