#include "platform/file_url.h"

#include <QStringView>

#include <algorithm>
#include <array>

namespace corvane::file_url {

namespace {

/// Bytes that stand for themselves in the path of an address.
bool standsForItself(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z')
        || (byte >= '0' && byte <= '9') || byte == '-' || byte == '.' || byte == '_' || byte == '~'
        || byte == '/';
}

QByteArrayView lastComponent(QByteArrayView path)
{
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    const qsizetype slash = path.size() > 1 ? path.lastIndexOf('/') : -1;
    return path.sliced(slash + 1);
}

/// Where the extension's dot stands, -1 without an extension. The dots that lead a name hide
/// the file and begin nothing.
qsizetype extensionDot(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const bool endsName = dot == name.size() - 1;
    if (dot < 1 || endsName)
        return -1;
    const bool onlyDotsBefore = QStringView(name).left(dot).count(QLatin1Char('.')) == dot;
    return onlyDotsBefore ? -1 : dot;
}

} // namespace

QByteArray nativePath(const QUrl &url)
{
    if (!url.isLocalFile())
        return {};
    // As it is kept inside, where only what is no text stays encoded: nothing, of nearly all files.
    QByteArray path = url.path(QUrl::PrettyDecoded).toUtf8();
    if (path.contains('%'))
        path = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    // Without a leading slash it would depend on where this program was started, and at a null byte
    // the system would take it for a shorter path.
    if (!path.startsWith('/') || path.contains('\0'))
        return {};
    return path;
}

QUrl fromNativePath(const QByteArray &path)
{
    static constexpr std::array<char, 16> digits
        = {'0', '1', '2', '3', '4', '5', '6', '7', '8', '9', 'A', 'B', 'C', 'D', 'E', 'F'};
    if (path.isEmpty())
        return {};
    constexpr QByteArrayView scheme = "file://";
    QByteArray encoded(scheme.size() + path.size() * 3, Qt::Uninitialized);
    char *end = std::copy(scheme.begin(), scheme.end(), encoded.data());
    for (const char byte : path) {
        if (standsForItself(byte)) {
            *end++ = byte;
            continue;
        }
        const auto value = static_cast<unsigned char>(byte);
        *end++ = '%';
        *end++ = digits[value >> 4U];
        *end++ = digits[value & 15U];
    }
    encoded.truncate(end - encoded.constData());
    // There is nothing to tolerate, but strictness costs as much again as all the rest.
    return QUrl::fromEncoded(encoded, QUrl::TolerantMode);
}

QString lastPathComponent(const QByteArray &nativePath)
{
    return QString::fromUtf8(lastComponent(nativePath));
}

QString lastPathComponent(const QUrl &url)
{
    return lastPathComponent(nativePath(url));
}

QString pathExtension(const QString &name)
{
    const qsizetype dot = extensionDot(name);
    return dot < 0 ? QString() : name.mid(dot + 1);
}

QString pathExtension(const QUrl &url)
{
    return pathExtension(lastPathComponent(url));
}

QString stem(const QUrl &url)
{
    const QString name = lastPathComponent(url);
    const qsizetype dot = extensionDot(name);
    return dot < 0 ? name : name.left(dot);
}

} // namespace corvane::file_url
