#include "app/status/status_menu.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// Titles and key equivalents, row by row; a separator is a dash.
QStringList shown(const StatusMenuState &state)
{
    QStringList lines;
    for (const MenuRow &row : status_menu::rows(state)) {
        const QString keys = row.keyEquivalent.sequence().toString(QKeySequence::PortableText);
        lines << (row.isSeparator()    ? QStringLiteral("—")
                      : keys.isEmpty() ? row.title
                                       : row.title + QLatin1String(" | ") + keys);
    }
    return lines;
}

Shortcut shortcut(std::uint32_t modifiers, const QString &character)
{
    return {KeyPosition{40}, modifiers, character};
}

} // namespace

TEST(StatusMenu, WithNoItemsNeitherViewsNorClears)
{
    EXPECT_EQ(shown({}),
              (QStringList{QStringLiteral("Show Shelf"), QStringLiteral("—"),
                           QStringLiteral("Preferences… | Ctrl+,"), QStringLiteral("How It Works…"),
                           QStringLiteral("—"), QStringLiteral("Quit Corvane | Ctrl+Q")}));
}

TEST(StatusMenu, WithOneItemClearsItButHasNotMoreToView)
{
    const QStringList rows = shown({.itemCount = 1});
    EXPECT_EQ(rows.mid(0, 3),
              (QStringList{QStringLiteral("Show Shelf"), QStringLiteral("Clear Shelf (1 item)"),
                           QStringLiteral("—")}));
    EXPECT_EQ(rows.size(), 7);
}

TEST(StatusMenu, WithFiveItemsViewsAndClearsThem)
{
    const QStringList rows = shown({.itemCount = 5});
    EXPECT_EQ(rows.mid(0, 4),
              (QStringList{QStringLiteral("Show Shelf"), QStringLiteral("View All Items…"),
                           QStringLiteral("Clear Shelf (5 items)"), QStringLiteral("—")}));
}

TEST(StatusMenu, ViewsFromTwoItemsOn)
{
    EXPECT_TRUE(shown({.itemCount = 2}).contains(QStringLiteral("View All Items…")));
    EXPECT_TRUE(shown({.itemCount = 2}).contains(QStringLiteral("Clear Shelf (2 items)")));
}

TEST(StatusMenu, OffersUpdatesBeforeTheLastSeparatorOnlyWhereThereAreSome)
{
    const QString title = QStringLiteral("Check for Updates…");
    const QStringList rows = shown({.canCheckForUpdates = true});
    EXPECT_EQ(rows.indexOf(title), 4);
    EXPECT_EQ(rows.indexOf(QStringLiteral("How It Works…")), 3);
    EXPECT_FALSE(shown({}).contains(title));
}

TEST(StatusMenu, KeepsTheIdsOfItsRowsWhateverElseItHolds)
{
    const auto idOf = [](const StatusMenuState &state, const QString &title) {
        for (const MenuRow &row : status_menu::rows(state)) {
            if (row.title == title)
                return row.id;
        }
        return 0;
    };
    const QString quit = QStringLiteral("Quit Corvane");
    EXPECT_GT(idOf({}, quit), 0);
    EXPECT_EQ(idOf({}, quit), idOf({.itemCount = 5, .canCheckForUpdates = true}, quit));
}

TEST(StatusMenu, ShowsAShortcutsCharacterInLowerCaseWithItsModifiers)
{
    const KeyEquivalent keys = status_menu::keyEquivalent(
        shortcut(Shortcut::control | Shortcut::option, QStringLiteral("K")));
    EXPECT_EQ(keys.key, QStringLiteral("k"));
    EXPECT_EQ(keys.modifiers, Modifier::Control | Modifier::Option);
}

TEST(StatusMenu, TranslatesEachModifierBit)
{
    const auto modifiersOf = [](std::uint32_t bits) {
        return status_menu::keyEquivalent(shortcut(bits, QStringLiteral("A"))).modifiers;
    };
    EXPECT_EQ(modifiersOf(0x1000), Modifier::Control);
    EXPECT_EQ(modifiersOf(0x800), Modifier::Option);
    EXPECT_EQ(modifiersOf(0x200), Modifier::Shift);
    EXPECT_EQ(modifiersOf(0x100), Modifier::Command);
    EXPECT_EQ(modifiersOf(0xffff0000), Modifiers());
}

TEST(StatusMenu, AShortcutWithoutACharacterShowsNothing)
{
    EXPECT_EQ(status_menu::keyEquivalent(shortcut(Shortcut::control, {})), KeyEquivalent());
    EXPECT_EQ(status_menu::keyEquivalent(std::nullopt), KeyEquivalent());
}

TEST(StatusMenu, ShowsBothShortcutsBesideTheirRows)
{
    const QStringList rows = shown(
        {.itemCount = 2,
         .shelfShortcut = shortcut(Shortcut::command | Shortcut::shift, QStringLiteral("D")),
         .viewAllShortcut = shortcut(Shortcut::control, QStringLiteral("F5"))});
    EXPECT_EQ(rows.value(0), QStringLiteral("Show Shelf | Meta+Shift+D"));
    EXPECT_EQ(rows.value(1), QStringLiteral("View All Items… | Ctrl+F5"));
}

TEST(StatusMenu, TellsTheNumberOfItemsInTheToolTip)
{
    EXPECT_EQ(status_menu::toolTip(0), QStringLiteral("Corvane"));
    EXPECT_EQ(status_menu::toolTip(1), QStringLiteral("Corvane — 1 item"));
    EXPECT_EQ(status_menu::toolTip(4), QStringLiteral("Corvane — 4 items"));
}

} // namespace corvane::test
