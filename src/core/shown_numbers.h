#pragma once

#include <QSize>
#include <QString>

namespace corvane {

/// A number as the user's locale writes it: "12,000", "12.000".
QString shownNumber(qint64 number);
/// With `decimals` digits after the decimal sign: "1.4", "1,4".
QString shownNumber(double number, int decimals);
/// Width and height in the locale's digits, not in groups: "1200 × 800".
QString shownPixels(QSize size);
/// The number that a translation's plural form is chosen by, which is an int: whatever is too large
/// for one has the form of the largest.
int pluralOf(qint64 count);

} // namespace corvane
