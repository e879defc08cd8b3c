// The plays of the guide, moment by moment, as text: pictures show one moment of each.

#include "app/welcome/welcome_scene.h"
#include "golden/golden.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

QString number(double value)
{
    // No zero with a sign.
    return QString::number(value + 0.0, 'f', 3);
}

QString point(QPointF at)
{
    return number(at.x()) + QLatin1Char(',') + number(at.y());
}

QString line(double phase, const WelcomeScene &scene)
{
    QStringList words = {number(phase), QStringLiteral("shelf"), number(scene.shelf)};
    words << QStringLiteral("ring") << number(scene.ring);
    words << QStringLiteral("pointer") << point(scene.pointer) << number(scene.pointerOpacity);
    if (scene.showsKey)
        words << QStringLiteral("key") << number(scene.key);
    for (const WelcomeScene::Card &card : scene.cards)
        words << QStringLiteral("card") << point(card.centre) << number(card.scale)
              << number(card.opacity);
    return words.join(QLatin1Char(' ')) + QLatin1Char('\n');
}

QString play(WelcomeStep step)
{
    constexpr int moments = 50;
    QString text;
    for (int i = 0; i <= moments; ++i) {
        const double phase = static_cast<double>(i) / moments;
        text += line(phase, welcome_scene::at(step, phase));
    }
    return text + QStringLiteral("told by ") + number(welcome_scene::telling(step))
        + QLatin1Char('\n');
}

} // namespace

TEST(WelcomeScenes, TheDragIntoTheShelf)
{
    EXPECT_TRUE(
        matchesGoldenText(QStringLiteral("welcome-drag-in.txt"), play(WelcomeStep::DragIn)));
}

TEST(WelcomeScenes, TheDragOutOfIt)
{
    EXPECT_TRUE(
        matchesGoldenText(QStringLiteral("welcome-drag-out.txt"), play(WelcomeStep::DragOut)));
}

TEST(WelcomeScenes, TheDragsThatKeepTheItem)
{
    EXPECT_TRUE(matchesGoldenText(QStringLiteral("welcome-keep.txt"), play(WelcomeStep::Keep)));
}

} // namespace corvane::test
