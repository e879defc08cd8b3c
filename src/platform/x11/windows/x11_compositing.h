#pragma once

#include "platform/base/callback_list.h"
#include "platform/desktop/compositing.h"
#include "platform/x11/base/x11_connection.h"

namespace corvane {

/// Windows are blended while a compositor owns the selection `_NET_WM_CM_Sn`. The connection must
/// outlive it.
class X11Compositing : public Compositing {
public:
    explicit X11Compositing(X11Connection &connection);
    ~X11Compositing() override;
    X11Compositing(const X11Compositing &) = delete;
    X11Compositing &operator=(const X11Compositing &) = delete;

    bool isComposited() const override { return m_isComposited; }
    void observeChanges(std::function<void()> callback) override;

private:
    void handle(const xcb_generic_event_t &event);

    X11Connection &m_connection;
    Subscription m_listener;
    xcb_atom_t m_selection;
    bool m_isComposited = false;
    CallbackList<> m_observers;
};

} // namespace corvane
