#pragma once

#include "platform/system/file_descriptor.h"

#include <QByteArray>

#include <memory>

namespace corvane {

/// A file that an update arrives in: in the folder where it will stay, under a name that means
/// nothing to anybody, readable by nobody else. The name goes with this object; the file stays
/// where it was installed, because it has another name then.
///
/// Used by one thread after the other.
class UpdateFile {
public:
    /// Makes one with room for `length` bytes; none, and the error's number, where that cannot be.
    /// Removes first what processes that died have left in the folder.
    static std::unique_ptr<UpdateFile> make(const QByteArray &folder, qint64 length, int &error);
    /// The beginning of all names that are meant to go, in the folder of an AppImage or in that for
    /// downloads.
    static inline const QByteArray temporaryPrefix = QByteArrayLiteral(".corvane-update-");
    /// Removes what processes that died have left in the folder.
    static void removeLeftovers(const QByteArray &folder);

    UpdateFile(const UpdateFile &) = delete;
    UpdateFile &operator=(const UpdateFile &) = delete;
    ~UpdateFile();

    /// False where it cannot be written; `error()` says why.
    bool append(const QByteArray &bytes);
    int error() const { return m_error; }
    /// How many bytes have been taken.
    qint64 size() const { return m_size; }

    int descriptor() const { return m_descriptor.number(); }
    QByteArray path() const { return m_path; }

private:
    UpdateFile(FileDescriptor descriptor, QByteArray path);

    FileDescriptor m_descriptor;
    QByteArray m_path;
    qint64 m_size = 0;
    int m_error = 0;
};

} // namespace corvane
