// The choice among a feed's versions beside a plain one: feeds of every kind of item, and machines
// of every kind, at random.

#include "app/updates/update_choice.h"
#include "fakes/random_steps.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// The numbers of a version, as many as there can be; none for what is no version.
QList<int> numbersOf(const QString &text)
{
    QList<int> numbers;
    for (const QString &part : text.split(u'.')) {
        bool isNumber = false;
        numbers << part.toInt(&isNumber);
        if (!isNumber || part.startsWith(u'-') || part.startsWith(u'+'))
            return {};
    }
    while (numbers.size() < 10)
        numbers << 0;
    return numbers;
}

bool isSameMachine(const QString &a, const QString &b)
{
    const auto family = [](const QString &name) {
        const QString low = name.toLower();
        if (low == QLatin1String("amd64") || low == QLatin1String("x86_64"))
            return QStringLiteral("PC");
        return low == QLatin1String("arm64") || low == QLatin1String("aarch64")
            ? QStringLiteral("ARM")
            : low;
    };
    return family(a) == family(b);
}

bool isForSystem(const QString &system)
{
    return system.isEmpty() || system.toLower() == QLatin1String("linux");
}

bool isNewEnough(const UpdateSystem &machine, const QString &minimum)
{
    const QStringList words = minimum.split(u' ');
    if (words.size() != 2 || words[0].toLower() != machine.distribution.toLower())
        return true;
    const auto wanted = numbersOf(words[1]);
    const auto present = numbersOf(machine.release);
    return wanted.isEmpty() || present.isEmpty() || !(present < wanted);
}

/// Which of the item's files is for the machine; -1 for none.
int fileFor(const UpdateSystem &machine, const ClaimedRelease &item)
{
    for (const QString &minimum : item.minimumSystems) {
        if (!isNewEnough(machine, minimum))
            return -1;
    }
    for (int i = 0; i < item.files.size(); ++i) {
        const ClaimedFile &file = item.files[i];
        if (isForSystem(file.system)
            && (file.architecture.isEmpty()
                || isSameMachine(file.architecture, machine.architecture)))
            return i;
    }
    return -1;
}

class FeedAndMachine {
public:
    explicit FeedAndMachine(RandomSteps & /*steps*/) { }

    void step(RandomSteps &steps)
    {
        const UpdateSystem machine{word(steps, {"x86_64", "arm64", "riscv64"}),
                                   word(steps, {"debian", "Debian", "arch"}),
                                   word(steps, {"12", "12.1", "13", "", "sid"})};
        QList<ClaimedRelease> feed;
        for (int left = steps.below(7); left > 0; --left)
            feed << item(steps);
        const UpdateChoice choice = update_choice::choose(feed, machine);

        const bool hasBuilds = std::ranges::any_of(feed, [&](const ClaimedRelease &one) {
            return fileFor(machine, one) >= 0 && !numbersOf(one.version).isEmpty();
        });
        ASSERT_EQ(choice.scale, hasBuilds ? VersionScale::Build : VersionScale::ShortVersion);
        const ClaimedRelease *best = nullptr;
        for (const ClaimedRelease &one : feed) {
            const auto numbers = numbersOf(hasBuilds ? one.version : one.shortVersion);
            if (numbers.isEmpty() || fileFor(machine, one) < 0)
                continue;
            if (!best || numbersOf(hasBuilds ? best->version : best->shortVersion) < numbers)
                best = &one;
        }
        ASSERT_EQ(choice.newest.has_value(), best != nullptr);
        if (best)
            compare(*choice.newest, *best, fileFor(machine, *best), hasBuilds);
    }

private:
    static QString word(RandomSteps &steps, std::initializer_list<const char *> words)
    {
        return QString::fromLatin1(steps.oneOf(words));
    }
    static QString version(RandomSteps &steps)
    {
        if (steps.oneIn(6))
            return word(steps, {"", "nightly", "1.0-beta", "1..2", ".1", "1.", "+1", "-1", "1 2"});
        QStringList numbers;
        for (int left = 1 + steps.below(3); left > 0; --left)
            numbers << word(steps, {"0", "1", "1", "2", "9", "10", "01", "00"});
        return numbers.join(u'.');
    }
    ClaimedRelease item(RandomSteps &steps)
    {
        ClaimedRelease one;
        if (!steps.oneIn(3))
            one.version = version(steps);
        if (!steps.oneIn(4))
            one.shortVersion = version(steps);
        one.notes = QStringLiteral("notes %1").arg(++made);
        while (steps.oneIn(3))
            one.minimumSystems << word(steps,
                                       {"debian 12", "debian 13", "DEBIAN 12.1", "arch 1",
                                        "ubuntu 99", "13", "debian sid", "debian 12 13"});
        for (int left = steps.below(3) + (steps.oneIn(4) ? 0 : 1); left > 0; --left) {
            ClaimedFile file;
            file.length = ++made;
            file.system = word(steps, {"", "", "linux", "Linux", "macos", "windows"});
            file.architecture = word(steps, {"", "x86_64", "amd64", "AMD64", "aarch64", "arm64"});
            one.files << file;
        }
        steps.note(QStringLiteral("item '%1' '%2' for %3, files %4")
                       .arg(one.version, one.shortVersion, one.minimumSystems.join(u','))
                       .arg(one.files.size()));
        return one;
    }
    static void compare(const UpdateOffer &offer, const ClaimedRelease &best, int file,
                        bool isBuild)
    {
        const QString version = isBuild ? best.version : best.shortVersion;
        ASSERT_EQ(offer.notes, best.notes);
        ASSERT_EQ(offer.version.text(), version);
        ASSERT_EQ(offer.shownVersion, best.shortVersion.isEmpty() ? version : best.shortVersion);
        ASSERT_EQ(offer.file.length, best.files[file].length);
    }

    int made = 0;
};

} // namespace

TEST(UpdateChoiceModel, ChoosesTheSameFromAnyFeedForAnyMachine)
{
    playAtRandom<FeedAndMachine>(1000, 20);
}

} // namespace corvane::test
