// The choice among a feed's releases beside a plain one: feeds of every kind of item, read one
// after the other by machines of every kind, at random.

#include "app/updates/choice_desk.h"
#include "fakes/random_steps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace corvane::test {

namespace {

using Verdict = UpdateChoice::Verdict;

/// What is stated, and whether everything beside it is as stated.
struct Made {
    Statement statement;
    bool isOurs = true;
    bool isKept = true;
};

struct Highest {
    qint64 number = 0;
    qint64 version = 0;
};

class FeedsAndMachine : ChoiceDesk {
public:
    explicit FeedsAndMachine(RandomSteps &steps)
    {
        audience.wantsBetas = steps.oneIn(2);
        // A signature takes longer than all the rest, so that there are few different ones.
        for (int i = 0; i < 12; ++i)
            m_made << make(steps);
    }

    void step(RandomSteps &steps)
    {
        QList<Made> feed;
        QByteArray items;
        for (int left = steps.below(6); left > 0; --left) {
            const Made &one = m_made.at(steps.below(int(m_made.size())));
            feed << one;
            items += itemOf(one);
        }
        const UpdateChoice choice = choose(items);
        trust = choice.trust;
        const Verdict expected = expectedOf(feed);
        ASSERT_EQ(int(choice.verdict), int(expected));
        ASSERT_EQ(choice.offer.has_value(), expected == Verdict::Newer);
        if (choice.offer) {
            ASSERT_EQ(choice.offer->release.statement().version.text().toInt(), bestOf(feed));
        }
    }

private:
    Made make(RandomSteps &steps)
    {
        Made one;
        one.statement = Statement::of(QByteArray::number(8 + steps.below(6)), file);
        one.statement.number = QByteArray::number(1 + steps.below(12));
        one.statement.channel = steps.oneIn(4) ? "beta" : "stable";
        if (steps.oneIn(8))
            one.statement.architecture = "arm64";
        if (steps.oneIn(6))
            one.statement.expiry = "2026-12-01T00:00:00Z";
        if (steps.oneIn(6))
            one.statement.minimums = {steps.oneIn(2) ? "debian 13" : "debian 12"};
        one.isOurs = !steps.oneIn(6);
        one.isKept = !steps.oneIn(6);
        steps.note(QStringLiteral("made %1, number %2, %3")
                       .arg(QLatin1String(one.statement.version),
                            QLatin1String(one.statement.number),
                            QLatin1String(one.statement.channel)));
        return one;
    }
    QByteArray itemOf(const Made &one) const
    {
        const QByteArray whole = one.statement.item(one.isOurs ? key : m_stranger, file);
        return one.isKept ? whole : QByteArray(whole).replace("Notes of", "Nothing in");
    }

    bool isRead(const Made &one) const
    {
        return one.isOurs && one.statement.architecture == "x86_64"
            && (audience.wantsBetas || one.statement.channel == "stable");
    }
    static bool isOver(const Made &one) { return one.statement.expiry.startsWith("2026"); }
    static bool couldRun(const Made &one)
    {
        return one.statement.version.toInt() > 10 && !one.statement.minimums.contains("debian 13");
    }

    int bestOf(const QList<Made> &feed) const
    {
        int best = 0;
        for (const Made &one : feed) {
            if (isRead(one) && one.isKept && !isOver(one) && couldRun(one))
                best = std::max(best, one.statement.version.toInt());
        }
        return best;
    }

    /// Whether something newer than all that can be offered is stated, and not kept.
    bool isSurpassed(const QList<Made> &feed) const
    {
        const int best = bestOf(feed);
        return std::ranges::any_of(feed, [&](const Made &one) {
            return isRead(one) && !isOver(one) && couldRun(one)
                && one.statement.version.toInt() > best;
        });
    }

    Verdict expectedOf(const QList<Made> &feed)
    {
        std::map<QByteArray, Highest> present;
        std::map<QByteArray, const Made *> latest;
        bool isAnnounced = false;
        for (const Made &one : feed) {
            if (isRead(one)) {
                Highest &highest = present[one.statement.channel];
                const qint64 number = one.statement.number.toLongLong();
                if (number > highest.number)
                    latest[one.statement.channel] = &one;
                highest.number = std::max(highest.number, number);
                highest.version = std::max(highest.version, one.statement.version.toLongLong());
                isAnnounced = isAnnounced || couldRun(one);
            } else if (!one.isOurs) {
                // The item itself names no minimum and no architecture.
                isAnnounced = isAnnounced || one.statement.version.toInt() > 10;
            }
        }
        Verdict verdict = isAnnounced ? Verdict::Unverifiable : Verdict::UpToDate;
        if (bestOf(feed) > 0 && !isSurpassed(feed))
            verdict = Verdict::Newer;
        for (const auto &[channel, one] : latest) {
            if (isOver(*one))
                verdict = Verdict::Expired;
        }
        if (present.empty())
            verdict = Verdict::Unverifiable;
        for (auto &[channel, remembered] : m_remembered) {
            const Highest seen = present[channel];
            if (seen.number < remembered.number || seen.version < remembered.version)
                verdict = Verdict::WentBack;
        }
        for (const auto &[channel, highest] : present) {
            if (highest.number == 0)
                continue;
            Highest &remembered = m_remembered[channel];
            remembered.number = std::max(remembered.number, highest.number);
            remembered.version = std::max(remembered.version, highest.version);
        }
        return verdict;
    }

    TestKey m_stranger;
    QList<Made> m_made;
    std::map<QByteArray, Highest> m_remembered;
};

} // namespace

TEST(UpdateChoiceModel, ChoosesTheSameFromAnyFeedForAnyMachine)
{
    playAtRandom<FeedsAndMachine>(300, 20);
}

} // namespace corvane::test
