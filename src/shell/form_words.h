// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the main form says beside its captions: X in the entry line while nothing is typed, what a
// key does in words, the first steps on an empty tape; and the function keys of the keyboard that
// choose options, view and help.
#pragma once

namespace tallyforge {

class Clipboard;
class Engine;

/// Hangs words and function keys on the form of `calc`. To be called once the keys have their
/// handlers.
void hangWords(Engine& calc, Clipboard& clipboard);

}  // namespace tallyforge
