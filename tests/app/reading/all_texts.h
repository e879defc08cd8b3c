#pragma once

#include "app/text_table.h"

#include <array>

namespace corvane::test {

// Each reads a part of the program where a user reads it, in the language that is loaded.

TextTable textsOfItems();
TextTable textsOfKeys();
TextTable textsOfTheShelfsHint();
TextTable textsOfTheShelfsMessages();
TextTable textsOfTheBar();
TextTable textsForScreenReaders();
TextTable textsOfTheCommandLine();
TextTable textsOfTheMenu();
TextTable textsOfWhatASessionLacks();
TextTable textsOfThePreferences();
TextTable textsOfTheGuide();
TextTable textsOfTheEntryAtLogin();
TextTable textsOfTheUpdates();
TextTable textsOfThePreview();
TextTable textsOfAStartBesideOneThatDoesNotAnswer();

struct TextGroup {
    /// Of its table in texts/; empty for none, where other tests hold the exact words.
    const char *name;
    TextTable (*read)();
};
inline constexpr std::array allTexts = {
    TextGroup{"items", textsOfItems},
    TextGroup{"keys", textsOfKeys},
    TextGroup{"hint", textsOfTheShelfsHint},
    TextGroup{"messages", textsOfTheShelfsMessages},
    TextGroup{"bar", textsOfTheBar},
    TextGroup{"", textsForScreenReaders},
    TextGroup{"", textsOfTheCommandLine},
    TextGroup{"menu", textsOfTheMenu},
    TextGroup{"limits", textsOfWhatASessionLacks},
    TextGroup{"preferences", textsOfThePreferences},
    TextGroup{"guide", textsOfTheGuide},
    TextGroup{"login", textsOfTheEntryAtLogin},
    TextGroup{"updates", textsOfTheUpdates},
    TextGroup{"preview", textsOfThePreview},
    TextGroup{"unanswered", textsOfAStartBesideOneThatDoesNotAnswer},
};

} // namespace corvane::test
