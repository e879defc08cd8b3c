#pragma once

#include "platform/pictures/text_measurer.h"

namespace corvane {

class QtTextMeasurer : public TextMeasurer {
public:
    double width(const QString &text, const QFont &font) const override;
};

} // namespace corvane
