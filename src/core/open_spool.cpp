#include "core/open_spool.h"

#include "core/spool_directory.h"
#include "platform/system/private_folder.h"

#include <QStringBuilder>

#include <unistd.h>

#include <cstdlib>
#include <memory>
#include <utility>

namespace corvane {

namespace {

/// The path with all symbolic links resolved; empty when it does not exist.
QByteArray resolved(const QByteArray &path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.constData(), nullptr),
                                                           &std::free);
    return real ? QByteArray(real.get()) : QByteArray();
}

} // namespace

OpenSpool::OpenSpool(QByteArray directory, int descriptor)
    : m_directory(std::move(directory))
    , m_resolvedDirectory(resolved(m_directory))
    , m_descriptor(descriptor)
{
}

OpenSpool::~OpenSpool()
{
    ::close(m_descriptor);
}

bool OpenSpool::stillStands() const
{
    return private_folder::isAt(m_directory, m_descriptor);
}

bool OpenSpool::contains(const QByteArray &path) const
{
    const QByteArray whole = spool_directory::withoutTrailingSlashes(path);
    const qsizetype slash = whole.lastIndexOf('/');
    const QByteArray name = whole.mid(slash + 1);
    // The last component is not resolved, so "." and ".." must be refused: they would lead out of
    // the spool.
    if (slash < 0 || name.isEmpty() || name == "." || name == ".." || !stillStands())
        return false;
    const QByteArray parent = resolved(whole.left(slash + 1));
    return parent == m_resolvedDirectory
        || parent.startsWith(QByteArray(m_resolvedDirectory + '/'));
}

void OpenSpool::remove(const QByteArray &path) const
{
    if (contains(path))
        spool_directory::remove(spool_directory::withoutTrailingSlashes(path));
}

} // namespace corvane
