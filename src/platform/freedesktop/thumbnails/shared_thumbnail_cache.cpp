#include "platform/freedesktop/thumbnails/shared_thumbnail_cache.h"

#include "platform/freedesktop/thumbnails/png_text.h"
#include "platform/freedesktop/thumbnails/thumbnail_uri.h"
#include "platform/pictures/image_codec.h"
#include "platform/system/private_file.h"
#include "platform/system/regular_file.h"

#include <QCryptographicHash>

#include <algorithm>
#include <array>
#include <ctime>
#include <utility>

namespace corvane {

namespace {

struct Size {
    const char *folder;
    int pixels;
};
constexpr std::array sizes
    = {Size{"normal", 128}, Size{"large", 256}, Size{"x-large", 512}, Size{"xx-large", 1024}};

constexpr qint64 maximumFileBytes = 16LL * 1024 * 1024;
/// How long a file must have rested before its time tells one version from another.
constexpr qint64 restSeconds = 2;

QByteArray fileName(const QByteArray &uri)
{
    return QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex() + ".png";
}

bool shows(const QByteArray &png, const FileVersion &file, const QByteArray &uri)
{
    const auto texts = png_text::thumbnailTexts(png);
    bool hasUri = false;
    bool hasTime = false;
    for (const auto &[key, value] : texts.value_or(png_text::Texts())) {
        if (key == "Thumb::URI")
            hasUri = value == uri;
        else if (key == "Thumb::MTime")
            hasTime = value.trimmed() == QByteArray::number(file.modificationTime);
        else if (key == "Thumb::Size" && value.trimmed() != QByteArray::number(file.size))
            return false;
    }
    return hasUri && hasTime;
}

bool isInside(const QByteArray &path, const QByteArray &folder)
{
    return !folder.isEmpty() && path.startsWith(folder)
        && (path.size() == folder.size() || path[folder.size()] == '/' || folder.endsWith('/'));
}

} // namespace

SharedThumbnailCache::SharedThumbnailCache(const ImageCodec &codec, Places places)
    : m_codec(codec)
    , m_places(std::move(places))
    , m_folder(m_places.cacheFolder.isEmpty() ? QByteArray() : m_places.cacheFolder + "/thumbnails")
{
}

QByteArray SharedThumbnailCache::environmentCacheFolder()
{
    QByteArray cache = qgetenv("XDG_CACHE_HOME");
    if (cache.startsWith('/'))
        return cache;
    const QByteArray home = qgetenv("HOME");
    return home.startsWith('/') ? home + "/.cache" : QByteArray();
}

bool SharedThumbnailCache::isPrivate(const QByteArray &path) const
{
    return m_folder.isEmpty() || isInside(path, m_folder)
        || std::any_of(m_places.privateFolders.cbegin(), m_places.privateFolders.cend(),
                       [&](const QByteArray &folder) { return isInside(path, folder); });
}

QByteArray SharedThumbnailCache::failureFolder() const
{
    return m_folder + "/fail/" + m_places.program;
}

std::optional<QByteArray> SharedThumbnailCache::entry(const QByteArray &folder,
                                                      const FileVersion &file) const
{
    const QByteArray uri = thumbnailUri(file.path);
    auto png = regular_file::contents(folder + '/' + fileName(uri), maximumFileBytes);
    return png && shows(*png, file, uri) ? std::move(png) : std::nullopt;
}

ThumbnailCache::Found SharedThumbnailCache::find(const FileVersion &file, int pixels) const
{
    if (isPrivate(file.path))
        return {};
    for (const Size &size : sizes) {
        if (size.pixels < pixels)
            continue;
        const auto png = entry(m_folder + '/' + size.folder, file);
        if (!png)
            continue;
        DecodingAttempt attempt;
        attempt.formats = DecodingAttempt::Formats::Png;
        if (auto picture = m_codec.thumbnail(*png, pixels, attempt))
            return {std::move(picture), false};
    }
    return {std::nullopt, entry(failureFolder(), file).has_value()};
}

int SharedThumbnailCache::pixelsToMake(const FileVersion &file, int pixels) const
{
    const auto next = std::find_if(sizes.begin(), sizes.end(),
                                   [=](const Size &size) { return size.pixels >= pixels; });
    return next == sizes.end() || isPrivate(file.path) ? pixels : next->pixels;
}

void SharedThumbnailCache::keep(const FileVersion &file, const QImage &picture) const
{
    const int side = std::max(picture.width(), picture.height());
    const auto fitting = std::find_if(sizes.begin(), sizes.end(),
                                      [=](const Size &size) { return size.pixels >= side; });
    if (fitting != sizes.end())
        write(m_folder + '/' + fitting->folder, file, picture);
}

void SharedThumbnailCache::keepFailure(const FileVersion &file) const
{
    QImage dot(1, 1, QImage::Format_ARGB32_Premultiplied);
    dot.fill(Qt::transparent);
    write(failureFolder(), file, dot);
}

void SharedThumbnailCache::write(const QByteArray &folder, const FileVersion &file,
                                 const QImage &picture) const
{
    if (isPrivate(file.path) || std::time(nullptr) - file.modificationTime < restSeconds)
        return;
    const auto png = m_codec.encode(picture, UTType::png());
    if (!png)
        return;
    const QByteArray uri = thumbnailUri(file.path);
    const png_text::Texts texts = {{"Thumb::URI", uri},
                                   {"Thumb::MTime", QByteArray::number(file.modificationTime)},
                                   {"Thumb::Size", QByteArray::number(file.size)},
                                   {"Software", "Corvane"}};
    private_file::replace(m_places.cacheFolder, folder, fileName(uri),
                          png_text::withTexts(*png, texts));
}

} // namespace corvane
