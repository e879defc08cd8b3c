#include "platform/system/temporary_folder.h"

#include <QDir>
#include <QFile>

namespace corvane {

QByteArray temporaryFolder()
{
    // Empty where it does not exist; what is put there then would go to the root of all folders.
    const QByteArray chosen = QFile::encodeName(QDir::tempPath());
    return chosen.isEmpty() ? QByteArrayLiteral("/tmp") : chosen;
}

} // namespace corvane
