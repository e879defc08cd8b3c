#pragma once

#include "platform/menu.h"

#include <QRect>

#include <memory>

class QMenu;

namespace corvane {

/// A menu of our own beside a place on the screen. Key equivalents are text in it and cannot fire.
class MenuPopup {
public:
    MenuPopup();
    ~MenuPopup();
    MenuPopup(const MenuPopup &) = delete;
    MenuPopup &operator=(const MenuPopup &) = delete;

    /// Opens it below `anchor`, or above where there is more room; one that is open closes. In Qt's
    /// device-independent coordinates.
    void open(const MenuRows &rows, const QRect &anchor);

private:
    std::unique_ptr<QMenu> m_menu;
};

} // namespace corvane
