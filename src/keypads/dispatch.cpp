// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/dispatch.h"

#include "engine/engine.h"
#include "engine/results.h"
#include "keypads/failure_messages.h"
#include "keypads/keys.h"

#include <string>
#include <string_view>
#include <utility>

namespace tallyforge {

const KeyRow& Dispatch::row(int index) const {
    return keypadTable(calc.s.modes.ActiveKeypad).rows.at(static_cast<std::size_t>(index));
}

// A short cut of the keyboard borrows a keypad for one key; that key is no register key.
bool Dispatch::takenByMode(int index) {
    const EngineState& s = calc.s;
    if (s.modes.ProgramMode) {
        return !programKey || programKey(index);
    }
    if (s.modes.MemoryArrayMode && s.modes.ActiveKeypad == Keypad::MemoryArray) {
        if (registerKey) {
            registerKey(index);
        }
        return true;
    }
    return false;
}

void Dispatch::cmdFunctions_Click(int index) {
    EngineState& s = calc.s;
    const bool inertInQuiz = subjects.quiz.running() && index != Quiz::kKey;
    if (inertInQuiz || s.modes.ActiveKeypad == Keypad::LetterDrill) {
        calc.focusEntry();
        return;
    }
    if (takenByMode(index)) {
        return;
    }
    const bool foreign = s.modes.ActiveKeypad == Keypad::Percent && index != key::Percent;
    const KeyRow& key = row(index);
    if (key.types.plain != '\0' && !foreign) {
        typeWith(key);
    } else if (!key.built() || foreign) {
        passOver();
    } else {
        press(key);
    }
}

void Dispatch::press(const KeyRow& key) {
    EngineState& s = calc.s;
    nameProcedure();
    const auto whenFailed = [&](const Failure& failure) { onFailure(failure, key.key); };
    goOn(whenFailed, [&] {
        if (takeFromStack() || bringXUpToDate(key)) {
            run(key);
        } else {
            keepOperand();
        }
    });
    if (calc.commit.quiet()) {
        // Nothing is lit or latched; the mask was set for this press alone.
        s.modifiers.ModifierMask = 0;
    } else {
        leaveKey();
    }
    s.entry.EntryTouched = false;
    const std::string_view left = s.stack.Xreg.textView();
    if (!left.empty() && (left == kNoMeaning || left == kNothingDone)) {
        leaveNothing(key.key);
    } else {
        commitResult();
    }
}

void Dispatch::run(const KeyRow& key) {
    if (const KeyFunction function = key.functionUnder(calc.s.modifiers.ModifierMask); function != nullptr) {
        function(subjects);
    } else {
        refuseModifiers(calc);
    }
}

// Nothing is built behind the key: what is typed and what is on the stack stay.
void Dispatch::passOver() {
    leaveKey();
    calc.focusEntry();
}

// Only a program runs unwatched.
bool Dispatch::inProgram() const {
    return calc.commit.quiet() || (programRuns && programRuns());
}

void Dispatch::nameProcedure() {
    calc.s.CurrentProc = inProgram() ? "Program " : "cmdFunctions";
}

// A number that is still typed stays open for its next digit, whatever the modifier.
void Dispatch::typeWith(const KeyRow& key) {
    const std::uint8_t mask = calc.s.modifiers.ModifierMask;
    const char character = mask == 0 ? key.types.plain : mask == kShift ? key.types.shift : '\0';
    nameProcedure();
    leaveKey();
    if (character == '\0') {
        showMessage(FailureNumber::ModifierNotValid, key.key);
    } else if (typeCharacter) {
        typeCharacter(character);
    }
    calc.focusEntry();
}

// Plain numbers on the stack, and nobody watches: no more than bringXUpToDate() would come to.
bool Dispatch::takeFromStack() {
    EngineState& s = calc.s;
    if (!calc.commit.quiet() || s.entry.EntryOpen || s.stack.depth() < 2) {
        return false;
    }
    const double* const x = s.stack.slot(s.stack.StackPtr - 1).asDouble();
    const double* const y = s.stack.slot(s.stack.StackPtr - 2).asDouble();
    if (x == nullptr || y == nullptr) {
        return false;
    }
    s.stack.Xreg = *x;
    s.stack.Yreg = *y;
    s.stack.LastX = *x;
    return true;
}

// Returns whether there is an operand to work on.
bool Dispatch::bringXUpToDate(const KeyRow& key) {
    EngineState& s = calc.s;
    if (!calc.commit.FetchX(key.silentOperand)) {
        return false;
    }
    if (!calc.commit.quiet() && inProgram()) {
        // The commit has put its own name there; messages of a program carry the program's.
        nameProcedure();
    }
    s.stack.LastX = s.stack.Xreg;
    if (!s.stack.Xreg.isTagged()) {
        // A text that is no number fails here, whatever the function would do with it.
        static_cast<void>(calc.xNumber());
    }
    return true;
}

void Dispatch::onFailure(const Failure& failure, int index) {
    EngineState& s = calc.s;
    if (failure.number() == FailureNumber::TypeMismatch && readsTagged()) {
        // A number of a base where a plain one is wanted: all stays as it was, nothing is said.
        keepOperand();
        return;
    }
    if (failure.number() == FailureNumber::ModifierNotValid) {
        s.stack.Xreg = kNoMeaning;
        return;
    }
    showMessage(failure.number(), index);
    const bool onBinary = s.modes.ActiveKeypad == Keypad::Binary;
    if (failure.number() == FailureNumber::BaseRange || (onBinary && failure.number() == FailureNumber::Overflow)) {
        // More bits than a word has: the number stays for another try.
        keepOperand();
        return;
    }
    s.stack.Xreg = ValueCell::zero();
    s.delivery.FnLabel = "No Data!";
}

// Whether an operand that a function may have read is a number of a base.
bool Dispatch::readsTagged() const {
    const StackState& stack = calc.s.stack;
    if (stack.Xreg.isTagged() || !stack.Xreg.tryNumber(calc.s.format.DecimalChar)) {
        return stack.Xreg.isTagged();
    }
    constexpr int kMostBelow = 2;
    bool tagged = false;
    for (int below = 1; below <= kMostBelow; ++below) {
        tagged = tagged || stack.slot(stack.StackPtr - 1 - below).isTagged();
    }
    return tagged;
}

void Dispatch::keepOperand() {
    calc.s.stack.KeepX = std::exchange(calc.s.stack.Xreg, kNothingDone);
}

void Dispatch::showMessage(FailureNumber number, int index) {
    calc.errorBox(BoxKind::Stop, failureMessage(number, index, calc.s));
    calc.LightModifiers(0);
}

void Dispatch::leaveKey() {
    EngineState& s = calc.s;
    calc.ClearOptKeys();
    const bool repaints = s.modes.ActiveKeypad != Keypad::Convert && s.modes.ActiveKeypad != Keypad::Percent;
    if (!s.modes.QuizMode && repaints) {
        model.repaint();
    }
    s.modifiers.CtrlHeld = false;
    s.modifiers.ShiftCtrlHeld = false;
}

void Dispatch::leaveNothing(int index) {
    EngineState& s = calc.s;
    calc.setEntry({});
    s.entry.EntryOpen = false;
    s.entry.EexActive = false;
    s.delivery.FnLabel.clear();
    if (s.stack.Xreg.textView() == kNoMeaning) {
        showMessage(FailureNumber::ModifierNotValid, index);
    }
    const ValueCell kept = std::exchange(s.stack.KeepX, ValueCell{});
    s.stack.Xreg = kept.isEmpty() ? ValueCell{""} : kept;
    calc.stackList.refresh();
    calc.commit.ShowSmallRegs();
    calc.focusEntry();
}

void Dispatch::commitResult() {
    EngineState& s = calc.s;
    // Not by way of the text, which has fewer digits than the number.
    calc.commit.deliverX();
    if (s.format.DisplaySaved && !s.modes.BaseMode && !s.modes.BaseSuspended) {
        calc.display.RestoreDisplay();
    }
}

void Dispatch::cmdFunctions_MouseDown(int index, MouseButton button, std::uint8_t shift) {
    if (button != MouseButton::Right) {
        return;
    }
    // The letters of the drills are all one key's.
    const KeyRow& key = row(calc.s.modes.ActiveKeypad == Keypad::LetterDrill ? key::DrillBits : index);
    if (calc.s.modes.ProgramMode || calc.s.modes.MemoryArrayMode) {
        constexpr int kModesTopic = 650;
        calc.platform.helpTopic(kModesTopic);
    } else if (shift == 0) {
        calc.platform.helpTopic(key.helpTopic);
    } else if (shift == kCtrl && key.choose != nullptr) {
        calc.ClearOptKeys();
        model.repaint();
        key.choose(subjects);
        // Captions and tips follow the choice.
        model.repaint();
        calc.focusEntry();
    }
}

}  // namespace tallyforge
