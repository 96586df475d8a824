// SPDX-License-Identifier: GPL-3.0-or-later
//
// From a press of a bank key to exactly one function: the typed number is brought up to date, the
// row of the present keypad runs, and its result is committed, or its failure shown.
#pragma once

#include "keypads/keypad_model.h"
#include "keypads/keypad_table.h"
#include "numbers/failure.h"
#include "platform/form.h"

#include <cstdint>
#include <functional>

namespace tallyforge {

class Engine;
struct Keys;

class Dispatch {
public:
    Dispatch(Engine& calculator, KeypadModel& keypads, Keys& keys) : calc(calculator), model(keypads), subjects(keys) {}

    /// A key of the bank, 0 to 23. Raises nothing: a failure of the function is shown in a box.
    void cmdFunctions_Click(int index);
    /// Runs the function of `key`, which must have one, from the typed operand to the commit.
    void press(const KeyRow& key);

    /// The right button opens the key's help topic; with Ctrl, the choice of units or material of
    /// a light blue key.
    void cmdFunctions_MouseDown(int index, MouseButton button, std::uint8_t shift);

    // Answered by the rooms that own the modes.
    /// Program mode: returns whether it took the key. A running program lets its own keys through.
    std::function<bool(int index)> programKey;
    /// Memory array mode: the key is a register key.
    std::function<void(int index)> registerKey;
    std::function<bool()> programRuns;
    /// A key that types: the character reaches the entry line.
    std::function<void(char character)> typeCharacter;

private:
    [[nodiscard]] const KeyRow& row(int index) const;
    [[nodiscard]] bool takenByMode(int index);
    void run(const KeyRow& key);
    void passOver();
    void typeWith(const KeyRow& key);
    [[nodiscard]] bool inProgram() const;
    void nameProcedure();
    [[nodiscard]] bool takeFromStack();
    bool bringXUpToDate(const KeyRow& key);
    void onFailure(const Failure& failure, int index);
    [[nodiscard]] bool readsTagged() const;
    void keepOperand();
    void showMessage(FailureNumber number, int index);
    void leaveKey();
    void leaveNothing(int index);
    void commitResult();

    Engine& calc;
    KeypadModel& model;
    Keys& subjects;
};

}  // namespace tallyforge
