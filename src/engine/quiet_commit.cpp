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
    const int place = placeOfX(fromEntry);
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

bool Commit::fitsBesideLabel(double number) const {
    return std::abs(number) < NumberDisplay::oneLineBelow(packed(calc.s.format.look()));
}

void Commit::enableStackKeys() {
    calc.form.cmdDown.enabled = true;
    calc.form.cmdXchgY.enabled = true;
    calc.form.cmdLastx.enabled = true;
    calc.form.cmdSTO.enabled = true;
}

inline void Commit::letStackKeysBePressed() {
    if (!calc.form.cmdDown.enabled && !calc.s.modes.QuizMode) {
        enableStackKeys();
    }
}

inline void Commit::noteNumber(double number, int place, LabelId label) {
    EngineState& s = calc.s;
    s.stack.StackPtr = place + 1;
    s.stack.LowestStackPtr = std::min(s.stack.LowestStackPtr, place + 1);
    calc.tape.addInPlace(Tape::style(packed(s.format.look()), label), number);
    calc.stackList.noteChange();
    s.CurrentProc = "cmdEnter";
}

// No cell holds a text, and nothing needs to grow.
inline void Commit::storeInPlace(double number, int place, LabelId label) {
    StackState& stack = calc.s.stack;
    ValueCell* const cell = stack.Stack.data() + place;
    cell->putNumber(number);
    stack.Xreg.putNumber(number);
    const double* const below = (cell - 1)->asDouble();
    stack.Yreg.putNumber(below == nullptr ? 0.0 : *below);
    letStackKeysBePressed();
    noteNumber(number, place, label);
}

// Takes the same steps as the commit does on its long road, where they have an effect.
void Commit::store(double number, int place, LabelId label) {
    return calc.s.stack.takesNumberAt(place) && calc.tape.hasPlace() ? storeInPlace(number, place, label)
                                                                     : storeWithCare(number, place, label);
}

void Commit::storeWithCare(double number, int place, LabelId label) {
    StackState& stack = calc.s.stack;
    stack.makeRoom(place);
    stack.Stack[static_cast<std::size_t>(place)] = number;
    stack.Xreg = number;
    if (place == 0) {
        stack.Yreg = 0.0;
        calc.form.cmdDown.enabled = false;
        calc.form.cmdXchgY.enabled = false;
    } else {
        stack.Yreg = stack.operand(place - 1);
        letStackKeysBePressed();
    }
    calc.tape.makePlace();
    noteNumber(number, place, label);
}

}  // namespace tallyforge
