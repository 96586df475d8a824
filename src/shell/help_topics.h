// SPDX-License-Identifier: GPL-3.0-or-later
//
// The help topics of the keys and fields that no keypad changes, opened by the right mouse button.
#pragma once

namespace tallyforge {

class Engine;

/// Nothing stands on the tape or is typed yet: the first steps show.
[[nodiscard]] bool showsFirstSteps(const Engine& calc);

/// Hangs the topics on the controls of the main form. A modifier held for the click opens none; a
/// field opens its topic whatever is held. F1 opens that of what Tab has led to, of the key under
/// the pointer, or of what has the keyboard.
void hangHelpTopics(Engine& calc);

}  // namespace tallyforge
