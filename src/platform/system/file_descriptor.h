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
    /// Gives the descriptor up; the caller has to close it.
    int release();
    /// False if data could not be written: file systems may report a full disk only now.
    bool close();

    /// Writes all the bytes. False if that failed; `errno` says why.
    bool write(const QByteArray &data) const;

private:
    int m_number = -1;
};

} // namespace corvane
