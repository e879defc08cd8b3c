#pragma once

#include <QByteArray>

namespace corvane {

/// Waits for another program to have written a file. Made before that program is told to, so that
/// nothing it does is missed.
class FileArrival {
public:
    /// How long a source may take, from the start of `wait`.
    static constexpr int timeoutMilliseconds = 3'000;
    static constexpr qint64 maximumBytes = 256LL * 1024 * 1024;

    explicit FileArrival(QByteArray path);
    ~FileArrival();
    FileArrival(const FileArrival &) = delete;
    FileArrival &operator=(const FileArrival &) = delete;

    /// True once the file is there as a regular file, is not empty, and was closed after writing.
    bool wait();
    /// Removes what has arrived so far.
    void discard();

private:
    bool isComplete() const;
    bool readEvents();

    QByteArray m_path;
    QByteArray m_name;
    int m_descriptor = -1;
    bool m_wasClosed = false;
};

} // namespace corvane
