#include "platform/qt/pictures/program_icon.h"

// A resource of a static library is there once this ran. Outside every namespace, as it has to be.
static void registerResource()
{
    Q_INIT_RESOURCE(program_icon);
}

namespace corvane {

QIcon programIcon()
{
    [[maybe_unused]] static const bool isRegistered = (registerResource(), true);
    return QIcon(QStringLiteral(":/corvane/corvane.svg"));
}

} // namespace corvane
