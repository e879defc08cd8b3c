// Compiled into the copy of the sources that tools/mutate makes, and nowhere else.
#pragma once

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace corvane_mutation {

/// The mutant that is switched on; 0 for none, -1 where it is only written down what is reached.
inline int chosen()
{
    static const int number = [] {
        const char *text = std::getenv("CORVANE_MUTANT");
        return text ? std::atoi(text) : 0;
    }();
    return number;
}

/// Counts the tests that have begun.
inline std::atomic<int> tests{1};

/// Writes the mutant and the test down, once for each test. Programs that a test starts inherit its
/// name with their environment.
inline void reached(int number)
{
    static std::array<std::atomic<int>, 100000> last{};
    const int now = tests.load();
    if (last.at(static_cast<std::size_t>(number)).exchange(now) == now)
        return;
    const char *test = std::getenv("CORVANE_MUTANT_TEST");
    if (std::FILE *file = std::fopen(std::getenv("CORVANE_MUTANTS_REACHED"), "a")) {
        std::fprintf(file, "%d %s\n", number, test ? test : "");
        std::fclose(file);
    }
}

} // namespace corvane_mutation

inline bool corvane_mutant(int number)
{
    const int chosen = corvane_mutation::chosen();
    if (chosen < 0)
        corvane_mutation::reached(number);
    return chosen == number;
}
