// SPDX-License-Identifier: GPL-3.0-or-later
//
// X to the clipboard and back.
#pragma once

#include <string>

namespace tallyforge {

class Engine;

class Clipboard {
public:
    explicit Clipboard(Engine& calculator) : calc(calculator) {}

    /// Puts X's plain text on the clipboard: a typed number as it was typed.
    void mnuCopy_Click();

    /// Pushes the clipboard's number, or its number of a base. A text that is neither is refused:
    /// nothing is pushed.
    void mnuPaste_Click();

    /// Pushes what the clipboard's text may mean as a number; asks where it may mean two.
    void pasteLoosely();

private:
    /// Pushes `clipped`, or refuses it.
    void take(const std::string& clipped);

    Engine& calc;
};

}  // namespace tallyforge
