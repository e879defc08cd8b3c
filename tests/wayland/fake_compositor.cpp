#include "wayland/fake_compositor.h"

#include "layer_shell_server.h"
#include "platform/system/file_descriptor.h"

#include <QFile>

#include <sys/eventfd.h>
#include <unistd.h>
#include <wayland-server.h>

#include <algorithm>
#include <future>
#include <list>
#include <mutex>
#include <utility>
#include <vector>

namespace corvane::test {

namespace {

/// As on a screen. A frame that was told of at once would often come while its window goes, at
/// which Qt 6.4 ends: it forgets what it waits for there on two threads.
constexpr int refreshMilliseconds = 16;

template<typename Object>
Object &of(wl_resource *resource)
{
    return *static_cast<Object *>(wl_resource_get_user_data(resource));
}

void destroy(wl_client * /*client*/, wl_resource *resource)
{
    wl_resource_destroy(resource);
}

wl_resource *make(wl_client *client, const wl_interface &interface, int version, std::uint32_t id,
                  const void *requests, void *data, wl_resource_destroy_func_t onEnd = nullptr)
{
    wl_resource *const made = wl_resource_create(client, &interface, version, id);
    wl_resource_set_implementation(made, requests, data, onEnd);
    return made;
}

/// Whoever binds it has these requests answered.
template<const wl_interface &interface, const auto &requests>
void announce(wl_display *display, int version, void *server)
{
    wl_global_create(display, &interface, version, server,
                     [](wl_client *client, void *data, std::uint32_t bound, std::uint32_t id) {
                         make(client, interface, static_cast<int>(bound), id, &requests, data);
                     });
}

} // namespace

struct FakeCompositor::Server {
    struct Shown {
        Server *server;
        wl_resource *resource;
        wl_resource *hung = nullptr;
        bool isConfigured = false;
        /// What it is a part of.
        Shown *whole = nullptr;
        wl_resource *partOf = nullptr;
        /// Was committed, and waits for that.
        bool isReady = false;
        Surface pending;
        Surface current;
        bool isOnOutput = false;
        wl_resource *buffer = nullptr;
        bool hasNewBuffer = false;
        std::vector<wl_resource *> frames;
    };
    /// All that there were.
    struct Output {
        std::size_t number;
        QPoint at;
        Server *server;
        wl_global *global = nullptr;
        std::vector<wl_resource *> bound;
    };
    struct Offer {
        Answer answer;
        wl_resource *resource = nullptr;
        /// Those that nothing was written to yet.
        std::list<FileDescriptor> pipes;
    };

    bool start(const QByteArray &socket);
    void run() const { wl_display_run(display); }
    void add(std::function<void()> work);
    Shown *newest(const QByteArray &label);
    wl_resource *of(const std::vector<wl_resource *> &all, wl_client *client) const;
    static void commit(Shown &surface);
    static int tellOfFrames(void *data);
    static void become(Shown &surface);
    Output &plugIn(QPoint at);

    wl_display *display = nullptr;
    int wake = -1;
    std::mutex mutex;
    std::vector<std::function<void()>> works;
    /// When those that were painted hear that they may be painted anew.
    wl_event_source *refresh = nullptr;
    std::list<Shown> surfaces;
    std::list<Output> outputs;
    std::size_t currentOutput = 0;
    std::vector<wl_resource *> devices;
    std::vector<wl_resource *> pointers;
    /// All that there were: those who got one may still have it.
    std::list<Offer> offers;
    Offer *offer = nullptr;

    struct Requests;
};

struct FakeCompositor::Server::Requests {
    // Regions.
    static void addTo(wl_client *, wl_resource *region, int x, int y, int width, int height)
    {
        test::of<QRegion>(region) += QRect(x, y, width, height);
    }
    static void takeFrom(wl_client *, wl_resource *region, int x, int y, int width, int height)
    {
        test::of<QRegion>(region) -= QRect(x, y, width, height);
    }
    static constexpr struct wl_region_interface region = {destroy, addTo, takeFrom};

