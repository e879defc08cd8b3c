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
    const QByteArray path = file_url::nativePath(m_url);
    if (!isWanted() || !private_file::create(path, data))
        return false;
    if (isWanted())
        return true;
    // It was discarded while it was being written.
    ::unlink(path.constData());
    return false;
}

} // namespace corvane
