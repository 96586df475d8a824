// SPDX-License-Identifier: GPL-3.0-or-later
//
// Which keypad lies over the bank, and how it looks: set-up, painting under modifiers, the cycle
// of the arrow keys and the history behind Left and Right. All looks come from the keypad tables.
#pragma once

#include "engine/engine_state.h"
#include "keypads/keypad_table.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace tallyforge {

class Engine;

class KeypadModel {
public:
    explicit KeypadModel(Engine& calculator);

    /// Lays `keypad` over the bank, plain, and puts it into the history.
    void show(Keypad keypad);
    /// Paints the present keypad plain again.
    void repaint();
    /// Paints the captions of `mask`; a key without a meaning under it vanishes.
    void paint(std::uint8_t mask);

    void next();
    void previous();
    void historyBack();
    void historyForward();

    /// Makes the twenty-four keys register keys, for memory array mode.
    void paintRegisterNames();

    /// Counts a hint of the Engineering or Magnetics keypad; returns whether it is still due.
    std::function<bool(Keypad)> hintDue;

private:
    void setUp(Keypad keypad);
    void leaveBinary();
    void enterBinary();
    void remember(Keypad keypad);
    void rotateHistory(bool back);
    void step(int direction);
    void tickMenu(Keypad keypad);
    void showHint(Keypad keypad);

    Engine& calc;
    std::vector<Keypad> history_;  ///< newest first
    bool hinted_[2] = {false, false};
};

}  // namespace tallyforge
