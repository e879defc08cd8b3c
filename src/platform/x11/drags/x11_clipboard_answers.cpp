#include "platform/x11/drags/x11_clipboard_answers.h"

#include "platform/x11/drags/drag_answers.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>
#include <array>

namespace corvane {

X11ClipboardAnswers::X11ClipboardAnswers(X11Connection &connection, MainQueue &queue)
    : m_connection(connection)
    , m_transfers(connection, queue)
{
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11ClipboardAnswers::~X11ClipboardAnswers()
{
    if (auto *application = QCoreApplication::instance())
        application->removeNativeEventFilter(this);
}

bool X11ClipboardAnswers::isAboutContents(const xcb_selection_request_event_t &request)
{
    constexpr std::array others = {"TIMESTAMP", "MULTIPLE", "SAVE_TARGETS"};
    return request.selection == m_connection.atom("CLIPBOARD")
        && std::ranges::none_of(
               others, [&](const char *name) { return request.target == m_connection.atom(name); });
}

bool X11ClipboardAnswers::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto &request = *static_cast<const xcb_selection_request_event_t *>(message);
    if ((request.response_type & 0x7f) != XCB_SELECTION_REQUEST || !isAboutContents(request))
        return false;
    const QClipboard *const clipboard = QGuiApplication::clipboard();
    const QMimeData *const contents = clipboard->ownsClipboard() ? clipboard->mimeData() : nullptr;
    // Qt names a picture by all formats that it can write.
    if (!contents || !contents->hasFormat(QStringLiteral("text/plain")) || contents->hasImage())
        return false;
    PasteboardForms forms;
    for (const QString &type : contents->formats())
        forms.push_back({type, contents->data(type), {}});
    // Transfers that it begins outlive it.
    DragAnswers(m_connection, m_transfers, X11DragForms(m_connection, std::move(forms)), true,
                XCB_CURRENT_TIME)
        .answer(request);
    return true;
}

} // namespace corvane
