// SPDX-License-Identifier: GPL-3.0-or-later
//
// The commit of a plain number that nobody watches: a program commits one at each word, and most of
// what the commit does for the eye and for the entry line would find nothing to do.
#include "engine/engine.h"
#include "engine/tape_width.h"

#include <algorithm>
#include <cmath>

namespace tallyforge {

namespace {

bool keysAtRest(const MainForm& form) {
    return form.focus == &form.txtXreg && form.txtXreg.text.empty() && form.txtXreg.caret == 0 &&
           form.optKey.back().checked && !form.shaShift.visible && !form.shaCtrl.visible && !form.shaAlt.visible &&
           form.cmdLastx.enabled && form.cmdSTO.enabled;
}

bool modifiersAtRest(const ModifierState& modifiers) {
    return modifiers.ModifierMask == 0 && !modifiers.ModifierLatched && !modifiers.CtrlHeld && !modifiers.ShiftCtrlHeld;
}

bool entryAtRest(const EntryState& entry) {
    return !entry.EntryOpen && !entry.EntryTouched && !entry.EexActive && !entry.BaseTagDue && !entry.BaseNumberDone;
}

}  // namespace

void Commit::settle() {
    const EngineState& s = calc.s;
    quiet_ = calc.unwatched && !calc.dialogOpen && entryAtRest(s.entry) && modifiersAtRest(s.modifiers) &&
             s.delivery.writtenAs == WrittenAs::Number && s.delivery.FnLabel.empty() && keysAtRest(calc.form) &&
             calc.tape.fillers() == 0 && calc.form.lstDisplayReg.place.width == kWideTape;
}

// Where the number on top is a plain one that fits on a line.
bool Commit::commitQuietly(bool fromEntry) {
    EngineState& s = calc.s;
    const double* const x = s.stack.Xreg.asDouble();
    const int place = s.stack.StackPtr - (s.entry.EntryOpen ? 0 : 1) + (fromEntry ? 1 : 0);
    const auto label = calc.tape.known(s.delivery.FnLabel);
    if (x == nullptr || place < 0 || s.delivery.writtenAs != WrittenAs::Number || !label || !put(*x, place, *label)) {
        return false;
    }
    if (fromEntry) {
        s.stack.LastX = *x;
    }
    s.entry.EntryOpen = false;
    s.delivery.FnLabel.clear();
    return true;
}

// Takes the same steps as the commit does on its long road, where they have an effect.
bool Commit::put(double number, int place, KnownLabel label) {
    EngineState& s = calc.s;
    const std::uint8_t look = packed(s.format.look());
    if (label.wide && !(std::abs(number) < NumberDisplay::oneLineBelow(look))) {
        return false;
    }
    StackState& stack = s.stack;
    stack.makeRoom(place);
    stack.Stack[static_cast<std::size_t>(place)] = number;
    stack.Xreg = number;
    if (place == 0) {
        stack.Yreg = 0.0;
        calc.form.cmdDown.enabled = false;
        calc.form.cmdXchgY.enabled = false;
    } else {
        const ValueCell& below = stack.Stack[static_cast<std::size_t>(place) - 1];
        if (below.isEmpty()) {
            stack.Yreg = 0.0;
        } else {
            stack.Yreg = below;
        }
        if (!calc.form.cmdDown.enabled && !s.modes.QuizMode) {
            enableStackKeys();
        }
    }
    stack.StackPtr = place + 1;
    stack.LowestStackPtr = std::min(stack.LowestStackPtr, place + 1);
    calc.tape.addNumber(Tape::style(look, label.id), number);
    calc.stackList.noteChange();
    s.CurrentProc = "cmdEnter";
    return true;
}

}  // namespace tallyforge
