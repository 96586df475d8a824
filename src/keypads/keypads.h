// SPDX-License-Identifier: GPL-3.0-or-later
//
// The keypads put together: model, modifier keys, dispatch and arithmetic, hung on the form, and
// the engine's port answered. What lives above (Program mode, clipboard, tips) comes in by Above.
#pragma once

#include "engine/keypad_port.h"
#include "keypads/arithmetic_keys.h"
#include "keypads/dispatch.h"
#include "keypads/keypad_model.h"
#include "keypads/keys.h"

#include <functional>

namespace tallyforge {

class Keypads final : public KeypadPort {
public:
    /// What the rooms above do; an empty function does nothing.
    struct Above {
        std::function<void()> toggleProgramMode;
        std::function<void(int letter)> programLetter;
        std::function<void()> toggleMemoryArray;
        std::function<void()> copy;
        std::function<void()> paste;
        std::function<void()> loadProgram;
        std::function<bool()> showTips;
        std::function<void()> resetProgram;
    };

    explicit Keypads(Engine& calculator);

    /// An on-screen modifier: index + 1 is its mask, 7 means none. It stays until a key uses it.
    void optKey_Click(int index);

    /// The Enter key: the commit, and in a quiz the key of the answer.
    void cmdEnter_Click();
    void cmdFunctions_Click(int index) override { dispatch.cmdFunctions_Click(index); }
    void cmdMath_Click(int index) override { arithmetic.cmdMath_Click(index); }
    void PaintModifiers(std::uint8_t mask) override { model.paint(mask); }
    void RepaintKeypad() override { model.repaint(); }
    void ShowKeypad(Keypad keypad) override { model.show(keypad); }
    void NextKeypad() override { model.next(); }
    void PrevKeypad() override { model.previous(); }
    void KeypadHistoryBack() override { model.historyBack(); }
    void KeypadHistoryForward() override { model.historyForward(); }
    void PerformConvertFn() override;
    void FindUnit() override;
    void ToggleProgramMode() override;
    void ProgramLetter(int letter) override;
    void MemoryArray() override;
    void mnuCopy_Click() override;
    void mnuPaste_Click() override;
    void mnuProgram_Click() override;
    bool ShowTips() override;
    bool CheckBaseDigits() override;
    void EndQuiz() override;
    void ClearPartialStates() override;
    void ResetProgram() override;

    Above above;
    KeypadModel model;
    Keys keys;
    Dispatch dispatch;
    ArithmeticKeys arithmetic;

private:
    void hangOnForm();
    template <typename Press>
    void onConvertKeypad(Press press);

    Engine& calc;
};

}  // namespace tallyforge
