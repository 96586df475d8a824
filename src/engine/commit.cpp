// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/commit.h"

#include "engine/engine.h"
#include "numbers/number_format.h"
#include "numbers/out_of_range.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace tallyforge {

namespace {

constexpr int kSmallRegisterDigits = 3;

}  // namespace

void Commit::cmdEnter_Click() {
    EngineState& s = calc.s;
    // A recalled value goes up by two: over the X that is there, with a free slot above it.
    const auto slots = static_cast<std::size_t>(s.StackPtr) + 3;
    if (s.Stack.size() < slots) {
        s.Stack.resize(slots);
    }
    s.CurrentProc = "cmdEnter";
    s.BaseTagDue = false;
    if (s.Xreg.isEmpty() || s.Xreg.isEmptyText()) {
        s.Xreg = s.depth() > 0 ? s.LastX : ValueCell::zero();
    }
    if (!s.EntryOpen) {
        s.StackPtr = std::max(s.StackPtr - 1, 0);
    }
    ValueCell savedLastX;
    if (!std::exchange(s.StoreAsIs, false) && !std::exchange(s.ValueInXreg, false)) {
        readEntry(savedLastX);
    }
    storeOnStack();
    if (!std::exchange(s.SkipCommitTail, false)) {
        showAndFinish(savedLastX);
    }
}

void Commit::readEntry(ValueCell& savedLastX) {
    EngineState& s = calc.s;
    const std::string& typed = calc.entryText();
    if (typed.empty()) {
        if (s.KeepEntryText || s.SkipCommitTail) {
            calc.setEntry(calc.text(s.Xreg));
        }
        s.StackPtr += 1;
        s.LastX = s.Xreg;
        return;
    }
    savedLastX = std::exchange(s.LastX, s.Xreg);
    const bool keepsExactValue =
        s.RoundTripCheck && goOn([&](const Failure& failure) { onFailure(failure); },
                                 [&] {
                                     if (calc.xNumber() == 0.0 || !sameAfterRoundTrip(s.Xreg, typed)) {
                                         s.Xreg = typed;
                                     }
                                 });
    if (!keepsExactValue) {
        s.Xreg = typed;
        endExponent();
    }
}

// An exponent that was left without digits is one of 0.
void Commit::endExponent() {
    EngineState& s = calc.s;
    const std::string_view typed = s.Xreg.textView();
    if (!typed.starts_with('#') && (typed.ends_with('e') || typed.ends_with('E'))) {
        s.Xreg = std::string(typed.substr(0, typed.size() - 1)) + "e0";
    }
}

void Commit::enterStored(double number) {
    EngineState& s = calc.s;
    if (!s.Xreg.isEmpty() && !s.Xreg.isEmptyText()) {
        s.LastX = s.Xreg;
    } else if (s.depth() == 0) {
        s.LastX = ValueCell::zero();
    }
    const auto held = s.Xreg.tryNumber(s.DecimalChar);
    constexpr double kLastDigits = 1e-14;
    // A copy of X is X with all its digits, though its text has but fifteen of them.
    const bool copyOfX = held && *held != 0.0 && std::abs(*held - number) <= std::abs(number) * kLastDigits &&
                         fifteenDigits(*held) == number;
    if (!copyOfX) {
        s.Xreg = number;
    }
    s.EntryOpen = true;
    s.ValueInXreg = true;
    cmdEnter_Click();
}

bool Commit::sameAfterRoundTrip(const ValueCell& left, std::string_view right) const {
    const char decimal = calc.s.DecimalChar;
    const auto throughText = [decimal](double value) { return readNumber(plainText(value, decimal), decimal); };
    return throughText(left.number(decimal)) - throughText(readNumber(right, decimal)) == 0.0;
}

void Commit::storeOnStack() {
    EngineState& s = calc.s;
    s.Stack[static_cast<std::size_t>(s.StackPtr)] = s.Xreg;
    if (s.StackPtr != 0) {
        s.Yreg = s.Stack[static_cast<std::size_t>(s.StackPtr) - 1];
        if (!s.QuizMode) {
            enableStackKeys();
        }
    } else {
        s.Yreg = ValueCell::zero();
        calc.form.cmdDown.enabled = false;
        calc.form.cmdXchgY.enabled = false;
    }
    s.StackPtr += 1;
    s.LowestStackPtr = std::min(s.LowestStackPtr, s.StackPtr);
    s.EntryOpen = false;
    s.EexActive = false;
}

void Commit::enableStackKeys() {
    calc.form.cmdDown.enabled = true;
    calc.form.cmdXchgY.enabled = true;
    calc.form.cmdLastx.enabled = true;
    calc.form.cmdSTO.enabled = true;
}

