#pragma once

class QString;

namespace corvane::desktop_notification {

/// Has the desktop show a message for a while. False where it cannot, for instance because the
/// session has nothing that shows messages. Waits for the answer, for a bounded time.
bool show(const QString &title, const QString &text);

} // namespace corvane::desktop_notification
