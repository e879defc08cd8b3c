#pragma once

#include "platform/base/cancellation.h"
#include "platform/pictures/external_thumbnailers.h"

#include <vector>

namespace corvane::test {

/// Answers every file with one result.
class FakeExternalThumbnailers : public ExternalThumbnailers {
public:
    Result run(const FileVersion &file, int pixels, Cancellation & /*cancellation*/) override
    {
        asked.push_back({file.path, pixels});
        return result;
    }

    struct Question {
        QByteArray path;
        int pixels = 0;
    };
    std::vector<Question> asked;
    Result result;
};

} // namespace corvane::test
