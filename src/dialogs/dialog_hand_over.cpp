// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/dialog_hand_over.h"

#include "engine/engine.h"

namespace tallyforge {

void DialogHandOver::EnterDialog() {
    DialogValue = calc.s.Xreg;
    DialogCalcId = calc.s.ModifierMask;
    calc.s.ModifierMask = 0;
    calc.s.FnLabel.clear();
    calc.dialogOpen = true;
}

void DialogHandOver::LeaveDialog() {
    calc.dialogOpen = false;
    if (calc.s.FnLabel.empty()) {
        calc.s.Xreg = kNothingDone;
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
    calc.s.FnLabel.clear();
}

}  // namespace tallyforge
