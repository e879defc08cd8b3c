#pragma once

#include "e2e/desktop/x_desktop.h"

#include <xcb/xcb.h>

#include <cstdlib>

namespace corvane::e2e {

/// Another program that wants a key with Super and Shift for itself, as long as it is there.
class Rival {
public:
    explicit Rival(const XDesktop &desktop)
        : m_server(desktop.environment().value(QStringLiteral("DISPLAY")).toLatin1())
    {
    }

    /// Whether it gets the key, by position, with none of the lock keys on.
    bool grab(xcb_keycode_t key)
    {
        auto *const error
            = xcb_request_check(m_server.connection(),
                                xcb_grab_key_checked(m_server.connection(), 0, m_server.root(),
                                                     XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_4, key,
                                                     XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
        const bool isOurs = error == nullptr;
        std::free(error);
        return isOurs;
    }

private:
    XServer m_server;
};

} // namespace corvane::e2e
