// Compiled into the tests of the copy that tools/mutate makes: says which test runs.
#include "platform/base/corvane_mutant.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class Listener : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo &test) override
    {
        const std::string name = std::string(test.test_suite_name()) + "." + test.name();
        ::setenv("CORVANE_MUTANT_TEST", name.c_str(), 1);
        ++corvane_mutation::tests;
    }
    void OnTestEnd(const testing::TestInfo & /*test*/) override
    {
        ::unsetenv("CORVANE_MUTANT_TEST");
        ++corvane_mutation::tests;
    }
};

const bool isListening = [] {
    testing::UnitTest::GetInstance()->listeners().Append(new Listener);
    return true;
}();

} // namespace
