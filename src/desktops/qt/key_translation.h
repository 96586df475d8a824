// SPDX-License-Identifier: GPL-3.0-or-later
//
// From a key event of the desktop to the key stroke of a form, on any keyboard layout.
#pragma once

#include "platform/form_input.h"

#include <QKeyEvent>

#include <cstdint>

namespace tallyforge::qt {

/// Modifiers of an event as a form counts them.
[[nodiscard]] std::uint8_t modifierMask(Qt::KeyboardModifiers modifiers);

/// The modifier that a key is by itself, 0 for other keys. (Alt after Shift arrives under the name
/// Meta.)
[[nodiscard]] std::uint8_t modifierOfKey(int key);

/// The stroke of a key that is no modifier. A character's own Shift, or AltGr, is no modifier of
/// it; the decimal key of the number pad is the locale's `decimal` character.
[[nodiscard]] KeyStroke translate(const QKeyEvent& event, char decimal);

}  // namespace tallyforge::qt
