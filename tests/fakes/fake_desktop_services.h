#pragma once

#include "platform/system/desktop_services.h"

#include <QList>
#include <QUrl>

namespace corvane::test {

/// Remembers what it was asked to open.
class FakeDesktopServices : public DesktopServices {
public:
    bool open(const QUrl &url) override
    {
        opened << url;
        return canOpen;
    }

    QList<QUrl> opened;
    bool canOpen = true;
};

} // namespace corvane::test
