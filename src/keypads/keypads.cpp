// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/keypads.h"

#include "engine/engine.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace tallyforge {

namespace {

void run(const std::function<void()>& action) {
    if (action) {
        action();
    }
}

/// What the digits of a base may be, and how the user is told.
struct BaseDigits {
    char letter;
    std::string_view digits;
    std::string_view message;
};
constexpr std::array<BaseDigits, 4> kBaseDigits{{
    {'b', "01", "'b' is binary number\nOnes (1) and Zeros (0) Only!"},
    {'d', "0123456789", "'d' is decimal number\n(0 to 9) Only!"},
    {'o', "01234567", "'o' is octal number\n0 to 7 Only!"},
    {'h', "0123456789ABCDEF", "'h' is hexadecimal number\n(0 to 9, A to F) Only!"},
}};

}  // namespace

Keypads::Keypads(Engine& calculator)
    : model(calculator), keys{calculator}, dispatch(calculator, model, keys), arithmetic(calculator), calc(calculator) {
    calc.connect(*this);
    model.dressConversions = [this] { keys.conversions.dress(); };
    model.chosenCaption = [this](const KeyRow& row, std::uint8_t mask) { return row.captionNow(keys, mask); };
    arithmetic.bases = &keys.binary;
    hangOnForm();
}

void Keypads::hangOnForm() {
    MainForm& form = calc.form;
    for (int i = 0; i < kBankKeys; ++i) {
        Control& key = form.cmdFunctions.at(static_cast<std::size_t>(i));
        key.click = [this, i] { cmdFunctions_Click(i); };
        key.mouseDown = [this, i](MouseButton button, std::uint8_t shift) {
            dispatch.cmdFunctions_MouseDown(i, button, shift);
        };
    }
    for (int i = 0; i < static_cast<int>(form.cmdMath.size()); ++i) {
        form.cmdMath.at(static_cast<std::size_t>(i)).click = [this, i] { cmdMath_Click(i); };
    }
    for (int i = 0; i < static_cast<int>(form.optKey.size()); ++i) {
        form.optKey.at(static_cast<std::size_t>(i)).click = [this, i] { optKey_Click(i); };
    }
    for (const KeypadEntry& entry : form.keypadMenu()) {
        entry.control.click = [this, shown = entry.keypad] {
            model.show(shown);
            calc.focusEntry();
        };
    }
}

void Keypads::optKey_Click(int index) {
    EngineState& s = calc.s;
    constexpr int kNone = 7;
    calc.ClearOptKeys();
    for (int i = 0; i <= kNone; ++i) {
        calc.form.optKey.at(static_cast<std::size_t>(i)).checked = i == index;
    }
    if (index != kNone) {
        s.modifiers.ModifierMask = static_cast<std::uint8_t>(index + 1);
        s.modifiers.ModifierLatched = true;
        model.paint(s.modifiers.ModifierMask);
    }
    calc.LightModifiers(s.modifiers.ModifierMask);
    calc.focusEntry();
}

// The Convert keypad is lent for one press, and the one that was shown comes back.
template <typename Press>
void Keypads::onConvertKeypad(Press press) {
    const Keypad shown = calc.s.modes.ActiveKeypad;
    const bool lent = shown != Keypad::Convert;
    if (lent) {
        model.lay(Keypad::Convert);
    }
    calc.s.modifiers.ModifierMask = 0;
    press();
    if (lent) {
        model.lay(shown);
    }
}

void Keypads::PerformConvertFn() {
    const Keypad shown = calc.s.modes.ActiveKeypad;
    const bool bankIsLent = shown == Keypad::Program || shown == Keypad::MemoryArray;
    if (keys.conversions.memory.marked && !bankIsLent) {
        onConvertKeypad([this] { dispatch.cmdFunctions_Click(*keys.conversions.memory.marked); });
    }
    calc.focusEntry();
}

void Keypads::FindUnit() {
    static constexpr KeyRow kFind{.key = kBankKeys, .does = [](Keys& all) { all.conversions.findUnit(); }};
    const ModeState& modes = calc.s.modes;
    const bool onAKeypad =
        !modes.ProgramMode && !modes.MemoryArrayMode && !modes.QuizMode && modes.ActiveKeypad != Keypad::LetterDrill;
    if (onAKeypad) {
        onConvertKeypad([this] { dispatch.press(kFind); });
    }
    calc.focusEntry();
}

void Keypads::ToggleProgramMode() {
    run(above.toggleProgramMode);
}

void Keypads::ProgramLetter(int letter) {
    if (above.programLetter) {
        above.programLetter(letter);
    }
}

void Keypads::MemoryArray() {
    if (calc.s.modes.ActiveKeypad != Keypad::LetterDrill) {
        run(above.toggleMemoryArray);
    }
}

void Keypads::mnuCopy_Click() {
    run(above.copy);
}

void Keypads::mnuPaste_Click() {
    run(above.paste);
}

void Keypads::mnuProgram_Click() {
    run(above.loadProgram);
}

bool Keypads::ShowTips() {
    return above.showTips && above.showTips();
}

bool Keypads::CheckBaseDigits() {
    const std::string& typed = calc.entryText();
    for (const BaseDigits& base : kBaseDigits) {
        if (calc.s.entry.BaseLetter != std::string_view{&base.letter, 1}) {
            continue;
        }
        if (typed.find_first_not_of(base.digits, 1) == std::string::npos) {
            return true;
        }
        calc.message(BoxKind::Stop, "Syntax Error", base.message);
        return false;
    }
    return true;
}

void Keypads::EndQuiz() {
    keys.quiz.end();
}

void Keypads::cmdEnter_Click() {
    const bool nothingKeyed = calc.entryText().empty() && calc.s.modifiers.ModifierMask == 0;
    if (!keys.quiz.running()) {
        calc.commit.cmdEnter_Click();
    } else if (!nothingKeyed) {
        cmdFunctions_Click(Quiz::kKey);
    }
}

void Keypads::ClearPartialStates() {
    calc.s.functions.FunctionResetMask = static_cast<std::uint32_t>(ResetBit::All);
    keys.conversions.reset();
    keys.electrical.clearPartialStates();
}

void Keypads::ResetProgram() {
    run(above.resetProgram);
}

}  // namespace tallyforge
