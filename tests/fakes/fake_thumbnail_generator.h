#pragma once

#include "platform/pictures/thumbnail_generator.h"

#include <thread>
#include <utility>
#include <vector>

namespace corvane::test {

/// Collects requests; a test answers them, each on a thread of its own.
class FakeThumbnailGenerator : public ThumbnailGenerator {
public:
    void generateBestRepresentation(const ThumbnailRequest &request, Completion completion) override
    {
        requests.push_back(request);
        m_completions.push_back(std::move(completion));
    }

    void answer(std::size_t index, const ThumbnailAnswer &answer)
    {
        std::thread([completion = std::move(m_completions.at(index)), answer] {
            completion(answer);
        }).join();
    }

    std::vector<ThumbnailRequest> requests;

private:
    std::vector<Completion> m_completions;
};

} // namespace corvane::test
