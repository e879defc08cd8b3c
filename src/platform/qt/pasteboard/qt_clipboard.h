#pragma once

#include "platform/pasteboard/clipboard.h"

#include <QObject>

namespace corvane {

/// The clipboard through Qt, which hands its contents to a clipboard manager at exit.
class QtClipboard : public Clipboard {
public:
    QtClipboard();

    void write(const PasteboardContents &contents) override;
    qint64 changeCount() const override { return m_changeCount; }

private:
    qint64 m_changeCount = 0;
    // The connection ends with it.
    QObject m_receiver;
};

} // namespace corvane
