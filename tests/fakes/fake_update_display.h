#pragma once

#include "app/updates/update_report.h"

#include <vector>

namespace corvane::test {

/// Remembers the stages that were shown; a test presses the buttons.
class FakeUpdateDisplay : public UpdateDisplay {
public:
    void show(const UpdateReport &shown, UpdateAttention attention) override
    {
        attentions.push_back(attention);
        update(shown);
    }
    void update(const UpdateReport &shown) override
    {
        report = shown;
        if (stages.empty() || stages.back() != shown.stage)
            stages.push_back(shown.stage);
    }

    UpdateReport report;
    std::vector<UpdateReport::Stage> stages;
    std::vector<UpdateAttention> attentions;
};

} // namespace corvane::test
