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

/// The source of a random sequence of steps. A seed gives the same steps on every machine, so a
/// failure can be had again.
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

    /// What is being done: a failure shows it.
    void note(const QString &step) { m_done << step; }
    const QStringList &done() const { return m_done; }

private:
    // Its numbers are laid down by the standard; those of the standard's distributions are not.
    std::mt19937 m_engine;
    QStringList m_done;
};

/// A log as a failure shows it legibly.
inline std::string lines(const QStringList &log)
{
    return log.join(QLatin1Char('\n')).toStdString();
}

/// Plays `sequences` sequences, each of `length` steps in a `Scene` of its own, until one fails.
///
/// A scene is made from a `RandomSteps &`; its `step` notes what it does, does it, and compares
/// what came of it. The seeds are 1, 2, 3 and so on, so that everybody plays the same. With
/// CORVANE_SEED=17 only that sequence is played, with CORVANE_SEQUENCES=100000 so many.
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

/// A step that is done the more often the larger its weight is.
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
