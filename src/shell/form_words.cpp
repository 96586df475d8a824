// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/form_words.h"

#include "engine/engine.h"
#include "engine/number_display.h"
#include "keypads/caption_words.h"
#include "platform/form_input.h"
#include "platform/key_codes.h"
#include "shell/clipboard.h"
#include "shell/help_topics.h"
#include "shell/loose_number.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace tallyforge {

namespace {

/// The beginning of a text that is too long for a line.
std::string shortened(const std::string& text) {
    constexpr std::size_t kLongest = 40;
    constexpr std::string_view kGoesOn = "...";
    return text.size() <= kLongest ? text : text.substr(0, kLongest - kGoesOn.size()) + std::string(kGoesOn);
}

/// X as the display shows numbers; nothing before the first one.
std::string restingX(const Engine& calc) {
    const ValueCell& x = calc.s.stack.Xreg;
    const auto number = x.isTagged() ? std::nullopt : x.tryNumber(calc.s.format.DecimalChar);
    // A text that was refused rests there before the first number, too.
    if (x.isEmptyText() || (calc.s.stack.depth() == 0 && (number || x.isTagged()))) {
        return {};
    }
    if (!number) {
        const std::string text = calc.text(x);
        return x.isTagged() ? text : '"' + shortened(text) + '"';
    }
    const NumberLook look{
        .mode = calc.s.format.Mode, .digits = calc.s.format.DisplayDigits, .decimal = calc.s.format.DecimalChar};
    return NumberDisplay::shownNumber(*number, look, 0);
}

/// What a key of the bank does under the modifiers in force.
std::string bankWords(const Engine& calc, const Control& key) {
    const EngineState& s = calc.s;
    if (s.modes.MemoryArrayMode) {
        // The keys stand for registers: what a register holds.
        std::string name = key.text;
        for (int number = 1; number <= kRegisters; ++number) {
            if (keyOfRegister(number) == key.index) {
                const std::string held = calc.text(s.memory.Registers.at(static_cast<std::size_t>(number)));
                return name + ": " + (held.empty() ? "empty" : held);
            }
        }
        return name;
    }
    if (s.modes.ProgramMode) {
        return {};
    }
    std::string caption = toUnicode(key.text, key.font.face);
    std::replace(caption.begin(), caption.end(), '\n', ' ');
    const std::string words = keyWords(s.modes.ActiveKeypad, key.index, s.modifiers.ModifierMask, caption);
    // On the Tables keypad a key without a meaning under a modifier stays visible.
    return words.empty() && !s.modes.TablesShown ? fromUnicode(caption) : fromUnicode(words);
}

/// What X holds since a paste was refused, and how it can be read all the same.
std::string refusedText(const Engine& calc) {
    const ValueCell& x = calc.s.stack.Xreg;
    if (x.isEmptyText() || x.isTagged() || x.tryNumber(calc.s.format.DecimalChar)) {
        return {};
    }
    const std::string text = calc.text(x);
    if (text.empty()) {
        return {};
    }
    const std::vector<std::string> readings = looseReadings(text, calc.s.format.DecimalChar);
    return '"' + shortened(text) + "\" is no number" +
           (readings.empty() ? "" : "; Shift+Ctrl+V reads " + shortened(readings.front()));
}

/// Why the line did not take what was typed; nothing where it did.
std::string dropped(const Engine& calc) {
    const char typed = calc.s.entry.Dropped;
    if (typed == '\0') {
        return {};
    }
    const char decimal = calc.s.format.DecimalChar;
    const std::string& line = calc.form.txtXreg.text;
    if (line.size() >= calc.form.txtXreg.maxLength) {
        return "The entry line is full";
    }
    if (typed == decimal && line.find(decimal) != std::string::npos) {
        return std::string("There is a \"") + decimal + "\" already";
    }
    if (typed == '.' || typed == ',') {
        return std::string("The decimal character is \"") + decimal + '"';
    }
    return std::string("\"") + typed + "\" has no meaning here";
}

std::string statusLine(const Engine& calc) {
    const EngineState& s = calc.s;
    const bool latched = !calc.form.optKey.back().checked;
    if (calc.form.shaAlt.visible && !latched) {
        return "Alt: click Alt below, then the key";
    }
    if (latched) {
        return "Held for the next key";
    }
    if (std::string refused = refusedText(calc); !refused.empty()) {
        return refused;
    }
    if (!s.modes.BaseMode) {
        return {};
    }
    return calc.form.lblBank.text + ", " + std::to_string(s.format.WordSize) + " bits";
}

/// Keys beside the bank that do nothing under the modifiers in force.
void hangIdle(Engine& calc) {
    MainForm& form = calc.form;
    const auto idleUnder = [&calc](Control& key, bool (*idle)(const EngineState&, std::uint8_t mask)) {
        key.idle = [&calc, idle] { return idle(calc.s, calc.s.modifiers.ModifierMask); };
    };
    for (Control* key : {&form.cmdDown, &form.cmdXchgY, &form.cmdChs, &form.cmdLastx, &form.cmdEex, &form.cmdF11}) {
        idleUnder(*key, [](const EngineState&, std::uint8_t mask) { return mask != 0; });
    }
    idleUnder(form.cmdF12, [](const EngineState& s, std::uint8_t mask) {
        return mask > kShift || (mask == kShift && s.modifiers.ModifierLatched);
    });
    idleUnder(form.cmdDigits, [](const EngineState&, std::uint8_t mask) { return mask != 0 && mask != kCtrl; });
    idleUnder(form.cmdView, [](const EngineState& s, std::uint8_t mask) {
        return mask != 0 && (s.window.ViewExtended || (mask != kAlt && mask != kCtrl));
    });
    idleUnder(form.cmdReset, [](const EngineState& s, std::uint8_t mask) {
        const bool meant = mask == 0 || mask == kCtrl || mask == kAlt || mask == (kShift | kCtrl | kAlt);
        return !meant && !s.modes.ProgramMode;
    });
    for (Control& key : form.cmdMath) {
        idleUnder(key,
                  [](const EngineState&, std::uint8_t mask) { return mask != 0 && mask != kCtrl && mask != kAlt; });
    }
}

void hangFunctionKeys(Engine& calc, Clipboard& clipboard) {
    MainForm& form = calc.form;
    const std::array<Control*, 7> chosen{&form.optDeg,    &form.optRad,    &form.optGrad, &form.optFix[0],
                                         &form.optFix[1], &form.optFix[2], &form.cmdView};
    form.preview = [&form, &clipboard, chosen](KeyEvent event) {
        if (event.keyCode == 'V' && event.shift == (kShift | kCtrl)) {
            clipboard.pasteLoosely();
            return true;
        }
        constexpr int kF2 = kKeyF1 + 1;
        const int at = event.keyCode - kF2;
        if (event.shift != 0 || at < 0 || at >= static_cast<int>(chosen.size())) {
            return false;
        }
        click(form, *chosen.at(static_cast<std::size_t>(at)));
        return true;
    };
}

}  // namespace

void hangWords(Engine& calc, Clipboard& clipboard) {
    MainForm& form = calc.form;
    form.txtXreg.resting = [&calc] { return restingX(calc); };
    form.lstDisplayReg.resting = [&calc] {
        return showsFirstSteps(calc) ? std::string("3 Enter 4 + gives 7\nF1 shows help\nUp and Down change the keypad")
                                     : std::string{};
    };
    for (Control& key : form.cmdFunctions) {
        key.words = [&calc, &key] { return bankWords(calc, key); };
    }
    hangIdle(calc);
    form.mnuCopy.shortCut = "Ctrl+C";
    form.mnuPaste.shortCut = "Ctrl+V";
    form.mnuHelpIntro.shortCut = "F1";
    form.status = [&calc] { return statusLine(calc); };
    form.notice = [&calc] { return dropped(calc); };
    form.copyText = [&calc](std::string_view text) { calc.platform.setClipboardText(text); };
    hangFunctionKeys(calc, clipboard);
}

}  // namespace tallyforge
