// SPDX-License-Identifier: GPL-3.0-or-later
//
// Every key of the bank under every modifier, on stacks of several depths, one after the other: what
// each leaves on the stack and the tape, and what it says. Written down in tests/forms; the values themselves are
// compared with their sources in the rooms of their subjects.
#include "support/calculator_fixture.h"
#include "support/written_form.h"

#include "engine/key_names.h"
#include "keypads/keypad_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyforge {
namespace {

class WrittenKeys : public ::testing::Test, protected CalculatorAtHand {
protected:
    WrittenKeys() {
        platform.inDialog = [](Form& dialog) { closeForm(dialog); };
    }
    void prepare(Keypad keypad, const std::vector<std::string>& stack) {
        if (s().modes.QuizMode) {
            start();
        }
        calc().keypads().ShowKeypad(Keypad::Standard);
        calc().setEntry({});
        calc().s.stack = StackState{};
        calc().s.stack.StackPtr = 1;
        calc().s.stack.Yreg = ValueCell::zero();
        for (const std::string& number : stack) {
            calc().s.stack.Xreg = ValueCell(number);
            calc().s.entry.EntryOpen = true;
            calc().commit.deliverX();
        }
        calc().keypads().ShowKeypad(keypad);
        calc().tape.clear(0);
        platform.boxes.clear();
        platform.inputs.clear();
        platform.dialogs.clear();
    }
    /// Stack, new lines of the tape, boxes and dialogs, in one line.
    std::string left() {
        std::string text = "X " + x() + " Y " + calc().text(s().stack.Yreg) + " last " + calc().text(s().stack.LastX);
        text += " depth " + std::to_string(s().stack.depth());
        for (const std::string& line : tape()) {
            text += " | " + toUnicode(line, Face::Terminal);
        }
        for (const MessageBox& box : platform.boxes) {
            text += " [" + toUnicode(box.title + ": " + box.text.substr(0, 60), Face::Arial) + "]";
        }
        for (const std::string& dialog : platform.dialogs) {
            text += " (" + dialog + ")";
        }
        return text + (form().txtXreg.text.empty() ? "" : " entry " + form().txtXreg.text);
    }
    void press(const KeypadTable& table, std::size_t key, std::uint8_t mask, const std::vector<std::string>& stack) {
        prepare(table.id, stack);
        const std::string before = left();
        clickWith(mask, form().cmdFunctions.at(key));
        std::string words =
            std::string(table.name) + " " + std::to_string(key) + " under " + std::to_string(mask) + " of";
        for (const std::string& number : stack) {
            words += " " + number;
        }
        const std::string after = left();
        if (after == before) {
            return;
        }
        std::string line = words + ": " + after;
        std::replace(line.begin(), line.end(), '\n', '\\');
        all_.push_back(line);
    }

    Lines all_;
};

TEST_F(WrittenKeys, EachLeavesWhatIsWritten) {
    const std::vector<std::vector<std::string>> stacks{{}, {"0"}, {"2"}, {"12", "8", "0.5"}, {"1", "-3", "20"}};
    for (const KeypadTable* table : keypadTables()) {
        start();
        for (std::size_t key = 0; key < kBankKeys; ++key) {
            for (std::uint8_t mask = 0; mask < 8; ++mask) {
                for (const auto& stack : stacks) {
                    press(*table, key, mask, stack);
                }
            }
        }
    }
    expectAsWritten("key_presses", all_);
}

// The keys that take several numbers, one under each modifier: all of them but one, in turn.
TEST_F(WrittenKeys, EachSetOfInputsLeavesWhatIsWritten) {
    constexpr std::array kNumbers{"12", "8", "3", "5", "2", "30", "0.5", "1.5"};
    for (const KeypadTable* table : keypadTables()) {
        start();
        for (std::size_t key = 0; key < kBankKeys; ++key) {
            for (std::uint8_t without = 0; without < 8; ++without) {
                prepare(table->id, {});
                for (std::uint8_t mask = 0; mask < 8; ++mask) {
                    const KeyRow& row = table->rows.at(key);
                    if (mask == without || row.functionUnder(mask) == nullptr) {
                        continue;
                    }
                    type(kNumbers.at(mask));
                    clickWith(mask, form().cmdFunctions.at(key));
                }
                std::string line = std::string(table->name) + " " + std::to_string(key) + " without " +
                                   std::to_string(without) + ": " + left();
                std::replace(line.begin(), line.end(), '\n', '\\');
                all_.push_back(line);
            }
        }
    }
    expectAsWritten("key_sets", all_);
}

// Every key, option, row and menu entry of the form in every mode: where the keyboard is afterwards,
// and what stands.
TEST_F(WrittenKeys, EachClickOnTheFormLeavesWhatIsWritten) {
    using EntersMode = Control* (*)(MainForm&);
    const std::pair<std::string_view, EntersMode> modes[] = {{"standard", nullptr},
                                                             {"binary", [](MainForm& f) { return &f.mnuEngBinary; }},
                                                             {"program", [](MainForm& f) { return &f.cmdF11; }},
                                                             {"registers", [](MainForm& f) { return &f.cmdF12; }},
                                                             {"held", [](MainForm& f) { return &f.optKey.at(0); }}};
    for (const auto& [mode, enterMode] : modes) {
        start();
        for (std::size_t at = 0; at < form().controls().size(); ++at) {
            for (const std::string_view typed : {"", "12"}) {
                if (!form().controls().at(at)->click) {
                    continue;
                }
                start();
                enter("2");
                enter("3");
                if (enterMode != nullptr) {
                    choose(*enterMode(form()));
                }
                type(typed);
                Control& control = *form().controls().at(at);
                if (&control == &form().mnuFileExit) {
                    continue;
                }
                platform.boxes.clear();
                calc().tape.clear(0);
                s().entry.Dropped = '~';
                form().setFocus(form().lstStack);
                form().txtXreg.caret = 0;
                const std::string before = left();
                const bool taken = control.rows != nullptr ? clickRow(form(), control, 0) : click(form(), control);
                if (taken) {
                    const bool changed = left() != before;
                    all_.push_back(std::string(mode) + " \"" + std::string(typed) + "\" " + control.fullName() + ": " +
                                   form().focus->fullName() + " " + std::to_string(form().txtXreg.caret) +
                                   (s().entry.Dropped == '\0' ? "" : " dropped") + (changed ? " " + left() : ""));
                    std::replace(all_.back().begin(), all_.back().end(), '\n', '\\');
                }
            }
        }
    }
    expectAsWritten("form_clicks", all_);
}

TEST_F(WrittenKeys, AFactorialShowsAllItsDigitsUpToThatOfSixteen) {
    start();
    const KeypadTable& standard = keypadTable(Keypad::Standard);
    for (const char* number : {"12", "13", "16", "17", "18", "20", "22", "100"}) {
        press(standard, key::Factorial, 0, {number});
    }
    expectAsWritten("factorials", all_);
}

}  // namespace
}  // namespace tallyforge
