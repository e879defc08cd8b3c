#pragma once

#include "core/item_loading.h"

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

    void generateForFile(const QUrl &url, Completion completion) override
    {
        requests.push_back({url, {}, std::move(completion)});
    }
    void generateForImageData(const QByteArray &data, Completion completion) override
    {
        requests.push_back({{}, data, std::move(completion)});
    }

    std::vector<Request> requests;
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
