// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/calculator_keys.h"

#include "dialogs/calculator_dialog.h"
#include "keypads/keys.h"

namespace tallyforge {

void openCalculator(Keys& keys, const CalculatorTable& table) {
    const auto typicalValue = [&keys] {
        const auto taken = keys.lists.temperatureCoefficient();
        return taken ? ValueCell{taken->value} : ValueCell{};
    };
    keys.dialog.EnterDialog();
    {
        CalculatorDialog dialog(keys.calc, keys.dialog, {.saveUnits = keys.saveUnits, .typicalValue = typicalValue},
                                table);
        keys.calc.platform.showDialog(dialog);
    }
    keys.dialog.LeaveDialog();
}

}  // namespace tallyforge
