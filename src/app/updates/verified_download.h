#pragma once

#include "app/updates/update_file.h"

#include <QByteArray>

#include <memory>
#include <utility>

namespace corvane {

/// A downloaded file whose bytes were signed with the key that the program was built with. Only
/// `UpdateKey::verify` makes one, and only one of these can be installed. It says nothing about
/// what the feed claimed beside the bytes, such as the version.
///
/// The file goes with this object unless it was installed. Used by one thread after the other.
class VerifiedDownload {
public:
    VerifiedDownload(VerifiedDownload &&) noexcept = default;
    VerifiedDownload &operator=(VerifiedDownload &&) noexcept = default;
    VerifiedDownload(const VerifiedDownload &) = delete;
    VerifiedDownload &operator=(const VerifiedDownload &) = delete;
    ~VerifiedDownload() = default;

    int descriptor() const { return m_file->descriptor(); }
    QByteArray path() const { return m_file->path(); }

    /// It was installed: it has another name now, and stays.
    void release() { m_file->release(); }

private:
    friend class UpdateKey;

    explicit VerifiedDownload(std::shared_ptr<UpdateFile> file)
        : m_file(std::move(file))
    {
    }

    std::shared_ptr<UpdateFile> m_file;
};

} // namespace corvane
