#include "input/shortcut.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace corvane {
namespace {

const Shortcut shelfShortcut = {KeyPosition{2}, 768, QStringLiteral("D")};

TEST(Shortcut, ShowsModifiersInTheirFixedOrder)
{
    EXPECT_EQ((Shortcut{KeyPosition{0}, 0x1b00, QStringLiteral("A")}.display()),
              QStringLiteral("⌃⌥⇧⌘A"));
    EXPECT_EQ((Shortcut{KeyPosition{40}, 0x1900, QStringLiteral("K")}.display()),
              QStringLiteral("⌃⌥⌘K"));
    EXPECT_EQ(shelfShortcut.display(), QStringLiteral("⇧⌘D"));
    EXPECT_EQ((Shortcut{KeyPosition{96}, 0, QStringLiteral("F5")}.display()), QStringLiteral("F5"));
}

TEST(Shortcut, ComparesAllThreeFields)
{
    EXPECT_EQ(shelfShortcut, (Shortcut{KeyPosition{2}, 768, QStringLiteral("D")}));
    EXPECT_NE(shelfShortcut, (Shortcut{KeyPosition{2}, 768, QStringLiteral("E")}));
    EXPECT_NE(shelfShortcut, (Shortcut{KeyPosition{3}, 768, QStringLiteral("D")}));
    EXPECT_NE(shelfShortcut, (Shortcut{KeyPosition{2}, 256, QStringLiteral("D")}));
}

TEST(Shortcut, NamesSpaceWhateverTheLayoutTypes)
{
    EXPECT_EQ(Shortcut::label({KeyPosition{49}, QStringLiteral(" ")}), QStringLiteral("␣"));
    EXPECT_EQ(Shortcut::label({KeyPosition{76}, QStringLiteral("\r")}), QStringLiteral("⌤"));
    EXPECT_EQ(Shortcut::label({KeyPosition{111}, {}}), QStringLiteral("F12"));
}

TEST(Shortcut, NamesALetterByTheCapitalOfWhatItTypes)
{
    EXPECT_EQ(Shortcut::label({KeyPosition{33}, QStringLiteral("ü")}), QStringLiteral("Ü"));
    EXPECT_EQ(Shortcut::label({KeyPosition{2}, QStringLiteral("d")}), QStringLiteral("D"));
    EXPECT_EQ(Shortcut::label({KeyPosition{2}, {}}), QString());
}

TEST(Shortcut, HasTwentySevenNamedKeys)
{
    const auto &names = Shortcut::namedKeys();
    EXPECT_EQ(names.size(), 27);
    const QHash<std::uint32_t, QString> signs = {
        {36, QStringLiteral("↩")},  {48, QStringLiteral("⇥")},  {51, QStringLiteral("⌫")},
        {117, QStringLiteral("⌦")}, {53, QStringLiteral("⎋")},  {123, QStringLiteral("←")},
        {124, QStringLiteral("→")}, {126, QStringLiteral("↑")}, {125, QStringLiteral("↓")},
        {115, QStringLiteral("↖")}, {119, QStringLiteral("↘")}, {116, QStringLiteral("⇞")},
        {121, QStringLiteral("⇟")},
    };
    for (auto sign = signs.begin(); sign != signs.end(); ++sign)
        EXPECT_EQ(names.value(KeyPosition{sign.key()}), sign.value()) << sign.key();
    const std::array<std::uint32_t, 12> functionKeys
        = {122, 120, 99, 118, 96, 97, 98, 100, 101, 109, 103, 111};
    int number = 1;
    for (const std::uint32_t code : functionKeys)
        EXPECT_EQ(names.value(KeyPosition{code}), QStringLiteral("F%1").arg(number++));
}

TEST(Shortcut, TurnsHeldModifiersIntoStoredBits)
{
    EXPECT_EQ(Shortcut::modifierBits({}), 0U);
    EXPECT_EQ(Shortcut::modifierBits(Modifier::Command), 256U);
    EXPECT_EQ(Shortcut::modifierBits(Modifier::Shift), 512U);
    EXPECT_EQ(Shortcut::modifierBits(Modifier::Option), 2048U);
    EXPECT_EQ(Shortcut::modifierBits(Modifier::Control | Modifier::Command), 4352U);
}

TEST(Shortcut, ComesBackFromItsStoredForm)
{
    EXPECT_EQ(Shortcut::fromJson(shelfShortcut.toJson()), shelfShortcut);
    const Shortcut odd = {KeyPosition{0xffffffff}, 0x1b00, QStringLiteral("\"␣\\")};
    EXPECT_EQ(Shortcut::fromJson(odd.toJson()), odd);
    EXPECT_EQ(Shortcut::fromJson(R"({"keyCode":2,"modifiers":768,"character":"D"})"),
              shelfShortcut);
    EXPECT_EQ(Shortcut::fromJson(R"({"more":[],"character":"D","modifiers":768,"keyCode":2})"),
              shelfShortcut);
}

TEST(Shortcut, IsNotReadFromAnythingElse)
{
    for (const char *json :
         {"", "null", "[]", "{}", "garbage", "{\"keyCode\":2", R"({"keyCode":2,"modifiers":768})",
          R"({"modifiers":768,"character":"D"})", R"({"keyCode":2,"character":"D"})",
          R"({"keyCode":"2","modifiers":768,"character":"D"})",
          R"({"keyCode":2,"modifiers":true,"character":"D"})",
          R"({"keyCode":2,"modifiers":768,"character":4})",
          R"({"keyCode":-1,"modifiers":768,"character":"D"})",
          R"({"keyCode":2.5,"modifiers":768,"character":"D"})",
          R"({"keyCode":4294967296,"modifiers":768,"character":"D"})"})
        EXPECT_FALSE(Shortcut::fromJson(json).has_value()) << json;
}

} // namespace
} // namespace corvane
