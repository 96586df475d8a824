// SPDX-License-Identifier: GPL-3.0-or-later
//
// The 24 memory registers: the REG key, the register keys of memory array mode, and the files that
// registers are kept in. Storing in a register changes neither X nor the stack.
#pragma once

#include "numbers/value_cell.h"
#include "records/tape_file.h"

#include <string>
#include <string_view>

namespace tallyforge {

class Engine;
class SettingsFile;

/// Puts `value` into register `number`, 1 to 24, and shows it in its field.
void storeInRegister(Engine& calc, int number, const ValueCell& value);
/// Names register `number`, 1 to 24; what is more than the four characters of a name is cut off.
void nameRegister(Engine& calc, int number, std::string_view name);

class MemoryRegisters {
public:
    MemoryRegisters(Engine& calculator, SettingsFile& settingsFile) : calc(calculator), settings(settingsFile) {}

    /// The REG key: a register number in the entry line recalls, with Shift stores X, with Ctrl
    /// names; 0 asks for the register's name instead.
    void cmdSTO_Click();
    /// A key of the bank in memory array mode.
    void RegisterKey(int index);
    /// Memory array mode on or off.
    void MemoryArray();

    void mnuSaveMem_Click();
    void mnuRetMem_Click();

    void store(int number, const ValueCell& value) { storeInRegister(calc, number, value); }
    /// Contents of the 24 registers in key order, as files hold them.
    [[nodiscard]] std::array<RegisterLine, kBankKeys> lines() const;
    /// Takes the 24 registers over from a file.
    void take(const std::array<RegisterLine, kBankKeys>& lines);

private:
    void actOn(int number);
    void byName();
    void recall(int number, std::string_view label);
    void nameRegister(int index);
    void storeFromEntryOrX(int number);
    void finish();
    [[nodiscard]] int registerNamed(std::string_view name) const;

    Engine& calc;
    SettingsFile& settings;
    Keypad keypadBefore_ = Keypad::Standard;
    std::string nameBefore_;
};

}  // namespace tallyforge
