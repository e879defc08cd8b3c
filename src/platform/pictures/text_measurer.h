#pragma once

#include <QFont>
#include <QString>

namespace corvane {

/// Measures text without drawing it.
class TextMeasurer {
public:
    virtual ~TextMeasurer() = default;

    /// In points, on one line.
    virtual double width(const QString &text, const QFont &font) const = 0;
};

} // namespace corvane
