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
/// Two numbers that differ by less may have the same fifteen digits.
constexpr double kLastDigits = 1e-14;

}  // namespace

void Commit::deliver(Delivery delivery) {
    EngineState& s = calc.s;
    s.stack.Xreg = std::move(delivery.value);
    s.delivery.FnLabel = delivery.label;
    s.entry.EntryOpen = delivery.place == OnStack::Pushes;
    commit({.fromEntry = false, .keepText = delivery.keepText});
}

void Commit::commit(Manner manner) {
    if (quiet_ && manner.tapeLine && !manner.keepText && commitQuietly(manner.fromEntry)) {
        return;
    }
    wake();
    EngineState& s = calc.s;
    s.stack.makeRoom(placeOfX(manner.fromEntry));
    if (const std::string& typed = calc.entryText(); manner.fromEntry && !typed.empty()) {
        s.stack.expectText(typed.size());
    } else if (s.stack.Xreg.isText()) {
        s.stack.expectText(s.stack.Xreg.textView().size());
    }
    s.CurrentProc = "cmdEnter";
    s.entry.BaseTagDue = false;
    if (s.stack.Xreg.isEmptyText() && s.stack.depth() > 0) {
        s.stack.Xreg = s.stack.LastX;
    }
    if (s.stack.Xreg.isEmpty() || s.stack.Xreg.isEmptyText()) {
        s.stack.Xreg = ValueCell::zero();
    }
    if (!s.entry.EntryOpen) {
        s.stack.StackPtr = std::max(s.stack.StackPtr - 1, 0);
    }
    ValueCell savedLastX;
    if (manner.fromEntry) {
        readEntry(manner, savedLastX);
    }
    storeOnStack();
    if (manner.tapeLine) {
        showAndFinish(manner, savedLastX);
    }
}

// An open entry goes up by one, an X that is given replaces the top, and an empty line doubles it.
int Commit::placeOfX(bool fromEntry) const {
    const bool copiesX = fromEntry && calc.form.txtXreg.text.empty();
    return calc.s.stack.StackPtr - (calc.s.entry.EntryOpen ? 0 : 1) + (copiesX ? 1 : 0);
}

void Commit::readEntry(Manner manner, ValueCell& savedLastX) {
    EngineState& s = calc.s;
    const std::string& typed = calc.entryText();
    if (typed.empty()) {
        if (!manner.tapeLine) {
            calc.setEntry(calc.text(s.stack.Xreg));
        }
        s.stack.StackPtr += 1;
        s.stack.LastX = s.stack.Xreg;
        return;
    }
    savedLastX = std::exchange(s.stack.LastX, s.stack.Xreg);
    s.stack.Xreg = typed;
    endExponent();
}

// An exponent that was left without digits is one of 0.
void Commit::endExponent() {
    EngineState& s = calc.s;
    const std::string_view typed = s.stack.Xreg.textView();
    if (!typed.starts_with('#') && (typed.ends_with('e') || typed.ends_with('E'))) {
        s.stack.Xreg = std::string(typed.substr(0, typed.size() - 1)) + "e0";
    }
}

void Commit::enterStored(double number) {
    EngineState& s = calc.s;
    const double* const x = s.stack.Xreg.asDouble();
    if (quiet_ && x != nullptr && (*x == number || std::abs(*x - number) > std::abs(number) * kLastDigits)) {
        const double before = *x;
        if (put(number, s.stack.StackPtr, {})) {
            s.stack.LastX = before;
            return;
        }
    }
    if (!s.stack.Xreg.isEmpty() && !s.stack.Xreg.isEmptyText()) {
        s.stack.LastX = s.stack.Xreg;
    } else if (s.stack.depth() == 0) {
        s.stack.LastX = ValueCell::zero();
    }
    const auto held = s.stack.Xreg.tryNumber(s.format.DecimalChar);
    // A copy of X is X with all its digits, though its text has but fifteen of them.
    const bool copyOfX = held && *held != 0.0 && std::abs(*held - number) <= std::abs(number) * kLastDigits &&
                         fifteenDigits(*held) == number;
    if (!copyOfX) {
        s.stack.Xreg = number;
    }
    s.entry.EntryOpen = true;
    deliverX();
}

void Commit::pushCopy(double number) {
    if (quiet_ && put(number, calc.s.stack.StackPtr, {})) {
        calc.s.stack.LastX = number;
        return;
    }
    calc.s.stack.Xreg = number;
    cmdEnter_Click();
}

void Commit::storeOnStack() {
    EngineState& s = calc.s;
    s.stack.Stack[static_cast<std::size_t>(s.stack.StackPtr)] = s.stack.Xreg;
    if (s.stack.StackPtr != 0) {
        s.stack.Yreg = s.stack.Stack[static_cast<std::size_t>(s.stack.StackPtr) - 1];
        if (!s.modes.QuizMode) {
            enableStackKeys();
        }
    } else {
        s.stack.Yreg = ValueCell::zero();
        calc.form.cmdDown.enabled = false;
        calc.form.cmdXchgY.enabled = false;
    }
    s.stack.StackPtr += 1;
    s.stack.LowestStackPtr = std::min(s.stack.LowestStackPtr, s.stack.StackPtr);
    s.entry.EntryOpen = false;
    s.entry.EexActive = false;
}