void Commit::showAndFinish(const ValueCell& savedLastX) {
    EngineState& s = calc.s;
    const bool shown = display();
    if (std::exchange(s.FormatFault, false)) {
        refused_ = true;
        s.Xreg = s.LastX;
        s.LastX = savedLastX;
        s.StackPtr = std::max(s.StackPtr - 1, 1);
        s.Yreg = s.slot(s.StackPtr - 2);
    } else if (shown) {
        calc.display.DisplayChg();
    }
    s.CurrentProc = "cmdEnter";
    // A label belongs to the line of its own commit; one that was not printed stands on no other.
    s.FnLabel.clear();
    calc.stackList.refresh();
    ShowSmallRegs();
    s.BaseNumberDone = false;
    if (!std::exchange(s.KeepEntryText, false)) {
        calc.setEntry({});
    }
    s.EntryTouched = false;
}

bool Commit::display() {
    const auto report = [&](const Failure& failure) { onFailure(failure); };
    return goOn(report, [&] { calc.display.DspFmat(calc.s.Xreg); }) && !calc.s.FormatFault;
}

void Commit::onFailure(const Failure& failure) {
    EngineState& s = calc.s;
    if (failure.number() == FailureNumber::Overflow) {
        calc.errorBox(BoxKind::Stop, kOutOfRange);
        refused_ = true;
        s.Xreg = ValueCell::zero();
        s.StackPtr = std::max(s.StackPtr - 1, 1);
        s.Yreg = s.slot(s.StackPtr - 2);
        return;
    }
    calc.errorBox(BoxKind::Stop, "Error number " + std::to_string(failure.code()));
    calc.LightModifiers(0);
}

void Commit::pushRecalled() {
    calc.s.StackPtr -= 1;
    calc.form.setFocus(calc.form.cmdEnter);
    calc.s.EntryOpen = true;
    calc.s.ValueInXreg = false;
    cmdEnter_Click();
}

void Commit::PushResult() {
    EngineState& s = calc.s;
    const int digits = s.DisplayDigits;
    const DisplayMode mode = s.Mode;
    if (!s.KeepDigits) {
        goOn([&](const Failure& failure) { onFailure(failure); }, [&] { AutoDigits(); });
    }
    s.EntryOpen = true;
    s.ValueInXreg = true;
    cmdEnter_Click();
    // Stays set, so that a commit by the caller's own tail does not read the entry line.
    s.ValueInXreg = true;
    s.DisplayDigits = digits;
    s.Mode = mode;
}

void Commit::AutoDigits() {
    EngineState& s = calc.s;
    if (s.Xreg.textView() == kNothingDone) {
        return;
    }
    const double size = std::abs(calc.xNumber());
    if (size == 0.0) {
        s.DisplayDigits = 2;
    } else if (size >= 10000.0 || size < 1.0) {
        s.Mode = DisplayMode::Engineering;
        s.DisplayDigits = 3;
    }
}

bool Commit::FetchX() {
    EngineState& s = calc.s;
    if (s.EntryOpen) {
        refused_ = false;
        cmdEnter_Click();
        if (refused_) {
            return false;
        }
    } else if (s.StackPtr <= 1) {
        if (s.Xreg.isEmpty() || s.Xreg.isEmptyText()) {
            s.Xreg = ValueCell::zero();
        }
        return true;
    } else {
        s.Xreg = s.slot(s.StackPtr - 1);
    }
    s.Yreg = s.slot(s.StackPtr - 2);
    if (s.Yreg.isEmpty()) {
        s.Yreg = ValueCell::zero();
    }
    s.ValueInXreg = true;
    s.SkipCommitTail = false;
    return true;
}

void Commit::BeginEntry() {
    EngineState& s = calc.s;
    if (!s.EntryOpen) {
        s.EntryOpen = true;
        calc.setEntry({});
    }
    if (!s.QuizMode) {
        calc.form.cmdSTO.enabled = true;
    }
}

void Commit::lowerStack(int operands) {
    calc.s.StackPtr = std::max(calc.s.StackPtr - (operands - 1), 1);
}

void Commit::TapeLine(std::string_view text) {
    calc.display.SetUpDisplay(std::string(text));
    calc.display.DisplayChg();
    calc.s.Xreg = ValueCell::zero();
}

void Commit::ShowSmallRegs() {
    EngineState& s = calc.s;
    calc.form.txtXreg.caret = calc.form.txtXreg.text.size();
    if (s.Yreg.isEmpty()) {
        s.Yreg = ValueCell::zero();
    }
    if (calc.unwatched) {
        return;
    }
    const auto small = [&](const ValueCell& cell) {
        const auto value = cell.tryNumber(s.DecimalChar);
        return value ? formatScientific(*value, kSmallRegisterDigits, s.DecimalChar) : calc.text(cell);
    };
    calc.form.txtLastx.text = small(s.LastX);
    calc.form.txty_Reg.text = small(s.Yreg);
}

}  // namespace tallyforge