    // Surfaces.
    static void attach(wl_client *, wl_resource *surface, wl_resource *buffer, int x, int y)
    {
        auto &shown = test::of<Shown>(surface);
        shown.buffer = buffer;
        shown.hasNewBuffer = true;
        shown.pending.attachedAt = {x, y};
    }
    static void damage(wl_client *, wl_resource *, int, int, int, int) { }
    static void frame(wl_client *client, wl_resource *surface, std::uint32_t id)
    {
        auto &shown = test::of<Shown>(surface);
        shown.frames.push_back(
            make(client, wl_callback_interface, 1, id, nullptr, &shown, [](wl_resource *callback) {
                std::erase(test::of<Shown>(callback).frames, callback);
            }));
    }
    static void setOpaque(wl_client *, wl_resource *, wl_resource *) { }
    static void setInput(wl_client *, wl_resource *surface, wl_resource *input)
    {
        auto &pending = test::of<Shown>(surface).pending;
        pending.input = input ? std::optional(test::of<QRegion>(input)) : std::nullopt;
    }
    static void commitSurface(wl_client *, wl_resource *surface)
    {
        commit(test::of<Shown>(surface));
    }
    static void setTransform(wl_client *, wl_resource *, int) { }
    static void setScale(wl_client *, wl_resource *surface, int scale)
    {
        test::of<Shown>(surface).pending.bufferScale = scale;
    }
    static constexpr struct wl_surface_interface surface = [] {
        struct wl_surface_interface all = {};
        all.destroy = destroy;
        all.attach = attach;
        all.damage = damage;
        all.frame = frame;
        all.set_opaque_region = setOpaque;
        all.set_input_region = setInput;
        all.commit = commitSurface;
        all.set_buffer_transform = setTransform;
        all.set_buffer_scale = setScale;
        all.damage_buffer = damage;
        return all;
    }();
    static void makeSurface(wl_client *client, wl_resource *compositor, std::uint32_t id)
    {
        auto &server = test::of<Server>(compositor);
        Shown &shown = server.surfaces.emplace_back(Shown{&server,
                                                          nullptr,
                                                          nullptr,
                                                          false,
                                                          nullptr,
                                                          nullptr,
                                                          false,
                                                          {},
                                                          {},
                                                          false,
                                                          nullptr,
                                                          false,
                                                          {}});
        shown.resource
            = make(client, wl_surface_interface, 4, id, &surface, &shown, [](wl_resource *gone) {
                  auto &ended = test::of<Shown>(gone);
                  for (wl_resource *waiting : std::exchange(ended.frames, {}))
                      wl_resource_set_destructor(waiting, nullptr);
                  for (wl_resource *role : {ended.hung, ended.partOf}) {
                      if (role)
                          wl_resource_set_user_data(role, nullptr);
                  }
                  auto &all = ended.server->surfaces;
                  for (Shown &part : all) {
                      if (part.whole == &ended)
                          part.whole = nullptr;
                  }
                  std::erase_if(all, [&](const Shown &one) { return &one == &ended; });
              });
    }
    static void makeRegion(wl_client *client, wl_resource *, std::uint32_t id)
    {
        make(client, wl_region_interface, 1, id, &region, new QRegion,
             [](wl_resource *gone) { delete &test::of<QRegion>(gone); });
    }
    static constexpr struct wl_compositor_interface compositor = {makeSurface, makeRegion};

