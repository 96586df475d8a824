// SPDX-License-Identifier: GPL-3.0-or-later
//
// The keys of the Convert keypad. A key opens its dialog; the conversion that was chosen there stays
// with the key, so that its next plain click converts at once, and F10 from any keypad. Shift opens
// the dialog again, Alt also puts the factor into Register 2.
#pragma once

#include "convert/conversion_memory.h"
#include "convert/conversion_tables.h"
#include "convert/find_unit.h"
#include "dialogs/conversion_dialog.h"

#include <array>
#include <memory>
#include <optional>

namespace tallyforge {

class Engine;

class ConversionKeys {
public:
    explicit ConversionKeys(Engine& calculator) : calc(calculator) {}

    /// A key with a table of units: gate, dialog, result. Raises 6 and 11. A number of a base
    /// stays as it is.
    void press(int key);

    /// Finds a unit among all, and opens its dialog with it. Raises as press().
    void findUnit();

    enum class Gate {
        Dialog,        ///< the dialog is to be shown
        DialogForAlt,  ///< and the factor goes to Register 2
        Done,          ///< converted by what is stored, or the modifier has no meaning
    };
    /// What every key with a memory asks first. Raises as press().
    [[nodiscard]] Gate ConversionKeyGate(int key);
    /// Shows the factor of the key beside the bank; with Alt stores it in Register 2.
    void showFactor(int key, Gate gate);
    /// Puts captions and tips of stored conversions on the keys that show.
    void dress();
    /// What Reset does.
    void reset() { memory.clear(); }
    /// Reads what the keys held when the settings were saved. A damaged file is set aside and told.
    void load();
    /// Writes it; a failure is told.
    void save() const;

    ConversionMemory memory;

private:
    [[nodiscard]] ConversionDialog& dialogOf(const ConversionTable& table);
    void open(const ConversionTable& table, const std::optional<UnitPair>& former, Gate gate);
    void dressHeld(Control& control, int key) const;
    void convertWith(const ConversionTable& table, const ConversionChoice& choice, Gate gate);
    void convertStored(int key);
    void storeInRegister2(double factor);

    Engine& calc;
    std::unique_ptr<FindUnitDialog> finder_;
    /// Made when first shown, and kept: a dialog has some hundred controls.
    std::array<std::unique_ptr<ConversionDialog>, kBankKeys> dialogs_;
};

}  // namespace tallyforge
