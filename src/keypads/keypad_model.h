// SPDX-License-Identifier: GPL-3.0-or-later
//
// Which keypad lies over the bank, and how it looks: set-up, painting under modifiers, the cycle
// of the arrow keys and the history behind Left and Right. All looks come from the keypad tables.
#pragma once

#include "engine/engine_state.h"
#include "engine/unit_words.h"
#include "keypads/keypad_table.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

class Engine;

class KeypadModel {
public:
    explicit KeypadModel(Engine& calculator);

    /// Lays `keypad` over the bank, plain, and puts it into the history. Nothing in memory array
    /// mode and in Program mode, where the bank is the registers or the program's keys.
    void show(Keypad keypad);
    /// The same without history and hint, for a keypad that is lent for one key.
    void lay(Keypad keypad);
    /// Paints the present keypad plain again and puts the lamps out.
    void repaint();
    /// Paints the captions of `mask` (0: the plain ones); a key without a meaning under it
    /// vanishes. Nothing where key painting is off, or the bank shows something else.
    void paint(std::uint8_t mask);

    /// One keypad on, or back, in the cycle of the Down and Up keys.
    void next();
    void previous();
    /// One keypad back, or on, in the ring of those that were shown.
    void historyBack();
    void historyForward();

    /// Makes the twenty-four keys register keys, for memory array mode.
    void paintRegisterNames();

    /// Counts a hint of the Engineering or Magnetics keypad; returns whether it is still due.
    std::function<bool(Keypad)> hintDue;
    /// The caption that a choice of the user's gives a key under a mask (0: plain); none where the
    /// row's own stands.
    std::function<std::optional<KeyCaption>(const KeyRow&, std::uint8_t mask)> chosenCaption;
    /// Writes what keys of the Convert keypad remember over the captions and tips of the rows.
    std::function<void()> dressConversions;

private:
    void paintPlain();
    void paintLetterDrills();
    void overlayBank(bool letters);
    void writeHint(Keypad keypad);
    void leaveBinary();
    void enterBinary();
    void remember(Keypad keypad);
    void rotateHistory(bool back);
    void step(int direction);
    void skipNextRelease();
    void tickMenu(Keypad keypad);
    void showHint(Keypad keypad);
    [[nodiscard]] bool bankIsLent() const;
    [[nodiscard]] KeyCaption captionOf(const KeyRow& row, std::uint8_t mask) const;
    [[nodiscard]] std::string_view tipOf(const KeypadTable& table, const KeyRow& row);

    /// Tips of the keypad that is laid, with the units that were in force when they were written.
    struct UnitTips {
        const KeypadTable* table = nullptr;
        UnitWords units;
        std::array<std::string, kBankKeys> texts;
    };

    Engine& calc;
    UnitTips tips_;
    std::vector<Keypad> history_;  ///< newest first
    bool hinted_ = false;
};

}  // namespace tallyforge