    // Parts of surfaces.
    static constexpr struct wl_subsurface_interface part = {
        .destroy = destroy,
        .set_position =
            [](wl_client *, wl_resource *part, int x, int y) {
                if (auto *const shown = static_cast<Shown *>(wl_resource_get_user_data(part)))
                    shown->pending.placeInWhole = {x, y};
            },
        .place_above = [](wl_client *, wl_resource *, wl_resource *) {},
        .place_below = [](wl_client *, wl_resource *, wl_resource *) {},
        .set_sync = [](wl_client *, wl_resource *) {},
        .set_desync = [](wl_client *, wl_resource *) {},
    };
    static void makePart(wl_client *client, wl_resource *, std::uint32_t id, wl_resource *surface,
                         wl_resource *whole)
    {
        auto &shown = test::of<Shown>(surface);
        shown.whole = &test::of<Shown>(whole);
        shown.pending.placeInWhole = QPoint();
        shown.partOf
            = make(client, wl_subsurface_interface, 1, id, &part, &shown, [](wl_resource *gone) {
                  auto *const bare = static_cast<Shown *>(wl_resource_get_user_data(gone));
                  if (!bare)
                      return;
                  bare->partOf = nullptr;
                  bare->whole = nullptr;
                  bare->current = bare->pending = {};
              });
    }
    static constexpr struct wl_subcompositor_interface parts = {destroy, makePart};

    // What is hung from the screen's edges.
    template<typename Change>
    static void change(wl_resource *hung, const Change &change)
    {
        if (auto *const shown = static_cast<Shown *>(wl_resource_get_user_data(hung)))
            change(shown->pending);
    }
    static constexpr struct zwlr_layer_surface_v1_interface hung = {
        .set_size =
            [](wl_client *, wl_resource *hung, std::uint32_t width, std::uint32_t height) {
                change(hung, [&](Surface &pending) {
                    pending.size = QSize(static_cast<int>(width), static_cast<int>(height));
                });
            },
        .set_anchor = [](wl_client *, wl_resource *, std::uint32_t) {},
        .set_exclusive_zone
        = [](wl_client *, wl_resource *hung,
             std::int32_t zone) { change(hung, [&](Surface &pending) { pending.zone = zone; }); },
        .set_margin =
            [](wl_client *, wl_resource *hung, int top, int, int, int left) {
                change(hung, [&](Surface &pending) { pending.margin = {left, top}; });
            },
        .set_keyboard_interactivity = [](wl_client *, wl_resource *, std::uint32_t) {},
        .get_popup = [](wl_client *, wl_resource *, wl_resource *) {},
        .ack_configure = [](wl_client *, wl_resource *, std::uint32_t) {},
        .destroy = destroy,
        .set_layer =
            [](wl_client *, wl_resource *hung, std::uint32_t layer) {
                change(hung, [&](Surface &pending) { pending.layer = layer; });
            },
    };
    static void hang(wl_client *client, wl_resource *shell, std::uint32_t id, wl_resource *surface,
                     wl_resource *output, std::uint32_t layer, const char *label)
    {
        auto &shown = test::of<Shown>(surface);
        shown.pending.output
            = output ? test::of<Output>(output).number : shown.server->currentOutput;
        shown.pending.layer = layer;
        shown.pending.label = label;
        shown.hung = make(client, zwlr_layer_surface_v1_interface, wl_resource_get_version(shell),
                          id, &hung, &shown, [](wl_resource *gone) {
                              auto *const bare
                                  = static_cast<Shown *>(wl_resource_get_user_data(gone));
                              if (!bare)
                                  return;
                              bare->hung = nullptr;
                              bare->isConfigured = bare->isOnOutput = false;
                              bare->current = bare->pending = {};
                          });
    }
    static constexpr struct zwlr_layer_shell_v1_interface shell = {hang, destroy};

