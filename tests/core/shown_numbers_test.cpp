#include "core/byte_count.h"
#include "core/shown_numbers.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <limits>

namespace corvane {
namespace {

/// A locale for as long as it lives.
class InLocale {
public:
    explicit InLocale(const char *name) { QLocale::setDefault(QLocale(QLatin1String(name))); }
    ~InLocale() { QLocale::setDefault(m_before); }
    InLocale(const InLocale &) = delete;
    InLocale &operator=(const InLocale &) = delete;

private:
    QLocale m_before;
};

TEST(ShownNumbers, AreWrittenAsTheLocaleDoes)
{
    const InLocale german("de_DE");
    EXPECT_EQ(shownNumber(12'345), QStringLiteral("12.345"));
    EXPECT_EQ(shownNumber(1.4, 1), QStringLiteral("1,4"));
    EXPECT_EQ(formatByteCount(1'400'000), QStringLiteral("1,4 MB"));
    EXPECT_EQ(shownPixels({1200, 800}), QStringLiteral("1200 × 800")) << "not in groups";
}

TEST(ShownNumbers, HaveTheLocalesDigits)
{
    const InLocale egyptian("ar_EG");
    EXPECT_EQ(shownNumber(305), QStringLiteral("٣٠٥"));
    EXPECT_EQ(shownPixels({12, 80}), QStringLiteral("١٢ × ٨٠"));
}

TEST(ShownNumbers, HaveThePluralOfTheLargestWhereTheyAreTooLarge)
{
    EXPECT_EQ(pluralOf(3), 3);
    EXPECT_EQ(pluralOf(3'000'000'000), std::numeric_limits<int>::max());
}

} // namespace
} // namespace corvane
