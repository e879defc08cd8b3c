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
    m_files.inspect(path,
                    m_lifetime.guard([this, item, path](const std::optional<FileVersion> &version) {
                        if (!version || !onFound)
                            return;
                        const item_description::FileName name(file_url::fromNativePath(path));
                        onFound(item, item_description::ofFile(name, version),
                                version->kind == FileVersion::Kind::Folder);
                    }));
}

} // namespace corvane
