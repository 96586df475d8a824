// SPDX-License-Identifier: GPL-3.0-or-later
//
// From a press of a bank key to exactly one function: the typed number is brought up to date, the
// row of the present keypad runs, and its result is committed, or its failure shown.
#pragma once

#include "engine/failure.h"
#include "keypads/keypad_model.h"
#include "keypads/keypad_table.h"
#include "platform/form.h"

#include <cstdint>
#include <functional>

namespace tallyforge {

class Engine;
struct Keys;

class Dispatch {
public:
    Dispatch(Engine& calculator, KeypadModel& keypads, Keys& keys) : calc(calculator), model(keypads), subjects(keys) {}

    /// A key of the bank, 0 to 23.
    void cmdFunctions_Click(int index);

    /// The right button opens the key's help topic.
    void cmdFunctions_MouseDown(int index, MouseButton button, std::uint8_t shift);

    // Answered by the rooms that own the modes; while a mode is on its answer takes the key.
    std::function<void(int index)> programKey;
    std::function<void(int index)> registerKey;

private:
    [[nodiscard]] const KeyRow& row(int index) const;
    bool takenByMode(int index);
    void bringXUpToDate(const KeyRow& key);
    void runFunction(const KeyRow& key);
    void leaveFunction();
    void commitResult();
    void report(const Failure& failure, int index);

    Engine& calc;
    KeypadModel& model;
    Keys& subjects;
};

}  // namespace tallyforge