    // Windows of other kinds, which nobody looks at: newer versions of Qt do not start without.
    static constexpr struct wl_shell_surface_interface window = {
        .pong = [](wl_client *, wl_resource *, std::uint32_t) {},
        .move = [](wl_client *, wl_resource *, wl_resource *, std::uint32_t) {},
        .resize = [](wl_client *, wl_resource *, wl_resource *, std::uint32_t, std::uint32_t) {},
        .set_toplevel = [](wl_client *, wl_resource *) {},
        .set_transient = [](wl_client *, wl_resource *, wl_resource *, int, int, std::uint32_t) {},
        .set_fullscreen
        = [](wl_client *, wl_resource *, std::uint32_t, std::uint32_t, wl_resource *) {},
        .set_popup = [](wl_client *, wl_resource *, wl_resource *, std::uint32_t, wl_resource *,
                        int, int, std::uint32_t) {},
        .set_maximized = [](wl_client *, wl_resource *, wl_resource *) {},
        .set_title = [](wl_client *, wl_resource *, const char *) {},
        .set_class = [](wl_client *, wl_resource *, const char *) {},
    };
    static void makeWindow(wl_client *client, wl_resource *, std::uint32_t id, wl_resource *)
    {
        make(client, wl_shell_surface_interface, 1, id, &window, nullptr);
    }
    static constexpr struct wl_shell_interface windows = {makeWindow};

    // Drags.
    static constexpr struct wl_data_source_interface source = {
        .offer = [](wl_client *, wl_resource *, const char *) {},
        .destroy = destroy,
        .set_actions = [](wl_client *, wl_resource *, std::uint32_t) {},
    };
    static constexpr struct wl_data_offer_interface offer = {
        .accept
        = [](wl_client *, wl_resource *offer, std::uint32_t,
             const char *type) { test::of<Offer>(offer).answer.accepted = QByteArray(type); },
        .receive =
            [](wl_client *, wl_resource *offer, const char *type, std::int32_t pipe) {
                auto &asked = test::of<Offer>(offer);
                asked.answer.asked << type;
                asked.pipes.emplace_back(pipe);
            },
        .destroy = destroy,
        .finish = [](wl_client *, wl_resource *offer) { ++test::of<Offer>(offer).answer.finishes; },
        .set_actions = [](wl_client *, wl_resource *offer, std::uint32_t actions,
                          std::uint32_t) { test::of<Offer>(offer).answer.actions = actions; },
    };
    static constexpr struct wl_data_device_interface device = {
        .start_drag = [](wl_client *, wl_resource *, wl_resource *, wl_resource *, wl_resource *,
                         std::uint32_t) {},
        .set_selection = [](wl_client *, wl_resource *, wl_resource *, std::uint32_t) {},
        .release = destroy,
    };
    static void makeSource(wl_client *client, wl_resource *, std::uint32_t id)
    {
        make(client, wl_data_source_interface, 3, id, &source, nullptr);
    }
    static void makeDevice(wl_client *client, wl_resource *manager, std::uint32_t id, wl_resource *)
    {
        auto &server = test::of<Server>(manager);
        server.devices.push_back(make(
            client, wl_data_device_interface, wl_resource_get_version(manager), id, &device,
            &server, [](wl_resource *gone) { std::erase(test::of<Server>(gone).devices, gone); }));
    }
    static constexpr struct wl_data_device_manager_interface manager = {makeSource, makeDevice};

    // The seat and its pointer.
    static constexpr struct wl_pointer_interface pointer = {
        .set_cursor = [](wl_client *, wl_resource *, std::uint32_t, wl_resource *, int, int) {},
        .release = destroy,
    };
    static void makePointer(wl_client *client, wl_resource *seat, std::uint32_t id)
    {
        auto &server = test::of<Server>(seat);
        server.pointers.push_back(
            make(client, wl_pointer_interface, wl_resource_get_version(seat), id, &pointer, &server,
                 [](wl_resource *gone) { std::erase(test::of<Server>(gone).pointers, gone); }));
    }
    static constexpr struct wl_seat_interface seat = {
        .get_pointer = makePointer,
        .get_keyboard = [](wl_client *, wl_resource *, std::uint32_t) {},
        .get_touch = [](wl_client *, wl_resource *, std::uint32_t) {},
        .release = destroy,
    };

