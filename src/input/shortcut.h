#pragma once

#include "platform/desktop/keyboard.h"
#include "platform/desktop/keys.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <cstdint>
#include <optional>

namespace corvane {

/// A key that went down, as far as naming it goes.
struct KeyPress {
    KeyPosition keyCode = KeyPosition::Unknown;
    /// What the key types in the user's layout with no modifier held; empty when it types nothing.
    QString charactersIgnoringModifiers;
};

/// One global keyboard shortcut as a value.
struct Shortcut {
    /// Modifier bits as they are stored; no other bits are ever set.
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

    /// What `character` is for a key: its sign where it has one, else the capital of what it types.
    static QString label(const KeyPress &press);
    /// The keys that have a sign of their own.
    static const QHash<KeyPosition, QString> &namedKeys();
    /// The stored bits of the modifiers that are held.
    static std::uint32_t modifierBits(Modifiers held);

    QByteArray toJson() const;
    /// None unless all three keys are there with the right types.
    static std::optional<Shortcut> fromJson(const QByteArray &json);

    friend bool operator==(const Shortcut &, const Shortcut &) = default;
};

} // namespace corvane
