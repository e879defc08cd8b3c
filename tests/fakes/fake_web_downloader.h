#pragma once

#include "platform/web/web_downloader.h"

#include <utility>
#include <vector>

namespace corvane::test {

/// Collects downloads; a test sends the pieces of the last one and ends it.
class FakeWebDownloader : public WebDownloader {
public:
    void download(const WebDownload &download, WebClient::Completion completion) override
    {
        downloads.push_back(download);
        m_completion = std::move(completion);
    }

    /// Whether the piece was taken.
    bool send(const QByteArray &piece) { return downloads.back().take(piece); }
    void end(std::optional<WebResponse> response)
    {
        // As the real one does, drops the function for pieces before the end is reported.
        downloads.back().take = nullptr;
        std::exchange(m_completion, nullptr)(std::move(response));
    }
    void succeed() { end(WebResponse{200, -1, downloads.back().request.url, {}}); }
    void fail() { end(std::nullopt); }
    /// Sends a file in pieces until one is refused.
    void sendWhole(const QByteArray &file)
    {
        constexpr qsizetype piece = 65'536;
        for (qsizetype at = 0; at < file.size(); at += piece) {
            if (!send(file.mid(at, piece)))
                return fail();
        }
        succeed();
    }

    std::vector<WebDownload> downloads;

private:
    WebClient::Completion m_completion;
};

} // namespace corvane::test
