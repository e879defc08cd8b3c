#pragma once

#include "platform/pasteboard/clipboard.h"

#include <QObject>

namespace corvane {

/// The clipboard by `QClipboard`, which hands its contents to a clipboard manager at exit.
class QtClipboard : public Clipboard {
public:
    QtClipboard();

    void write(const PasteboardContents &contents) override;
    qint64 changeCount() const override { return m_changeCount; }

private:
    qint64 m_changeCount = 0;
    // Ends the signal connection when this is destroyed.
    QObject m_receiver;
};

} // namespace corvane
