#pragma once

#include "platform/pictures/image.h"

#include <QByteArray>
#include <QUrl>
#include <QUuid>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace corvane {

/// Where the store gets its thumbnails from.
class ThumbnailSource {
public:
    using Completion = std::function<void(std::optional<Image>)>;
    struct File {
        QUuid item;
        QUrl url;
    };
    using FilesCompletion = std::function<void(const QUuid &item, std::optional<Image>)>;

    virtual ~ThumbnailSource() = default;

    /// Calls `completion` exactly once, later, on the main thread, unless `cancel` is called for
    /// the item or a new picture is asked for. For a file there is always an image, if only its
    /// icon.
    virtual void generateForFile(const QUuid &item, const QUrl &url, Completion completion) = 0;
    /// The same for many files, in their order, with one call of `completion` for each. A source
    /// may override it to return quickly from a drop of ten thousand files.
    // By value, so that an implementation can move them.
    // NOLINTNEXTLINE(performance-unnecessary-value-param)
    virtual void generateForFiles(std::vector<File> files, FilesCompletion completion)
    {
        for (const File &file : files) {
            generateForFile(file.item, file.url,
                            [completion, item = file.item](std::optional<Image> image) {
                                completion(item, std::move(image));
                            });
        }
    }
    /// The same for picture bytes; none where they cannot be decoded.
    virtual void generateForImageData(const QUuid &item, const QByteArray &data,
                                      Completion completion)
        = 0;
    /// The item's picture is not wanted any more. Does nothing when none is being made.
    virtual void cancel(const QUuid &item) = 0;
};

} // namespace corvane
