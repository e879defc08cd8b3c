#pragma once

#include "e2e/desktop/x_desktop.h"

#include <xcb/xcb.h>

#include <cstdlib>

namespace corvane::e2e {

/// Another program that grabs a key with Super and Shift; the grab ends with this object.
class Rival {
public:
    explicit Rival(const XDesktop &desktop)
        : m_server(desktop.environment().value(QStringLiteral("DISPLAY")).toLatin1())
    {
    }

    /// Grabs a key, by its position, for the case that no lock key is on; false if the grab is
    /// refused.
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
