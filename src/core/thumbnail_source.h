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

    /// Both call `completion` exactly once, later, on the main thread, unless the item's picture is
    /// cancelled or asked for anew; a file always gets an image.
    virtual void generateForFile(const QUuid &item, const QUrl &url, Completion completion) = 0;
    /// The same for many files in their order, one completion for each: a drop of ten thousand
    /// waits for nothing that can be made ready later.
    // By value: who takes them over moves them.
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
    virtual void generateForImageData(const QUuid &item, const QByteArray &data,
                                      Completion completion)
        = 0;
    /// Nobody wants the item's picture any more; nothing when none is under way.
    virtual void cancel(const QUuid &item) = 0;
};

} // namespace corvane
