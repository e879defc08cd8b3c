#pragma once

#include "platform/wayland/base/own_connection.h"

#include <QPoint>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

struct wl_compositor;
struct wl_data_device;
struct wl_data_device_manager;
struct wl_output;
struct wl_registry;
struct wl_seat;
struct wl_shm;
struct zwlr_layer_shell_v1;

class QScreen;

namespace corvane {

/// What catching drops takes, on a connection of its own. Null where the compositor has none.
struct CatcherServices {
    CatcherServices();
    ~CatcherServices();
    CatcherServices(const CatcherServices &) = delete;
    CatcherServices &operator=(const CatcherServices &) = delete;

    bool areAll() const;
    /// The screen as this connection knows it; null for one that it does not know.
    wl_output *outputOf(const QScreen &screen) const;

    OwnConnection connection;
    wl_data_device_manager *manager = nullptr;
    wl_compositor *compositor = nullptr;
    wl_shm *shm = nullptr;
    wl_seat *seat = nullptr;
    zwlr_layer_shell_v1 *layerShell = nullptr;

private:
    struct Listeners;
    /// A screen, which is told by its name, or by its place where the compositor tells no names:
    /// those that do may tell of no places here, as sway.
    struct Output {
        std::uint32_t global = 0;
        wl_output *output = nullptr;
        QPoint place;
        QString name;
    };

    wl_registry *m_registry = nullptr;
    std::vector<std::unique_ptr<Output>> m_outputs;
};

} // namespace corvane
