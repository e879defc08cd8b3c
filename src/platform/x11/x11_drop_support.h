#pragma once

#include "platform/drop_support.h"
#include "platform/x11/x11_connection.h"

#include <QAbstractNativeEventFilter>

namespace corvane {

/// What Qt leaves out for a target of drags on X11: direct save, where the source is told a file's
/// address in a property of its window, writes there, and says how that went. Listens to the events
/// that Qt receives, and must be made after the application object. The connection must outlive it.
class X11DropSupport : public DropSupport, public QAbstractNativeEventFilter {
public:
    explicit X11DropSupport(X11Connection &connection);
    ~X11DropSupport() override;
    X11DropSupport(const X11DropSupport &) = delete;
    X11DropSupport &operator=(const X11DropSupport &) = delete;

    QString directSaveType() const override;
    std::optional<QString> promisedFileName() override;
    bool receivePromisedFile(const QUrl &destination, const Fetch &fetch) override;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    X11Connection &m_connection;
    /// The window that the latest drag over one of ours came from.
    xcb_window_t m_source = XCB_NONE;
};

} // namespace corvane
