#pragma once

#include <QByteArray>

namespace corvane {

/// Owns a descriptor of the operating system, or none. Not for sharing between threads.
class FileDescriptor {
public:
    FileDescriptor() = default;
    /// `number` is below zero where opening failed.
    explicit FileDescriptor(int number);
    FileDescriptor(FileDescriptor &&other) noexcept;
    FileDescriptor &operator=(FileDescriptor &&other) noexcept;
    ~FileDescriptor();

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }
    /// The caller closes it from now on.
    int release();
    /// False where what was written could not be kept: a full disk may speak up only now.
    bool close();

    /// All the bytes, or false; `errno` says why.
    bool write(const QByteArray &data) const;

private:
    int m_number = -1;
};

} // namespace corvane
