#pragma once

#include "golden/image_comparison.h"

#include <QString>

#include <gtest/gtest.h>

namespace corvane::test {

// Each compares with what is kept in the source tree; with CORVANE_REBASELINE set it is written
// anew instead. What differs is left in golden-differences beside the test programs for a look.

testing::AssertionResult matchesGoldenText(const QString &name, const QString &text);

/// Exactly where the libraries that draw are those that the kept picture was made with, by tiles
/// elsewhere; CORVANE_COMPARE=exact or =tiles decides it instead. baselines/libraries.txt names
/// them. Another version of Qt may have pictures of its own, in baselines/qt-MAJOR.MINOR with such
/// a file: made there by CORVANE_REBASELINE, those alone that differ by more than the bounds.
testing::AssertionResult matchesGoldenImage(const QString &name, const Picture &picture);

/// Where the picture was left, to be said in a failure.
QString leaveForALook(const QString &name, const QImage &image);

} // namespace corvane::test
