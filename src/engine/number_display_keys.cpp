// SPDX-License-Identifier: GPL-3.0-or-later
//
// The format in force and the keys that choose it.
#include "engine/engine.h"
#include "engine/number_display.h"
#include "engine/tape_width.h"
#include "numbers/number_format.h"
#include "numbers/word_size.h"

#include <algorithm>
#include <string>
#include <utility>

namespace tallyforge {

namespace {

constexpr int kMinWordSize = 4;
constexpr int kMaxWordSize = 64;

}  // namespace

void NumberDisplay::DisplayChg() {
    if (!calc.tape.dropFiller()) {
        calc.form.lstDisplayReg.place.width = kWideTape;
    }
}

void NumberDisplay::SaveDisplay(int digits) {
    EngineState& s = calc.s;
    s.CurrentProc = "SaveDisplay";
    s.format.SavedMode = s.format.Mode;
    s.format.SavedDigits = s.format.DisplayDigits;
    s.format.DisplaySaved = true;
    optFix_Click(DisplayMode::Fixed);
    s.format.DisplayDigits = digits;
}

void NumberDisplay::RestoreDisplay() {
    EngineState& s = calc.s;
    if (!std::exchange(s.format.DisplaySaved, false)) {
        return;
    }
    s.format.DisplayDigits = s.format.SavedDigits;
    optFix_Click(s.format.SavedMode);
    writeDigitsCaption();
    calc.form.cmdChs.text = "C&HS";
    calc.form.cmdChs.tip = R"( Chg Sign - use \ key )";
    calc.form.cmdChs.enabled = true;
    calc.focusEntry();
    enableByteKeys(true);
}

void NumberDisplay::useFormat(DisplayMode mode, int digits) {
    calc.s.format.DisplaySaved = false;
    calc.s.format.DisplayDigits = digits;
    calc.s.format.SavedDigits = digits;
    optFix_Click(mode);
    writeDigitsCaption();
}

void NumberDisplay::enableByteKeys(bool enabled) {
    for (const std::size_t key : {3U, 20U, 8U, 9U}) {
        calc.form.cmdFunctions.at(key).enabled = enabled;
    }
}

void NumberDisplay::writeDigitsCaption() {
    const EngineState& s = calc.s;
    Control& key = calc.form.cmdDigits;
    key.text = s.modes.BaseMode ? "wrdsze(" + std::to_string(s.format.WordSize) + ")"
                                : "Display(" + std::to_string(s.format.DisplayDigits) + ")";
    key.tip =
        s.modes.BaseMode ? " Change Word Size (4 - 64) " : " Click: Change Display Digits | Rt. Click: Toggle Ht ";
}

void NumberDisplay::optFix_Click(DisplayMode mode) {
    calc.s.format.Mode = mode;
    for (std::size_t i = 0; i < calc.form.optFix.size(); ++i) {
        calc.form.optFix.at(i).checked = i == static_cast<std::size_t>(mode);
    }
    if (calc.s.window.FormActive) {
        calc.focusEntry();
    }
}

void NumberDisplay::cmdDigits_Click() {
    EngineState& s = calc.s;
    if (s.modifiers.ModifierMask != 0) {
        calc.ClearOptKeys();
        return;
    }
    s.CurrentProc = "cmdDigits_Click";
    const bool fromStack = calc.entryText().empty();
    if (fromStack && s.stack.StackPtr <= 1) {
        calc.message(BoxKind::Stop, "Nothing to do!", "Please enter a number.");
        calc.focusEntry();
        return;
    }
    const auto report = [&](const Failure& failure) {
        calc.reportIn("cmdDigits_Click", failure.code(), description(failure.number()));
    };
    double wanted = 0.0;
    const bool read = goOn(report, [&] {
        wanted =
            roundHalfEven(calc.number(fromStack ? s.stack.slot(s.stack.StackPtr - 1) : ValueCell{calc.entryText()}), 0);
    });
    calc.setEntry({});
    calc.focusEntry();
    s.entry.EntryOpen = false;
    s.entry.EexActive = false;
    if (!read || !(s.modes.BaseMode ? setWordSize(wanted) : setDigits(wanted)) || !fromStack) {
        return;
    }
    // The number was used up as the key's operand.
    s.stack.StackPtr -= 1;
    s.stack.LowestStackPtr = std::min(s.stack.LowestStackPtr, s.stack.StackPtr);
    if (s.stack.depth() > 0) {
        s.stack.Xreg = s.stack.slot(s.stack.StackPtr - 1);
        s.stack.Yreg = s.stack.slot(s.stack.StackPtr - 2);
        calc.commit.ShowSmallRegs();
    }
    calc.stackList.refresh();
}

bool NumberDisplay::setWordSize(double bits) {
    EngineState& s = calc.s;
    if (bits < kMinWordSize || bits > kMaxWordSize) {
        calc.message(BoxKind::Stop, "Out of Range!", "4 to 64 only for this function");
        return false;
    }
    s.format.WordSize = static_cast<int>(bits);
    writeDigitsCaption();
    enableByteKeys(s.format.WordSize >= kSmallestByteWord);
    return true;
}

bool NumberDisplay::setDigits(double digits) {
    EngineState& s = calc.s;
    if (digits < 0 || digits > kMaxDisplayDigits) {
        calc.message(BoxKind::Stop, "Out of Range!", "0 to 12 only for this function");
        return false;
    }
    s.format.DisplayDigits = static_cast<int>(digits);
    s.format.SavedDigits = s.format.DisplayDigits;
    writeDigitsCaption();
    return true;
}

}  // namespace tallyforge
