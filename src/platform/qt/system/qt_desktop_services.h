#pragma once

#include "platform/system/desktop_services.h"

namespace corvane {

/// Opens addresses by `QDesktopServices`.
class QtDesktopServices : public DesktopServices {
public:
    bool open(const QUrl &url) override;
};

} // namespace corvane
