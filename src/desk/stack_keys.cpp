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

bool StackKeys::modifierActive() {
    if (calc.s.ModifierMask == 0) {
        return false;
    }
    calc.focusEntry();
    return true;
}

// X may be empty after a function that left nothing; the element on the stack is the number.
void StackKeys::takeTop() {
    EngineState& s = calc.s;
    if (s.depth() > 0) {
        s.Xreg = s.slot(s.StackPtr - 1);
        s.Yreg = s.slot(s.StackPtr - 2);
        if (s.Yreg.isEmpty()) {
            s.Yreg = ValueCell::zero();
        }
    }
}

void StackKeys::pushWithLabel(const char* label) {
    calc.s.EntryOpen = true;
    calc.s.ValueInXreg = true;
    calc.s.FnLabel = label;
    calc.commit.cmdEnter_Click();
}

void StackKeys::cmdDown_Click() {
    EngineState& s = calc.s;
    if (modifierActive()) {
        return;
    }
    // A number that is being typed is the one on top.
    if (s.EntryOpen && !calc.commit.FetchX()) {
        return;
    }
    if (s.StackPtr < 2) {
        calc.focusEntry();
        return;
    }
    takeTop();
    s.StackPtr -= 2;
    s.LastX = s.Xreg;
    s.Xreg = s.slot(s.StackPtr);
    pushWithLabel("Drop");
}

void StackKeys::cmdXchgY_Click() {
    EngineState& s = calc.s;
    if (modifierActive()) {
        return;
    }
    if (s.EntryOpen && !calc.commit.FetchX()) {
        return;
    }
    if (s.depth() == 0) {
        calc.focusEntry();
        return;
    }
    takeTop();
    if (s.depth() == 1) {
        // What is missing (a 0, or a result that stood below the stack) becomes the top, so that no
        // number goes below the stack.
        s.Xreg = s.Yreg;
    } else {
        s.StackPtr -= 1;
        s.Stack[static_cast<std::size_t>(s.StackPtr) - 1] = s.Xreg;
        s.Xreg = s.Yreg;
    }
    pushWithLabel("x<>y");
}

void StackKeys::cmdLastx_Click() {
    EngineState& s = calc.s;
    if (modifierActive()) {
        return;
    }
    const bool typing = !calc.entryText().empty();
    const bool exponent = s.EexActive;
    const bool tagDue = s.BaseTagDue;
    const bool tagged = s.BaseNumberDone;
    s.KeepEntryText = true;
    s.Xreg = s.LastX;
    pushWithLabel("Lastx");
    if (!typing) {
        calc.setEntry({});
        return;
    }
    // What was typed is still an open entry, so that the next digit goes on with it.
    s.EntryOpen = true;
    s.EexActive = exponent;
    s.BaseTagDue = tagDue;
    s.BaseNumberDone = tagged;
}

void StackKeys::cmdChs_Click() {
    EngineState& s = calc.s;
    if (modifierActive()) {
        return;
    }
    if (s.BaseMode) {
        remainder();
    } else if (s.EexActive) {
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
    s.Xreg = s.BaseRemainder.empty() ? "0" : s.BaseRemainder;
    pushWithLabel("Mod");
}

void StackKeys::changeSignOfX() {
    EngineState& s = calc.s;
    s.EntryOpen = false;
    takeTop();
    s.CurrentProc = "cmdChs";
    const auto report = [&](const Failure& failure) {
        calc.errorBox(BoxKind::Notice, "Error number " + std::to_string(failure.code()) + "!");
    };
    double value = 0.0;
    if (!goOn(report, [&] { value = calc.xNumber(); })) {
        return;
    }
    s.LastX = s.Xreg;
    // Not by way of the text, which has fewer digits than the number.
    s.Xreg = 0.0 - value;
    s.ValueInXreg = true;
    s.FnLabel = "CHS";
    calc.commit.cmdEnter_Click();
}

void StackKeys::changeSignOfEntry() {
    const char decimal = calc.s.DecimalChar;
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
