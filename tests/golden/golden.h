#pragma once

#include <QImage>
#include <QString>

#include <gtest/gtest.h>

namespace corvane::test {

/// Compares with what is kept in the source tree; with CORVANE_REBASELINE set it is written anew
/// instead. What differs is left beside the test program for a look.
testing::AssertionResult matchesGoldenText(const QString &name, const QString &text);

/// Pictures may differ by what another version of the font renderer does to the edges of letters.
testing::AssertionResult matchesGoldenImage(const QString &name, const QImage &image);

} // namespace corvane::test
