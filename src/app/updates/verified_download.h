#pragma once

#include "app/updates/update_file.h"
#include "app/updates/verified_release.h"

#include <QByteArray>
#include <QList>

#include <memory>
#include <optional>
#include <utility>

namespace corvane {

/// A downloaded file that is the one of a verified release, byte by byte. Only `of` makes one, and
/// only one of these can be installed.
///
/// The file's temporary name goes with this object. Used by one thread after the other.
class VerifiedDownload {
public:
    /// None unless the file has the length and the SHA-512 that are stated, and one of the keys
    /// made `signature`, which the feed gives for the file alone. Nobody may write to the file
    /// meanwhile or afterwards. Any thread.
    static std::optional<VerifiedDownload> of(const std::shared_ptr<UpdateFile> &file,
                                              const VerifiedRelease &release,
                                              const QList<UpdateKey> &keys,
                                              const QByteArray &signature);
    VerifiedDownload(VerifiedDownload &&) noexcept = default;
    VerifiedDownload &operator=(VerifiedDownload &&) noexcept = default;
    VerifiedDownload(const VerifiedDownload &) = delete;
    VerifiedDownload &operator=(const VerifiedDownload &) = delete;
    ~VerifiedDownload() = default;

    /// The open file; what is checked of it and what is installed is this.
    int descriptor() const { return m_file->descriptor(); }
    /// Its temporary name.
    QByteArray path() const { return m_file->path(); }
    const ReleaseStatement &statement() const { return m_release.statement(); }

    /// Whether the bytes are an AppImage of the stated program for the stated architecture.
    bool isAppImage() const;

private:
    VerifiedDownload(std::shared_ptr<UpdateFile> file, VerifiedRelease release)
        : m_file(std::move(file))
        , m_release(std::move(release))
    {
    }

    std::shared_ptr<UpdateFile> m_file;
    VerifiedRelease m_release;
};

} // namespace corvane
