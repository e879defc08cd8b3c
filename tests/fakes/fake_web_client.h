#pragma once

#include "platform/web/web_client.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace corvane::test {

/// Remembers what was asked for; a test answers when it likes, each request once, or never.
class FakeWebClient : public WebClient {
public:
    void get(const WebRequest &request, Completion completion) override
    {
        requests.push_back(request);
        m_completions.push_back(std::move(completion));
    }

    void answer(std::size_t index, std::optional<WebResponse> response)
    {
        std::exchange(m_completions.at(index), nullptr)(std::move(response));
    }
    void fail(std::size_t index) { answer(index, std::nullopt); }
    /// A success from the address that was asked for.
    void answerWith(std::size_t index, const QByteArray &body)
    {
        answer(index, WebResponse{200, body.size(), requests.at(index).url, body});
    }

    std::vector<WebRequest> requests;

private:
    std::vector<Completion> m_completions;
};

} // namespace corvane::test
