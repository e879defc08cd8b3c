#pragma once

#include "platform/desktop/keyboard.h"
#include "platform/desktop/keys.h"
#include "platform/desktop/menu.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <cstdint>
#include <optional>

namespace corvane {

/// The part of a key press that names the key.
struct KeyPress {
    KeyPosition keyCode = KeyPosition::Unknown;
    /// What the key types in the user's layout with no modifier held; empty when it types nothing.
    QString charactersIgnoringModifiers;
};

/// One global keyboard shortcut as a value.
struct Shortcut {
    /// Modifier bits as they are stored. `modifierBits` sets no others; what was stored by other
    /// means may have them, and is then refused when it is registered.
    static constexpr std::uint32_t command = 256;
    static constexpr std::uint32_t shift = 512;
    static constexpr std::uint32_t option = 2048;
    static constexpr std::uint32_t control = 4096;

    KeyPosition keyCode = KeyPosition::A;
    std::uint32_t modifiers = 0;
    /// The key's name, fixed when the shortcut was recorded.
    QString character;

    /// Modifier glyphs (Control, Option, Shift, Command) and the key's name, "⇧⌘D".
    QString display() const;
    /// What people see instead, since no keyboard here has these signs: "Super+Shift+D".
    QString shown() const;
    /// The keys for a menu: the character in lower case and the modifiers; nothing without a
    /// character.
    KeyEquivalent keyEquivalent() const;

    /// The `character` for a key: its sign ("↩") where it has one, else what it types, as a
    /// capital.
    static QString label(const KeyPress &press);
    /// Keys that are shown by a sign or name, with that text.
    static const QHash<KeyPosition, QString> &namedKeys();
    /// The bits, as they are stored, of the modifiers held.
    static std::uint32_t modifierBits(Modifiers held);

    /// As a JSON object with the keys that `fromJson` reads.
    QByteArray toJson() const;
    /// None unless `json` is an object in which all three keys are there with the right types.
    static std::optional<Shortcut> fromJson(const QByteArray &json);

    friend bool operator==(const Shortcut &, const Shortcut &) = default;
};

} // namespace corvane
