#include "platform/system/app_image.h"

#include <QStringBuilder>

#include <cstdlib>
#include <memory>

namespace corvane::app_image {

Evidence Evidence::ofThisProcess()
{
    return {canonical("/proc/self/exe"), qgetenv("APPIMAGE"), qgetenv("APPDIR")};
}

QByteArray containing(const Evidence &evidence)
{
    const bool isInside
        = evidence.file.startsWith('/') && isBelow(evidence.executable, canonical(evidence.folder));
    return isInside ? evidence.file : QByteArray();
}

QByteArray canonical(const QByteArray &path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.constData(), nullptr),
                                                           &std::free);
    return real ? QByteArray(real.get()) : QByteArray();
}

bool isBelow(const QByteArray &path, const QByteArray &folder)
{
    const QByteArray beginning = folder + '/';
    return folder.startsWith('/') && folder != "/" && path.startsWith(beginning);
}

} // namespace corvane::app_image
