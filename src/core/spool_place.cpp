#include "core/spool_place.h"

#include "platform/system/file_url.h"
#include "platform/system/private_file.h"

#include <unistd.h>

#include <utility>

namespace corvane {

SpoolPlace::SpoolPlace(QUrl url)
    : m_url(std::move(url))
{
}

bool SpoolPlace::write(const QByteArray &data) const
{
    return isWanted() && keep(private_file::create(file_url::nativePath(m_url), data));
}

bool SpoolPlace::write(const std::function<bool(const FileDescriptor &file)> &fill) const
{
    return isWanted() && keep(private_file::create(file_url::nativePath(m_url), fill));
}

bool SpoolPlace::keep(bool isCreated) const
{
    if (!isCreated)
        return false;
    if (isWanted())
        return true;
    // It was discarded while it was being written.
    ::unlink(file_url::nativePath(m_url).constData());
    return false;
}

} // namespace corvane
