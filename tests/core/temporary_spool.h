#pragma once

#include "core/scratch_spool.h"
#include "platform/system/file_url.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>

namespace corvane::test {

/// A temporary directory for the test alone.
struct TemporaryFolder {
    TemporaryFolder() = default;
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;
    /// QTemporaryDir alone leaves files whose names are no text.
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path().constData(), ignored);
    }

    QByteArray path() const { return directory.path().toUtf8(); }
    QByteArray path(const QByteArray &name) const { return path() + QByteArray("/") + name; }
    QUrl url(const QByteArray &name) const { return file_url::fromNativePath(path(name)); }

    /// Makes a file, and the folders on the way to it.
    QUrl write(const QByteArray &name, const QByteArray &contents) const
    {
        const QString whole = QFile::decodeName(path(name));
        QDir().mkpath(whole.left(whole.lastIndexOf(QLatin1Char('/'))));
        QFile file(whole);
        if (file.open(QFile::WriteOnly))
            file.write(contents);
        return url(name);
    }

    QTemporaryDir directory;
};

inline bool exists(const QByteArray &path)
{
    struct stat status = {};
    return ::lstat(path.constData(), &status) == 0;
}

inline bool exists(const QUrl &url)
{
    return exists(file_url::nativePath(url));
}

inline QByteArray contents(const QUrl &url)
{
    QFile file(QFile::decodeName(file_url::nativePath(url)));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// A spool in a temporary directory of its own.
struct TemporarySpool {
    TemporaryFolder temporary;
    ScratchSpool spool{temporary.path(), 4711};

    /// From now on nothing can be written to it.
    void spoil() const { temporary.write("Corvane-4711", "in the way"); }
};

} // namespace corvane::test
