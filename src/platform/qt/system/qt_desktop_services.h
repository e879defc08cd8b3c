#pragma once

#include "platform/system/desktop_services.h"

namespace corvane {

/// Asks the desktop's own opener.
class QtDesktopServices : public DesktopServices {
public:
    bool open(const QUrl &url) override;
};

} // namespace corvane
