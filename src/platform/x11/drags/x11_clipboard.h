#pragma once

#include "platform/desktop/clipboard_source.h"
#include "platform/x11/drags/selection_reader.h"

namespace corvane {

/// The selection of which programs say that it is the clipboard. The connection and the queue must
/// outlive it and what it has found.
class X11Clipboard : public ClipboardSource {
public:
    /// Further types are ignored.
    static constexpr std::size_t maximumTypes = 256;
    /// Owners that are asked at once what they have; more are not.
    static constexpr std::size_t maximumLooks = 32;

    X11Clipboard(X11Connection &connection, MainQueue &queue);

    void look(Found found) override;

private:
    void answered(xcb_window_t owner, const QByteArray &targets, const Found &found);

    X11Connection &m_connection;
    MainQueue &m_queue;
    SelectionReader m_reader;
};

} // namespace corvane
