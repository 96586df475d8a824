// SPDX-License-Identifier: GPL-3.0-or-later
//
// The help topics of the keys and fields that no keypad changes, opened by the right mouse button.
#pragma once

namespace tallyforge {

class Engine;

/// Hangs the topics on the controls of the main form. A modifier held for the click opens none; a
/// field opens its topic whatever is held.
void hangHelpTopics(Engine& calc);

}  // namespace tallyforge
