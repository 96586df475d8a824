// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/clipboard.h"

#include "engine/engine.h"
#include "shell/loose_number.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyforge {

namespace {

/// What a copied cell or line brings along around the number.
std::string_view withoutMargins(std::string_view text) {
    constexpr std::string_view kMargin = " \t\r\n";
    const auto first = text.find_first_not_of(kMargin);
    return first == text.npos ? std::string_view{} : text.substr(first, text.find_last_not_of(kMargin) - first + 1);
}

/// Most characters of a text that X takes: what is on the stack and on the tape lies in memory.
constexpr std::size_t kLongestText = 4096;

bool isBaseNumber(std::string_view text) {
    return text.starts_with('#') && std::string_view{"bdho"}.find(text.back()) != std::string_view::npos;
}

}  // namespace

void Clipboard::mnuCopy_Click() {
    calc.ClearOptKeys();
    calc.keypads().RepaintKeypad();
    calc.platform.setClipboardText(calc.text(calc.s.stack.Xreg));
}

void Clipboard::mnuPaste_Click() {
    calc.s.CurrentProc = "mnuPaste";
    calc.ClearOptKeys();
    calc.keypads().RepaintKeypad();
    if (!calc.entryText().empty()) {
        calc.commit.cmdEnter_Click();
    }
    take(calc.platform.clipboardText());
}

void Clipboard::pasteLoosely() {
    const std::string clipped = calc.platform.clipboardText();
    const std::vector<std::string> readings = looseReadings(clipped, calc.s.format.DecimalChar);
    if (readings.empty()) {
        return mnuPaste_Click();
    }
    std::string chosen = readings.front();
    if (readings.size() > 1) {
        const std::string text = "Read \"" + std::string(withoutMargins(clipped)) + "\" as " + readings[0] +
                                 "?\n\"No\" reads " + readings[1] + ".";
        if (!calc.question("Paste", text)) {
            chosen = readings[1];
        }
    }
    calc.ClearOptKeys();
    calc.keypads().RepaintKeypad();
    if (!calc.entryText().empty()) {
        calc.commit.cmdEnter_Click();
    }
    take(chosen);
}

void Clipboard::take(const std::string& clipped) {
    EngineState& s = calc.s;
    const std::string_view text = withoutMargins(clipped);
    if (text.empty()) {
        // A picture, or nothing at all.
        s.entry.EntryOpen = false;
        return;
    }
    if (text.size() > kLongestText) {
        s.entry.EntryOpen = false;
        calc.message(BoxKind::Notice, "Paste", "The text on the clipboard is too long for a number.");
        return calc.focusEntry();
    }
    const ValueCell before = std::exchange(s.stack.Xreg, text);
    const auto report = [&](const Failure& failure) {
        if (failure.number() != FailureNumber::TypeMismatch) {
            calc.reportNumber(failure);
        }
    };
    const bool isNumber = goOn(report, [&] { static_cast<void>(calc.xNumber()); });
    if (!isNumber && !isBaseNumber(s.stack.Xreg.textView())) {
        // X keeps the text, but for one that a function could have left as a sign.
        if (s.stack.Xreg.textView() == kNoMeaning || s.stack.Xreg.textView() == kNothingDone) {
            s.stack.Xreg = before;
        }
        s.entry.EntryOpen = false;
        return;
    }
    s.delivery.FnLabel = "Paste";
    calc.commit.pushRecalled();
}

}  // namespace tallyforge
