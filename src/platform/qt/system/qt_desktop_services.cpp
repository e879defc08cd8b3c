#include "platform/qt/system/qt_desktop_services.h"

#include <QDesktopServices>
#include <QUrl>

namespace corvane {

bool QtDesktopServices::open(const QUrl &url)
{
    return url.isValid() && QDesktopServices::openUrl(url);
}

} // namespace corvane
