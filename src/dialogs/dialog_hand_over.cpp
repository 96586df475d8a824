// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/dialog_hand_over.h"

#include "engine/engine.h"

#include <utility>

namespace tallyforge {

void DialogHandOver::EnterDialog() {
    DialogValue = calc.s.stack.Xreg;
    DialogCalcId = calc.s.modifiers.ModifierMask;
    calc.s.modifiers.ModifierMask = 0;
    calc.s.delivery.FnLabel.clear();
    calc.dialogOpen = true;
}

void DialogHandOver::LeaveDialog() {
    calc.dialogOpen = false;
    if (calc.s.delivery.FnLabel.empty()) {
        // What stands in X then, the dialog's last line or the X of before, stays.
        calc.s.stack.KeepX = std::exchange(calc.s.stack.Xreg, kNothingDone);
    }
}

void DialogHandOver::show(Form& dialog) {
    EnterDialog();
    calc.platform.showDialog(dialog);
    LeaveDialog();
}

void DialogHandOver::ClearHandOver() {
    DialogValue = "";
    DialogValue2 = "";
    DialogValues.fill("");
    DialogCalcId = 0;
    calc.s.delivery.FnLabel.clear();
}

}  // namespace tallyforge
