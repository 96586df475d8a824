// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk/stack_keys.h"

#include "engine/engine.h"
#include "numbers/number_format.h"

#include <string>
#include <utility>

namespace tallyforge {

namespace {

/// "-0.5" and "-.5" as the same text.
std::string withoutLeadingZero(std::string text, std::string_view point) {
    const std::size_t at = text.starts_with('-') ? 1 : 0;
    if (text.compare(at, 1, "0") == 0 && text.compare(at + 1, 1, point) == 0) {
        text.erase(at, 1);
    }
    return text;
}

}  // namespace

StackKeys::StackKeys(Engine& calculator) : calc(calculator), drop_(*calc.tape.known("Drop")) {}

bool StackKeys::modifierActive() {
    if (calc.s.modifiers.ModifierMask == 0) {
        return false;
    }
    calc.focusEntry();
    return true;
}

// X may be empty after a function that left nothing; the element on the stack is the number.
void StackKeys::takeTop() {
    EngineState& s = calc.s;
    if (s.stack.depth() > 0) {
        s.stack.Xreg = s.stack.operand(s.stack.StackPtr - 1);
        s.stack.Yreg = s.stack.operand(s.stack.StackPtr - 2);
    }
}

// Plain numbers, and nobody watches: no more than the commit of the element below is left to do.
bool StackKeys::dropQuietly() {
    StackState& stack = calc.s.stack;
    if (!calc.commit.quiet() || stack.depth() < 1) {
        return false;
    }
    const double* const top = stack.slot(stack.StackPtr - 1).asDouble();
    const ValueCell& below = stack.slot(stack.StackPtr - 2);
    const double* const left = below.asDouble();
    if (top == nullptr || (left == nullptr && !below.isEmpty())) {
        return false;
    }
    const double operand = *top;
    if (!calc.commit.put(left == nullptr ? 0.0 : *left, stack.StackPtr - 2, drop_)) {
        return false;
    }
    stack.LastX = operand;
    return true;
}

void StackKeys::cmdDown_Click() {
    if (dropQuietly()) {
        return;
    }
    EngineState& s = calc.s;
    if (modifierActive()) {
        return;
    }
    // A number that is being typed is the one on top.
    if (s.entry.EntryOpen && !calc.commit.FetchX()) {
        return;
    }
    if (s.stack.StackPtr < 2) {
        calc.focusEntry();
        return;
    }
    takeTop();
    s.stack.StackPtr -= 2;
    s.stack.LastX = s.stack.Xreg;
    calc.commit.deliver({.value = s.stack.slot(s.stack.StackPtr), .label = "Drop", .place = OnStack::Pushes});
}

void StackKeys::cmdXchgY_Click() {
    EngineState& s = calc.s;
    if (modifierActive()) {
        return;
    }
    if (s.entry.EntryOpen && !calc.commit.FetchX()) {
        return;
    }
    if (s.stack.depth() == 0) {
        calc.focusEntry();
        return;
    }
    takeTop();
    // What is missing under a single element (a 0, or a result that stood below the stack) becomes the
    // top, so that no number goes below the stack.
    if (s.stack.depth() > 1) {
        s.stack.StackPtr -= 1;
        s.stack.Stack[static_cast<std::size_t>(s.stack.StackPtr) - 1] = s.stack.Xreg;
    }
    calc.commit.deliver({.value = s.stack.Yreg, .label = "x<>y", .place = OnStack::Pushes});
}

void StackKeys::cmdLastx_Click() {
    EngineState& s = calc.s;
    if (modifierActive()) {
        return;
    }
    const bool typing = !calc.entryText().empty();
    const bool exponent = s.entry.EexActive;
    const bool tagDue = s.entry.BaseTagDue;
    const bool tagged = s.entry.BaseNumberDone;
    calc.commit.deliver({.value = s.stack.LastX, .label = "Lastx", .place = OnStack::Pushes, .keepText = true});
    if (!typing) {
        calc.setEntry({});
        return;
    }
    // What was typed is still an open entry, so that the next digit goes on with it.
    s.entry.EntryOpen = true;
    s.entry.EexActive = exponent;
    s.entry.BaseTagDue = tagDue;
    s.entry.BaseNumberDone = tagged;
}

void StackKeys::cmdChs_Click() {
    EngineState& s = calc.s;
    if (modifierActive()) {
        return;
    }
    if (s.modes.BaseMode) {
        remainder();
    } else if (s.entry.EexActive) {
        changeSignOfExponent();
    } else if (calc.entryText().empty()) {
        changeSignOfX();
    } else {
        changeSignOfEntry();
    }
}

void StackKeys::remainder() {
    EngineState& s = calc.s;
    if (!calc.entryText().empty()) {
        calc.commit.cmdEnter_Click();
    }
    const ValueCell rest = s.format.BaseRemainder.empty() ? "0" : s.format.BaseRemainder;
    calc.commit.deliver({.value = rest, .label = "Mod", .place = OnStack::Pushes});
}

void StackKeys::changeSignOfX() {
    EngineState& s = calc.s;
    s.entry.EntryOpen = false;
    takeTop();
    s.CurrentProc = "cmdChs";
    double value = 0.0;
    if (!goOn(calc, [&] { value = calc.xNumber(); })) {
        return;
    }
    s.stack.LastX = s.stack.Xreg;
    // Not by way of the text, which has fewer digits than the number.
    calc.commit.deliver({.value = 0.0 - value, .label = "CHS"});
}

void StackKeys::changeSignOfEntry() {
    const char decimal = calc.s.format.DecimalChar;
    const std::string typed = calc.entryText();
    if (const auto value = tryReadNumber(typed, decimal)) {
        const std::string turned = typed.starts_with('-') ? typed.substr(1) : "-" + typed;
        const std::string changed = plainText(0.0 - *value, decimal);
        // Digits may follow, so the text of the number is no good where it drops a point, zeros or
        // digits that were typed, or gets an exponent.
        const std::string_view point{&decimal, 1};
        const bool goesOn = withoutLeadingZero(changed, point) == withoutLeadingZero(turned, point);
        calc.setEntry(goesOn ? changed : turned);
    }
    calc.focusEntry();
}

void StackKeys::changeSignOfExponent() {
    const std::string typed = calc.entryText();
    const auto at = typed.find('e');
    if (at != std::string::npos) {
        const std::string mantissa = typed.substr(0, at);
        std::string exponent = typed.substr(at + 1);
        if (exponent.starts_with('-')) {
            exponent.erase(0, 1);
        } else {
            exponent.insert(0, 1, '-');
        }
        calc.setEntry(mantissa + "e" + exponent);
    }
    calc.focusEntry();
}

}  // namespace tallyforge
