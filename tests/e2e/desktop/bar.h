#pragma once

#include "e2e/desktop/corvane_program.h"

#include <QStringList>

#include <optional>

namespace corvane::e2e {

/// Uses the view-all bar of a shelf with two or more items, from outside the program. `items` is
/// always the number of items that the shelf holds.
class Bar {
public:
    static constexpr int height = 132;

    Bar(XDesktop &desktop, CorvaneProgram &corvane, int inView)
        : m_desktop(desktop)
        , m_corvane(corvane)
        , m_inView(inView)
    {
    }

    std::optional<WindowFacts> window() { return m_corvane.popup(height); }
    QRect frame() { return window().value_or(WindowFacts{}).frame; }
    bool waitForKeyboard();
    bool waitUntilClosed();
    /// The button of the shelf that opens and closes it.
    QPoint button(int items);
    /// Presses that button, and waits until the bar is shown and has the keyboard.
    bool open(int items);

    /// The middle of a tile's picture; `nth` counts from the first one on the page.
    QPoint tile(int nth, int items);
    int tilesOnAPage();
    QPoint back();
    QPoint forward();
    QPoint selectAllBox();
    QPoint selectAllLabel();
    QPoint copyButton();
    QPoint trash();

    /// The paths of the selected files, in their order, read by copying them. Afterwards the
    /// clipboard holds them, and the bar is open or closed as before.
    QStringList ticked(int items);
    /// The same for all files. If only some were selected, none is afterwards.
    QStringList held(int items);

private:
    QStringList copied(int items, bool everything);
    void takeKeyboard(int items);

    XDesktop &m_desktop;
    CorvaneProgram &m_corvane;
    int m_inView;
};

} // namespace corvane::e2e
