#pragma once

#include "platform/desktop/key_name.h"

#include <QString>

#include <xkbcommon/xkbcommon.h>

#include <memory>

/// What keys type, by the descriptions of keyboards that X servers and compositors have in common.
namespace corvane::xkb_keys {

template<auto unreference>
struct Unreference {
    template<typename Object>
    void operator()(Object *object) const
    {
        unreference(object);
    }
};
using Context = std::unique_ptr<xkb_context, Unreference<xkb_context_unref>>;
using Keymap = std::unique_ptr<xkb_keymap, Unreference<xkb_keymap_unref>>;
using State = std::unique_ptr<xkb_state, Unreference<xkb_state_unref>>;

/// By the first level at which the key types something: a keypad's digits are not on its lowest
/// one. Of a dead key the accent that it puts on others; empty where it types nothing.
QString textOf(xkb_keymap *keymap, xkb_keycode_t key, xkb_layout_index_t layout);

/// What the key is called on its lowest level, or with Shift on the next one.
KeyName nameOf(xkb_keymap *keymap, xkb_keycode_t key, xkb_layout_index_t layout, bool isShifted);

/// Whether a key that has this symbol changes what keys do instead of being one itself.
bool changesKeys(KeySymbol symbol);

} // namespace corvane::xkb_keys
