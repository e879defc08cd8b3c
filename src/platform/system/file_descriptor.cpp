#include "platform/system/file_descriptor.h"

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace corvane {

FileDescriptor::FileDescriptor(int number)
    : m_number(number)
{
}

FileDescriptor::FileDescriptor(FileDescriptor &&other) noexcept
    : m_number(other.release())
{
}

FileDescriptor &FileDescriptor::operator=(FileDescriptor &&other) noexcept
{
    if (this != &other) {
        close();
        m_number = other.release();
    }
    return *this;
}

FileDescriptor::~FileDescriptor()
{
    close();
}

int FileDescriptor::release()
{
    return std::exchange(m_number, -1);
}

bool FileDescriptor::close()
{
    return !isOpen() || ::close(release()) == 0;
}

bool FileDescriptor::write(const QByteArray &data) const
{
    qsizetype written = 0;
    while (written < data.size()) {
        const auto rest = static_cast<std::size_t>(data.size() - written);
        const ssize_t count = ::write(m_number, data.constData() + written, rest);
        if (count < 0 && errno == EINTR)
            continue;
        if (count == 0)
            errno = ENOSPC;
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

} // namespace corvane
