#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QRect>

#include <xcb/xcb.h>

#include <memory>
#include <optional>

namespace corvane::e2e {

// The library has enumerators for these, which mix badly with ids.
inline constexpr xcb_window_t noWindow = 0;
inline constexpr xcb_atom_t noAtom = 0;

/// A window as other programs see it. `frame` is its inside, in root coordinates.
struct WindowFacts {
    xcb_window_t id = noWindow;
    QRect frame;
    bool isViewable = false;
    bool isOverrideRedirect = false;
    /// Both parts of WM_CLASS, each ended by a null byte.
    QByteArray windowClass;
    qint64 pid = 0;
};

/// A connection of the test's own to the X server, which observes and asks but owns nothing.
class XServer {
public:
    explicit XServer(const QByteArray &display);

    bool isConnected() const;
    xcb_connection_t *connection() const { return m_connection.get(); }
    xcb_window_t root() const { return m_root; }
    QSize size() const;

    xcb_atom_t atom(const QByteArray &name) const;
    QByteArray property(xcb_window_t window, const QByteArray &name) const;
    std::optional<xcb_window_t> windowProperty(xcb_window_t window, const QByteArray &name) const;
    xcb_window_t selectionOwner(const QByteArray &selection) const;
    xcb_window_t focusedWindow() const;
    xcb_window_t activeWindow() const
    {
        return windowProperty(m_root, "_NET_ACTIVE_WINDOW").value_or(0);
    }

    /// All children of the root and, below frames of the window manager, the programs' windows,
    /// from the bottom to the top.
    QList<WindowFacts> windows() const;
    std::optional<WindowFacts> facts(xcb_window_t window) const;

    /// The shapes, in the window's coordinates. An empty input shape means that clicks go through
    /// everywhere.
    QList<QRect> inputShape(xcb_window_t window) const;
    QList<QRect> boundingShape(xcb_window_t window) const;

    QImage picture(const QRect &area) const;
    QImage picture() const { return picture(QRect({0, 0}, size())); }
    QPoint pointerPosition() const;
    /// The image of the mouse pointer as bytes, to be compared. During a drag it tells whether the
    /// target accepts.
    QByteArray pointerPicture() const;

    /// Asks the window manager to place a managed window's inside at `frame`. It does so only
    /// approximately; ask the window afterwards where it is.
    void moveResize(xcb_window_t window, const QRect &frame) const;
    void activate(xcb_window_t window) const;

private:
    struct Disconnect {
        void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    };
    QList<QRect> shape(xcb_window_t window, uint8_t kind) const;
    void collect(xcb_window_t window, int depth, QList<WindowFacts> &found) const;
    void sendToRoot(xcb_window_t window, const QByteArray &type,
                    std::array<uint32_t, 5> data) const;

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    xcb_window_t m_root = noWindow;
};

/// Notes which windows have been shown since it was made, however briefly.
class MapLog {
public:
    explicit MapLog(const QByteArray &display);

    /// How often windows of that program at the top edge have been shown.
    int panelsShown(qint64 pid);

private:
    XServer m_server;
    QList<xcb_window_t> m_shown;
};

/// Counts key presses that a window has got since this was made, repeats included.
class KeyLog {
public:
    KeyLog(const QByteArray &display, xcb_window_t window);

    int presses();

private:
    XServer m_server;
    int m_presses = 0;
};

} // namespace corvane::e2e
