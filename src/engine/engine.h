// SPDX-License-Identifier: GPL-3.0-or-later
//
// The spine: state, form, tape, display and commit of one calculator, wired together. Whoever
// makes a number for the calculator is given an Engine. There is no global one; a test makes as
// many as it likes.
#pragma once

#include "engine/commit.h"
#include "engine/engine_state.h"
#include "engine/idle_keypads.h"
#include "engine/keypad_port.h"
#include "engine/main_form.h"
#include "engine/number_display.h"
#include "engine/stack_list.h"
#include "engine/tape.h"
#include "engine/unit_words.h"
#include "numbers/failure.h"
#include "platform/platform.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace tallyforge {

class Engine {
public:
    explicit Engine(Platform& desktop);
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    Platform& platform;
    MainForm form;
    EngineState s;
    Tape tape;
    StackList stackList;
    NumberDisplay display;
    Commit commit;
    /// Units in force, as the settings hold them until a dialog changes them.
    UnitWords units;

    /// The folder of all data files; set at start.
    std::filesystem::path AppDataDir;
    /// Cuts the digits of a number of base `letter` to the word size; answered by the number bases.
    std::function<std::string(std::string_view digits, char letter, int wordSize)> cutToWord;
    /// A dialog is open over the main form.
    bool dialogOpen = false;
    /// A program runs and nobody watches its single steps: what is for the eye alone (row marks,
    /// small registers) waits for showPending().
    bool unwatched = false;
    /// Writes what waited while the calculator was unwatched.
    void showPending();

    [[nodiscard]] KeypadPort& keypads() const { return *keypads_; }
    /// Must be called before the first key; the port outlives the engine.
    void connect(KeypadPort& port) { keypads_ = &port; }

    /// X as number or as plain text, by the locale.
    [[nodiscard]] double xNumber() const { return s.stack.Xreg.number(s.format.DecimalChar); }
    [[nodiscard]] double number(const ValueCell& cell) const { return cell.number(s.format.DecimalChar); }
    [[nodiscard]] std::string text(const ValueCell& cell) const { return cell.text(s.format.DecimalChar); }
    /// `cell` by `pattern`; a text that is no number as it stands.
    [[nodiscard]] std::string patternText(const ValueCell& cell, std::string_view pattern) const;

    /// A message box with an OK button. `title` as it stands.
    void message(BoxKind kind, std::string_view title, std::string_view text);
    /// Message box titled `CurrentProc` + " Error!".
    void errorBox(BoxKind kind, std::string_view text);
    /// "Error number N!" under the title of the procedure, for a handler to report a failure with.
    void reportNumber(const Failure& failure);
    /// A Yes/No question.
    [[nodiscard]] bool question(std::string_view title, std::string_view text);
    /// "Error N (description) in procedure NAME of Form frm_Tallyforge", stop icon.
    void reportIn(std::string_view procedure, int number, std::string_view what);

    // Lamps and on-screen modifiers.
    void LightModifiers(std::uint8_t mask);
    void ClearOptKeys();

    /// Gives the entry line the keyboard, caret behind its last character.
    void focusEntry();
    [[nodiscard]] std::string& entryText() { return form.txtXreg.text; }
    /// Puts `text` into the entry line. What was begun in a line that is emptied ends with it.
    void setEntry(std::string_view text) {
        if (text.empty()) {
            s.entry.EexActive = false;
            s.entry.BaseTagDue = false;
            s.entry.BaseNumberDone = false;
        }
        form.txtXreg.caret = text.size();
        if (!text.empty() || !form.txtXreg.text.empty()) {
            form.txtXreg.text = text;
        }
    }
    /// The empty-line rule: with nothing typed a function works on the X that is on the stack.
    void closeEmptyEntry() {
        if (form.txtXreg.text.empty()) {
            s.entry.EntryOpen = false;
        }
    }

private:
    IdleKeypads idle_;
    KeypadPort* keypads_ = &idle_;
};

/// goOn() of a handler that tells a failure by its number.
template <typename Statement>
bool goOn(Engine& calc, Statement&& statement) {
    return goOn([&](const Failure& failure) { calc.reportNumber(failure); }, std::forward<Statement>(statement));
}

}  // namespace tallyforge
