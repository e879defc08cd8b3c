#include "core/remote_descriptions.h"

#include "core/item_description.h"
#include "platform/system/file_url.h"
#include "platform/system/remote_files.h"

namespace corvane {

RemoteDescriptions::RemoteDescriptions(RemoteFiles &files)
    : m_files(files)
{
}

RemoteDescriptions::~RemoteDescriptions() = default;

void RemoteDescriptions::find(const QUuid &item, const QByteArray &path)
{
    m_files.inspect(
        path,
        [weak = std::weak_ptr(m_self), item, path](const std::optional<FileVersion> &version) {
            const auto self = weak.lock();
            if (!self || !version || !(*self)->onFound)
                return;
            const item_description::FileName name(file_url::fromNativePath(path));
            (*self)->onFound(item, item_description::ofFile(name, version));
        });
}

} // namespace corvane
