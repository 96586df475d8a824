// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/dispatch.h"

#include "engine/engine.h"
#include "keypads/keys.h"

#include <string>
#include <string_view>

namespace tallyforge {

namespace {

constexpr int kPowerKey = 5;
constexpr int kBaseConversionKey = 6;
constexpr int kOctalKey = 21;

/// Keys of the Binary keypad that may be hexadecimal digits of a number that is still typed.
bool mayBeHexDigit(Keypad keypad, int index) {
    return keypad == Keypad::Binary &&
           (index == 0 || index == 1 || index == 2 || index == 16 || index == 17 || index == 19);
}

std::string messageFor(FailureNumber number, int index, const EngineState& s) {
    switch (number) {
        case FailureNumber::InvalidArgument:
            if (s.FnLabel == "ûx"_t) {
                return "Illegal operation (square root of negitive number)!";
            }
            return index == kPowerKey ? "Illegal operation - check for negitive numbers!" : "Error number 5";
        case FailureNumber::Overflow:
            // Key 21 of the Convert keypad was the octal key once; its message is kept.
            if (index == kOctalKey && s.ActiveKeypad == Keypad::Convert) {
                return "Octal number outside of range: 17777777777 octal maximum";
            }
            if (index == kBaseConversionKey && s.ActiveKeypad == Keypad::Binary && s.BaseMode) {
                return s.Xreg.isTagged() ? "Real number required!" : "Exceeded maximum number (1.845e19)!";
            }
            return std::string("Number outside of range: ± 1.8e308, & ± 4.9e-324"_t);
        case FailureNumber::DivisionByZero:
            return "Division by zero - be sure all variables are defined!";
        case FailureNumber::ModifierNotValid:
            return "That Extended key (or keys) not valid for that function,\nsee Help file or tooltip for applicable "
                   "Extended keys";
        case FailureNumber::BaseNumberRequired:
            return "Binary number required in x-register!";
        default:
            return "Error number " + std::to_string(static_cast<int>(number));
    }
}

}  // namespace

const KeyRow& Dispatch::row(int index) const {
    return keypadTable(calc.s.ActiveKeypad).rows.at(static_cast<std::size_t>(index));
}

bool Dispatch::takenByMode(int index) {
    const EngineState& s = calc.s;
    if (s.ActiveKeypad == Keypad::LetterDrill) {
        calc.focusEntry();
        return true;
    }
    if (s.ProgramMode || s.MemoryArrayMode) {
        const auto& taker = s.ProgramMode ? programKey : registerKey;
        if (taker) {
            taker(index);
        }
        return true;
    }
    return false;
}

void Dispatch::cmdFunctions_Click(int index) {
    EngineState& s = calc.s;
    s.CurrentProc = "cmdFunctions";
    if (takenByMode(index)) {
        return;
    }
    const KeyRow& key = row(index);
    if (key.does == nullptr) {
        // Nothing is built behind the key: what is typed and what is on the stack stay.
        leaveFunction();
        calc.focusEntry();
        return;
    }
    bringXUpToDate(key);
    const auto onFailure = [&](const Failure& failure) { report(failure, index); };
    goOn(onFailure, [&] { runFunction(key); });
    leaveFunction();
    if (s.Xreg.textView() == kNoMeaning) {
        s.Xreg = kNothingDone;
        report(Failure{FailureNumber::ModifierNotValid}, index);
        s.Xreg = kNothingDone;
    }
    if (s.Xreg.textView() == kNothingDone) {
        calc.setEntry({});
        s.ValueInXreg = false;
        s.EntryOpen = false;
        s.FnLabel.clear();
        s.Xreg = "";
        calc.focusEntry();
        return;
    }
    commitResult();
}

void Dispatch::bringXUpToDate(const KeyRow& key) {
    EngineState& s = calc.s;
    if (!mayBeHexDigit(s.ActiveKeypad, key.key)) {
        s.SkipCommitTail = key.silentOperand && s.EntryOpen;
        calc.commit.FetchX();
    }
    s.SkipCommitTail = false;
    s.CurrentProc = "cmdFunctions";
}

void Dispatch::runFunction(const KeyRow& key) {
    EngineState& s = calc.s;
    s.LastX = s.Xreg;
    s.Xnum = s.Xreg.isTagged() ? 0.0 : calc.xNumber();
    key.does(subjects);
}

void Dispatch::leaveFunction() {
    EngineState& s = calc.s;
    calc.ClearOptKeys();
    if (!s.QuizMode) {
        calc.form.setFocus(calc.form.cmdEnter);
        if (s.ActiveKeypad != Keypad::Convert && s.ActiveKeypad != Keypad::Percent) {
            model.repaint();
        }
    }
    s.EntryTouched = false;
    s.CtrlHeld = false;
    s.ShiftCtrlHeld = false;
}

void Dispatch::commitResult() {
    EngineState& s = calc.s;
    calc.setEntry(calc.text(s.Xreg));
    calc.commit.cmdEnter_Click();
    if (!s.BaseMode && s.BaseSuspended != kBaseSuspended) {
        calc.display.RestoreDisplay();
    }
}

void Dispatch::report(const Failure& failure, int index) {
    EngineState& s = calc.s;
    const std::string message = messageFor(failure.number(), index, s);
    s.Xreg = ValueCell::zero();
    s.FnLabel = "No Data!";
    calc.errorBox(BoxKind::Stop, message);
    calc.LightModifiers(0);
}

void Dispatch::cmdFunctions_MouseDown(int index, MouseButton button, std::uint8_t shift) {
    if (button == MouseButton::Right && shift == 0) {
        calc.platform.helpTopic(row(index).helpTopic);
    }
}

}  // namespace tallyforge