    static constexpr struct wl_output_interface output = {destroy};
};

int FakeCompositor::Server::tellOfFrames(void *data)
{
    for (Shown &surface : static_cast<Server *>(data)->surfaces) {
        for (wl_resource *frame : std::exchange(surface.frames, {})) {
            wl_resource_set_destructor(frame, nullptr);
            wl_callback_send_done(frame, 1);
            wl_resource_destroy(frame);
        }
    }
    return 0;
}

void FakeCompositor::Server::commit(Shown &surface)
{
    if (surface.whole) {
        surface.isReady = true;
        return;
    }
    become(surface);
    for (Shown &part : surface.server->surfaces) {
        if (part.whole == &surface && std::exchange(part.isReady, false))
            become(part);
    }
}

void FakeCompositor::Server::become(Shown &surface)
{
    if (std::exchange(surface.hasNewBuffer, false)) {
        wl_shm_buffer *const pixels = surface.buffer ? wl_shm_buffer_get(surface.buffer) : nullptr;
        surface.pending.buffer = pixels
            ? QSize(wl_shm_buffer_get_width(pixels), wl_shm_buffer_get_height(pixels))
            : QSize();
        if (surface.buffer)
            wl_buffer_send_release(surface.buffer);
        surface.buffer = nullptr;
    }
    surface.current = surface.pending;
    surface.pending.attachedAt = {};
    if (surface.hung && !surface.current.buffer.isEmpty()
        && !std::exchange(surface.isOnOutput, true)) {
        for (const Output &output : surface.server->outputs) {
            for (wl_resource *bound : output.bound) {
                if (output.number == surface.current.output
                    && wl_resource_get_client(bound) == wl_resource_get_client(surface.resource))
                    wl_surface_send_enter(surface.resource, bound);
            }
        }
    }
    wl_event_source_timer_update(surface.server->refresh, refreshMilliseconds);
    if (surface.hung && !std::exchange(surface.isConfigured, true))
        zwlr_layer_surface_v1_send_configure(
            surface.hung, wl_display_next_serial(surface.server->display),
            static_cast<std::uint32_t>(surface.current.size.width()),
            static_cast<std::uint32_t>(surface.current.size.height()));
}

bool FakeCompositor::Server::start(const QByteArray &socket)
{
    display = wl_display_create();
    wake = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (!display || wake < 0 || wl_display_add_socket(display, socket.constData()) != 0
        || wl_display_init_shm(display) != 0)
        return false;
    refresh
        = wl_event_loop_add_timer(wl_display_get_event_loop(display), &Server::tellOfFrames, this);
    wl_event_loop_add_fd(
        wl_display_get_event_loop(display), wake, WL_EVENT_READABLE,
        [](int file, std::uint32_t, void *data) {
            auto &self = *static_cast<Server *>(data);
            eventfd_t count = 0;
            ::eventfd_read(file, &count);
            std::vector<std::function<void()>> now;
            {
                const std::scoped_lock lock(self.mutex);
                now.swap(self.works);
            }
            for (const auto &work : now)
                work();
            return 0;
        },
        this);
    announce<wl_compositor_interface, Requests::compositor>(display, 4, this);
    announce<zwlr_layer_shell_v1_interface, Requests::shell>(display, 4, this);
    announce<wl_subcompositor_interface, Requests::parts>(display, 1, this);
    announce<wl_shell_interface, Requests::windows>(display, 1, this);
    announce<wl_data_device_manager_interface, Requests::manager>(display, 3, this);
    wl_global_create(display, &wl_seat_interface, 5, this,
                     [](wl_client *client, void *data, std::uint32_t version, std::uint32_t id) {
                         wl_resource *const seat
                             = make(client, wl_seat_interface, static_cast<int>(version), id,
                                    &Requests::seat, data);
                         wl_seat_send_capabilities(seat, WL_SEAT_CAPABILITY_POINTER);
                         if (version >= WL_SEAT_NAME_SINCE_VERSION)
                             wl_seat_send_name(seat, "seat0");
                     });
    plugIn({0, 0});
    return true;
}

FakeCompositor::Server::Output &FakeCompositor::Server::plugIn(QPoint at)
{
    Output &added = outputs.emplace_back(Output{outputs.size(), at, this, nullptr, {}});
    const auto bind = [](wl_client *client, void *data, std::uint32_t version, std::uint32_t id) {
        auto &output = *static_cast<Output *>(data);
        wl_resource *const bound
            = make(client, wl_output_interface, static_cast<int>(version), id, &Requests::output,
                   data, [](wl_resource *gone) { std::erase(test::of<Output>(gone).bound, gone); });
        output.bound.push_back(bound);
        const QSize pixels = screen * scale;
        wl_output_send_geometry(bound, output.at.x(), output.at.y(), 400, 260,
                                WL_OUTPUT_SUBPIXEL_UNKNOWN, "corvane", "fake",
                                WL_OUTPUT_TRANSFORM_NORMAL);
        wl_output_send_mode(bound, WL_OUTPUT_MODE_CURRENT, pixels.width(), pixels.height(), 60000);
        if (version >= WL_OUTPUT_SCALE_SINCE_VERSION)
            wl_output_send_scale(bound, scale);
        if (version >= WL_OUTPUT_DONE_SINCE_VERSION)
            wl_output_send_done(bound);
    };
    added.global = wl_global_create(display, &wl_output_interface, 3, &added, bind);
    return added;
}

void FakeCompositor::Server::add(std::function<void()> work)
{
    {
        const std::scoped_lock lock(mutex);
        works.push_back(std::move(work));
    }
    ::eventfd_write(wake, 1);
}

FakeCompositor::Server::Shown *FakeCompositor::Server::newest(const QByteArray &label)
{
    Shown *found = nullptr;
    for (Shown &one : surfaces) {
        if (one.hung && one.current.label == label && !one.current.buffer.isEmpty())
            found = &one;
    }
    return found;
}

wl_resource *FakeCompositor::Server::of(const std::vector<wl_resource *> &all,
                                        wl_client *client) const
{
    const auto found = std::ranges::find(all, client, wl_resource_get_client);
    return found == all.end() ? nullptr : *found;
}

FakeCompositor::FakeCompositor()
    : m_server(std::make_unique<Server>())
{
    const QByteArray path = QFile::encodeName(m_folder.filePath(QStringLiteral("compositor")));
    if (!m_server->start(path))
        return;
    m_socket = path;
    m_thread = std::thread([this] { m_server->run(); });
}

FakeCompositor::~FakeCompositor()
{
    if (m_thread.joinable()) {
        m_server->add([this] { wl_display_terminate(m_server->display); });
        m_thread.join();
    }
    if (m_server->display) {
        wl_display_destroy_clients(m_server->display);
        wl_display_destroy(m_server->display);
    }
    if (m_server->wake >= 0)
        ::close(m_server->wake);
}

void FakeCompositor::within(const std::function<void()> &work) const
{
    std::promise<void> done;
    m_server->add([&] {
        work();
        done.set_value();
    });
    done.get_future().wait();
}

FakeCompositor::Output::Output(FakeCompositor &compositor, QPoint at)
    : m_compositor(compositor)
{
    compositor.within([&] { m_number = compositor.m_server->plugIn(at).number; });
}

FakeCompositor::Output::~Output()
{
    m_compositor.within([this] {
        Server &server = *m_compositor.m_server;
        server.currentOutput = 0;
        for (Server::Output &output : server.outputs) {
            if (output.number == m_number)
                wl_global_remove(output.global);
        }
    });
}

void FakeCompositor::Output::becomeCurrent()
{
    m_compositor.within([this] { m_compositor.m_server->currentOutput = m_number; });
}

QList<FakeCompositor::Surface> FakeCompositor::shown(const QByteArray &label) const
{
    QList<Surface> found;
    within([&] {
        for (const Server::Shown &one : m_server->surfaces) {
            if (!one.current.buffer.isEmpty() && one.current.label == label)
                found << one.current;
        }
    });
    return found;
}

void FakeCompositor::point(const QByteArray &label)
{
    within([&] {
        const Server::Shown *const below = m_server->newest(label);
        if (!below)
            return;
        wl_client *const client = wl_resource_get_client(below->resource);
        if (wl_resource *const pointer = m_server->of(m_server->pointers, client))
            wl_pointer_send_enter(pointer, wl_display_next_serial(m_server->display),
                                  below->resource, 0, 0);
    });
}

bool FakeCompositor::drag(const QByteArray &label, QPoint at, const Drag &what)
{
    bool isTold = false;
    within([&] {
        const Server::Shown *const below = m_server->newest(label);
        wl_client *const client = below ? wl_resource_get_client(below->resource) : nullptr;
        wl_resource *const device = client ? m_server->of(m_server->devices, client) : nullptr;
        if (!device)
            return;
        m_server->offer = &m_server->offers.emplace_back();
        m_server->offer->resource
            = make(client, wl_data_offer_interface, wl_resource_get_version(device), 0,
                   &Server::Requests::offer, m_server->offer, [](wl_resource *gone) {
                       auto &ended = of<Server::Offer>(gone);
                       ended.answer.isGone = true;
                       ended.resource = nullptr;
                   });
        wl_resource *const offered = m_server->offer->resource;
        wl_data_device_send_data_offer(device, offered);
        for (const QByteArray &type : what.types)
            wl_data_offer_send_offer(offered, type.constData());
        if (what.sourceActions)
            wl_data_offer_send_source_actions(offered, *what.sourceActions);
        wl_data_device_send_enter(device, wl_display_next_serial(m_server->display),
                                  below->resource, wl_fixed_from_int(at.x()),
                                  wl_fixed_from_int(at.y()), offered);
        isTold = true;
    });
    return isTold;
}

void FakeCompositor::tellSourceActions(std::uint32_t actions)
{
    within([&] {
        if (m_server->offer && m_server->offer->resource)
            wl_data_offer_send_source_actions(m_server->offer->resource, actions);
    });
}

void FakeCompositor::tellAction(std::uint32_t action)
{
    within([&] {
        if (m_server->offer && m_server->offer->resource)
            wl_data_offer_send_action(m_server->offer->resource, action);
    });
}

void FakeCompositor::send(const QByteArray &contents)
{
    within([&] {
        if (!m_server->offer || m_server->offer->pipes.empty())
            return;
        QFile pipe;
        if (pipe.open(m_server->offer->pipes.front().release(), QFile::WriteOnly,
                      QFile::AutoCloseHandle))
            pipe.write(contents);
        m_server->offer->pipes.pop_front();
    });
}

void FakeCompositor::drop()
{
    within([&] {
        for (wl_resource *device : m_server->devices) {
            if (m_server->offer && m_server->offer->resource
                && wl_resource_get_client(m_server->offer->resource)
                    == wl_resource_get_client(device))
                wl_data_device_send_drop(device);
        }
    });
}

void FakeCompositor::leave()
{
    within([&] {
        for (wl_resource *device : m_server->devices) {
            if (m_server->offer && m_server->offer->resource
                && wl_resource_get_client(m_server->offer->resource)
                    == wl_resource_get_client(device))
                wl_data_device_send_leave(device);
        }
    });
}

FakeCompositor::Answer FakeCompositor::answer() const
{
    Answer last;
    within([&] {
        if (m_server->offer)
            last = m_server->offer->answer;
    });
    return last;
}

} // namespace corvane::test
