#pragma once

#include "platform/x11/drags/incremental_transfers.h"

#include <QAbstractNativeEventFilter>

namespace corvane {

class MainQueue;

/// Answers for the texts that Qt has on the clipboard for us, as `X11DragForms` says of drags: Qt
/// names `STRING` and `TEXT` with every text, and gives both in Latin-1, with question marks for
/// what that does not know. What else is asked of a clipboard, MULTIPLE among it, Qt answers. It
/// filters the events that Qt receives, so it must be made after the application object. The
/// connection and the queue must outlive it.
class X11ClipboardAnswers : public QAbstractNativeEventFilter {
public:
    X11ClipboardAnswers(X11Connection &connection, MainQueue &queue);
    ~X11ClipboardAnswers() override;
    X11ClipboardAnswers(const X11ClipboardAnswers &) = delete;
    X11ClipboardAnswers &operator=(const X11ClipboardAnswers &) = delete;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    bool isAboutContents(const xcb_selection_request_event_t &request);

    X11Connection &m_connection;
    IncrementalTransfers m_transfers;
};

} // namespace corvane
