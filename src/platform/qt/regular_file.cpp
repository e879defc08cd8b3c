#include "platform/qt/regular_file.h"

#include "platform/file_url.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace corvane {

bool openRegularFile(QFile &file, const QUrl &url)
{
    const QByteArray path = file_url::nativePath(url);
    if (path.isEmpty() || path.contains('\0'))
        return false;
    // Non-blocking, or opening a pipe would wait for its writer before anything can be asked of it.
    const int descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0)
        return false;
    struct stat status = {};
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)
        && file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
}

} // namespace corvane
