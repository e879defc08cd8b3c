#pragma once

#include "platform/desktop/clipboard_source.h"

struct wl_data_device_manager;
struct wl_seat;

namespace corvane {

class MainQueue;
class WaylandConnection;

/// The clipboard as the compositor offers it to whoever has the keyboard.
///
/// It is asked anew each time, by a device that goes at once: one that stays would be told of drags
/// beside Qt's, and both would have to answer. The connection and the queue must outlive it and
/// what it has found.
class WaylandClipboard : public ClipboardSource {
public:
    WaylandClipboard(WaylandConnection &connection, MainQueue &queue);
    ~WaylandClipboard() override;
    WaylandClipboard(const WaylandClipboard &) = delete;
    WaylandClipboard &operator=(const WaylandClipboard &) = delete;

    /// Whether the compositor has one.
    bool isAble() const { return m_manager && m_seat; }
    void look(Found found) override;

private:
    struct Glance;

    std::shared_ptr<IncomingDrag> offered() const;

    WaylandConnection &m_connection;
    MainQueue &m_queue;
    wl_data_device_manager *m_manager = nullptr;
    wl_seat *m_seat = nullptr;
};

} // namespace corvane
