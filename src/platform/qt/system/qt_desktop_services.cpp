#include "platform/qt/system/qt_desktop_services.h"

#include "platform/system/own_environment.h"

#include <QDesktopServices>
#include <QUrl>

namespace corvane {

bool QtDesktopServices::open(const QUrl &url)
{
    if (!url.isValid())
        return false;
    const own_environment::AsFound environment;
    return QDesktopServices::openUrl(url);
}

} // namespace corvane