void Commit::showAndFinish(Manner manner, const ValueCell& savedLastX) {
    EngineState& s = calc.s;
    const auto report = [&](const Failure& failure) { onFailure(failure); };
    bool shown = false;
    if (goOn(report, [&] { shown = calc.display.DspFmat(s.stack.Xreg); })) {
        if (shown) {
            calc.display.DisplayChg();
        } else {
            takeBack(savedLastX);
        }
    }
    s.CurrentProc = "cmdEnter";
    // A label belongs to the line of its own commit; one that was not printed stands on no other.
    s.delivery.FnLabel.clear();
    calc.stackList.refresh();
    ShowSmallRegs();
    s.entry.BaseNumberDone = false;
    if (!manner.keepText) {
        calc.setEntry({});
    }
    s.entry.EntryTouched = false;
}

// What was typed is no number of a base.
void Commit::takeBack(const ValueCell& savedLastX) {
    StackState& stack = calc.s.stack;
    refused_ = true;
    stack.Xreg = stack.LastX;
    stack.LastX = savedLastX;
    stack.StackPtr = std::max(stack.StackPtr - 1, 1);
    stack.Yreg = stack.slot(stack.StackPtr - 2);
}

void Commit::onFailure(const Failure& failure) {
    EngineState& s = calc.s;
    if (failure.number() == FailureNumber::Overflow) {
        calc.errorBox(BoxKind::Stop, kOutOfRange);
        refused_ = true;
        s.stack.Xreg = ValueCell::zero();
        s.stack.StackPtr = std::max(s.stack.StackPtr - 1, 1);
        s.stack.Yreg = s.stack.slot(s.stack.StackPtr - 2);
        return;
    }
    calc.errorBox(BoxKind::Stop, "Error number " + std::to_string(failure.code()));
    calc.LightModifiers(0);
}

void Commit::pushRecalled() {
    calc.s.stack.makeRoom(calc.s.stack.StackPtr);
    calc.s.stack.StackPtr -= 1;
    calc.form.setFocus(calc.form.cmdEnter);
    calc.s.entry.EntryOpen = true;
    cmdEnter_Click();
}

void Commit::PushResult(bool keepsDigits) {
    EngineState& s = calc.s;
    const int digits = s.format.DisplayDigits;
    const DisplayMode mode = s.format.Mode;
    if (!keepsDigits) {
        goOn([&](const Failure& failure) { onFailure(failure); }, [&] { AutoDigits(); });
    }
    s.entry.EntryOpen = true;
    deliverX();
    s.format.DisplayDigits = digits;
    s.format.Mode = mode;
}

void Commit::AutoDigits() {
    EngineState& s = calc.s;
    if (s.stack.Xreg.textView() == kNothingDone) {
        return;
    }
    const double size = std::abs(calc.xNumber());
    if (size == 0.0) {
        s.format.DisplayDigits = 2;
    } else if (size >= 10000.0 || size < 1.0) {
        s.format.Mode = DisplayMode::Engineering;
        s.format.DisplayDigits = 3;
    }
}

bool Commit::FetchX(bool silently) {
    EngineState& s = calc.s;
    if (s.entry.EntryOpen) {
        refused_ = false;
        commit({.tapeLine = !silently});
        if (refused_) {
            return false;
        }
    } else if (s.stack.StackPtr <= 1) {
        if (s.stack.Xreg.isEmpty() || s.stack.Xreg.isEmptyText()) {
            s.stack.Xreg = ValueCell::zero();
        }
        return true;
    } else {
        s.stack.Xreg = s.stack.operand(s.stack.StackPtr - 1);
    }
    s.stack.Yreg = s.stack.operand(s.stack.StackPtr - 2);
    return true;
}

void Commit::BeginEntry() {
    EngineState& s = calc.s;
    if (!s.entry.EntryOpen) {
        s.entry.EntryOpen = true;
        calc.setEntry({});
    }
    if (!s.modes.QuizMode) {
        calc.form.cmdSTO.enabled = true;
    }
}

void Commit::lowerStack(int operands) {
    StackState& stack = calc.s.stack;
    if (stack.depth() < operands) {
        // A result that was left below the stack has been used up as an operand, too.
        stack.Stack.front() = ValueCell{};
    }
    stack.StackPtr = std::max(stack.StackPtr - (operands - 1), std::min(stack.StackPtr, 2));
}

void Commit::TapeLine(std::string_view text) {
    calc.display.SetUpDisplay(std::string(text));
    calc.display.DisplayChg();
    calc.s.stack.Xreg = ValueCell::zero();
}

void Commit::ShowSmallRegs() {
    EngineState& s = calc.s;
    calc.form.txtXreg.caret = calc.form.txtXreg.text.size();
    if (s.stack.Yreg.isEmpty()) {
        s.stack.Yreg = ValueCell::zero();
    }
    if (calc.unwatched) {
        return;
    }
    const auto small = [&](const ValueCell& cell) {
        const auto value = cell.tryNumber(s.format.DecimalChar);
        return value ? formatScientific(*value, kSmallRegisterDigits, s.format.DecimalChar) : calc.text(cell);
    };
    calc.form.txtLastx.text = small(s.stack.LastX);
    calc.form.txty_Reg.text = small(s.stack.Yreg);
}

}  // namespace tallyforge
