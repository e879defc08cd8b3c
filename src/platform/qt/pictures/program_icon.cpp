#include "platform/qt/pictures/program_icon.h"

// Resources of a static library have to be registered by this macro, which must be used outside of
// namespaces.
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
