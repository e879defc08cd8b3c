#pragma once

#include "core/link_preview_source.h"
#include "core/thumbnail_source.h"

#include <utility>
#include <vector>

namespace corvane::test {

/// Remembers what thumbnails were asked for; a test answers when it likes, or never.
class RecordingThumbnails : public ThumbnailSource {
public:
    struct Request {
        /// Empty when the bytes are given.
        QUrl url;
        QByteArray data;
        Completion completion;
    };

    void generateForFile(const QUuid & /*item*/, const QUrl &url, Completion completion) override
    {
        requests.push_back({url, {}, std::move(completion)});
    }
    void generateForImageData(const QUuid & /*item*/, const QByteArray &data,
                              Completion completion) override
    {
        requests.push_back({{}, data, std::move(completion)});
    }
    void cancel(const QUuid &item) override { cancelled << item; }

    std::vector<Request> requests;
    QList<QUuid> cancelled;
};

/// The same for link previews.
class RecordingLinkPreviews : public LinkPreviewSource {
public:
    struct Request {
        QUrl url;
        IsWanted isWanted;
        Completion completion;
    };

    void load(const QUrl &url, IsWanted isWanted, Completion completion) override
    {
        requests.push_back({url, std::move(isWanted), std::move(completion)});
    }

    std::vector<Request> requests;
};

} // namespace corvane::test
