#include "platform/system/own_environment.h"

#include <gtest/gtest.h>

namespace corvane::test {

TEST(OwnEnvironment, isHiddenFromProgramsThatAreStarted)
{
    qputenv("CORVANE_TEST_FOUND", "as it was");
    qunsetenv("CORVANE_TEST_NEW");
    own_environment::set("CORVANE_TEST_FOUND", "first");
    own_environment::set("CORVANE_TEST_FOUND", "second");
    own_environment::set("CORVANE_TEST_NEW", "new");
    EXPECT_EQ(qgetenv("CORVANE_TEST_FOUND"), "second");
    EXPECT_EQ(qgetenv("CORVANE_TEST_NEW"), "new");
    {
        const own_environment::AsFound asFound;
        EXPECT_EQ(qgetenv("CORVANE_TEST_FOUND"), "as it was");
        EXPECT_FALSE(qEnvironmentVariableIsSet("CORVANE_TEST_NEW"));
    }
    EXPECT_EQ(qgetenv("CORVANE_TEST_FOUND"), "second");
    EXPECT_EQ(qgetenv("CORVANE_TEST_NEW"), "new");
}

} // namespace corvane::test
