#pragma once

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>
#include <vector>

namespace corvane::test {

/// The source of a random sequence of steps. A seed gives the same steps on every machine, so that
/// failures can be reproduced.
class RandomSteps {
public:
    explicit RandomSteps(std::uint32_t seed)
        : m_engine(seed)
    {
    }

    /// 0 ... bound - 1.
    int below(int bound) { return static_cast<int>(m_engine() % static_cast<unsigned>(bound)); }
    bool oneIn(int times) { return below(times) == 0; }
    template<typename T>
    T oneOf(std::initializer_list<T> values)
    {
        return *(values.begin() + below(static_cast<int>(values.size())));
    }
    template<typename List>
    auto oneOf(const List &values)
    {
        return values.at(
            static_cast<typename List::size_type>(below(static_cast<int>(values.size()))));
    }

    /// Notes a step, for the message of a failure.
    void note(const QString &step) { m_done << step; }
    const QStringList &done() const { return m_done; }

private:
    // The standard defines this generator's numbers, but not those of its distributions.
    std::mt19937 m_engine;
    QStringList m_done;
};

/// A log with one entry a line, for the message of a failure.
inline std::string lines(const QStringList &log)
{
    return log.join(QLatin1Char('\n')).toStdString();
}

/// Plays `sequences` sequences, each of `length` steps in a `Scene` of its own, until one fails.
///
/// A scene is constructed with a `RandomSteps &`; its `step` notes an action, does it, and checks
/// the result. The seeds are 1, 2, 3 and so on, so every run is the same. CORVANE_SEED=17 plays
/// only that sequence, CORVANE_SEQUENCES=100000 as many as that.
template<typename Scene>
void playAtRandom(int sequences, int length)
{
    const bool isReplay = qEnvironmentVariableIsSet("CORVANE_SEED");
    const auto first
        = static_cast<std::uint32_t>(isReplay ? qEnvironmentVariableIntValue("CORVANE_SEED") : 1);
    if (qEnvironmentVariableIsSet("CORVANE_SEQUENCES"))
        sequences = qEnvironmentVariableIntValue("CORVANE_SEQUENCES");
    const auto end = first + static_cast<std::uint32_t>(isReplay ? 1 : sequences);
    for (std::uint32_t seed = first; seed != end; ++seed) {
        RandomSteps steps(seed);
        {
            Scene scene(steps);
            for (int i = 0; i < length && !testing::Test::HasFailure(); ++i)
                scene.step(steps);
        }
        if (testing::Test::HasFailure()) {
            ADD_FAILURE() << "again with CORVANE_SEED=" << seed << " after these steps:\n"
                          << lines(steps.done());
            return;
        }
    }
}

/// A kind of step; it is chosen in proportion to its weight.
template<typename Scene>
struct WeightedStep {
    int weight;
    void (Scene::*play)(RandomSteps &steps);
};

template<typename Scene, typename Table>
void playOneOf(Scene &scene, RandomSteps &steps, const Table &table)
{
    int sum = 0;
    for (const auto &entry : table)
        sum += entry.weight;
    int left = steps.below(sum);
    for (const auto &entry : table) {
        left -= entry.weight;
        if (left < 0)
            return (scene.*entry.play)(steps);
    }
}

} // namespace corvane::test
