#pragma once

#include "platform/pictures/text_measurer.h"

namespace corvane::test {

/// Every character is equally wide, whatever the font.
class FakeTextMeasurer : public TextMeasurer {
public:
    double width(const QString &text, const QFont &) const override
    {
        return static_cast<double>(text.size()) * advance;
    }

    double advance = 7;
};

} // namespace corvane::test
