// SPDX-License-Identifier: GPL-3.0-or-later
//
// One session with every dialog, the same hand at each: numbers, "Use", other units, arrows, letters,
// every key. What each act changes on the dialog, and what is left behind it, is in tests/forms.
#include "support/all_dialogs.h"
#include "support/calculator_fixture.h"
#include "support/written_form.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tallyforge {
namespace {

/// What a user reads of a control, and whether it can be used.
std::string stateOf(const Control& control) {
    std::string text = control.fullName() + " " + written::quoted(control.text, control.font.face);
    text += control.enabled ? "" : " disabled";
    text += control.visible ? "" : " hidden";
    text += control.checked ? " checked" : "";
    text += control.tabStop ? "" : " no stop";
    if (control.rows != nullptr && control.rows->selected() < control.rows->count()) {
        text += " row " + written::quoted(control.rows->row(control.rows->selected()), control.font.face);
    }
    const std::size_t shapes = control.drawing.shapes.size();
    text += shapes == 0 ? "" : " of " + std::to_string(shapes) + " shapes";
    const bool told = !control.tip.empty() && control.kind != ControlKind::Option;
    return text + (told ? ", " + written::quoted(control.tip) : "");
}

/// Writes down what each act changes.
class Session {
public:
    Session(Form& dialog, const TestPlatform& desktop, Lines& lines) : form_(dialog), desktop_(desktop), lines_(lines) {
        lines_.push_back("== " + dialog.name + " " + written::quoted(dialog.title));
        note("opened", false);
    }
    void act(std::string_view words, const std::function<void()>& acts) {
        if (form_.open) {
            acts();
            note(words, true);
        }
    }
    void key(std::string_view words, int keyCode, int character = 0, std::uint8_t shift = 0) {
        act(words, [&] { strike(form_, keyCode, character, shift); });
    }
    void number(std::string_view text) {
        act("type " + std::string(text), [&] { strikeAll(form_, text); });
        key("Enter", kKeyEnter, 13);
    }
    /// Whether there is such a control and a hand can use it.
    bool clickOn(std::string_view name, int index = kNoIndex) {
        Control* control = form_.find(name, index);
        const bool there = form_.open && control != nullptr && control->enabled && control->visible;
        if (there) {
            act("click " + control->fullName(), [&] { click(form_, *control); });
        }
        return there;
    }

private:
    void note(std::string_view words, bool tells) {
        const std::string focus = form_.focus == nullptr ? "-" : form_.focus->fullName();
        lines_.push_back("> " + std::string(words) + " -> " + (form_.open ? focus : "closed"));
        for (const Control* control : form_.controls()) {
            const std::string line = stateOf(*control);
            std::string& known = known_[control];
            if (tells && known != line) {
                lines_.push_back(line);
            }
            known = line;
        }
        for (; boxes_ < desktop_.boxes.size(); ++boxes_) {
            const MessageBox& box = desktop_.boxes[boxes_];
            lines_.push_back("box " + written::quoted(box.title) + " " + written::quoted(box.text));
        }
    }

    Form& form_;
    const TestPlatform& desktop_;
    Lines& lines_;
    std::map<const Control*, std::string> known_;
    std::size_t boxes_ = 0;
};

/// The arrays of options on a dialog, by name.
std::vector<std::string> optionArrays(const Form& dialog) {
    std::vector<std::string> names;
    for (const Control* control : dialog.controls()) {
        const bool known = !names.empty() && names.back() == control->name;
        if (control->kind == ControlKind::Option && control->name != "optCalc" && !known) {
            names.push_back(control->name);
        }
    }
    return names;
}

/// Fills field after field until the dialog has solved.
void fillFields(Session& session, const Form& dialog) {
    for (const char* number : {"2.5", "40", "3", "0.5", "6", "12"}) {
        if (dialog.focus != nullptr && dialog.focus->name == "txtVal") {
            session.number(number);
        }
    }
}

void playAtFields(Session& session, Form& dialog) {
    fillFields(session, dialog);
    session.key("Ctrl+Tab", kKeyTab, 9, kCtrl);
    session.clickOn("optCalc", 1);
    fillFields(session, dialog);
    session.clickOn("cmdXreg");
    session.clickOn("optCalc", 0);
    session.key("Tab", kKeyTab, 9);
    fillFields(session, dialog);
    const std::string clears = dialog.find("cmdClear") != nullptr ? "cmdClear" : "cmdDefault";
    session.clickOn(clears);
    session.act("type -1e-3\\", [&] { strikeAll(dialog, "-1e-3\\"); });
    session.key("Esc", kKeyEscape, 27);
    session.number("1e200");
    session.number("1e200");
    session.clickOn(clears);
    session.number("1");
    session.number("0");
    for (const std::string& name : optionArrays(dialog)) {
        session.clickOn(name, 1);
    }
    session.clickOn("txtVal", 1);
    fillFields(session, dialog);
    session.clickOn("chkCu");
    session.clickOn("cmdXreg");
}

void playAtBanks(Session& session, Form& dialog) {
    session.key("Tab", kKeyTab, 9);
    for (const int arrow : {kKeyDown, kKeyRight, kKeyUp, kKeyLeft}) {
        session.key("arrow " + std::to_string(arrow), arrow);
    }
    session.key("letter k", 'K', 'k');
    session.key("Tab", kKeyTab, 9);
    session.key("Down", kKeyDown);
    session.clickOn("OptExact", 1);
    session.clickOn("cmdSwap");
    session.clickOn("cmdDef");
    session.act("find", [&] { dialog.setFocus(*dialog.find("txtFind")); });
    session.number("m");
    session.clickOn("cmdKeep");
}

void playAtChoices(Session& session, Form& dialog) {
    for (const std::string& name : optionArrays(dialog)) {
        session.clickOn(name, 1);
        session.key("Down", kKeyDown);
    }
    session.key("Tab", kKeyTab, 9);
    session.key("letter s", 'S', 's');
    session.key("Down", kKeyDown);
    session.key("Tab", kKeyTab, 9);
    for (const Control* control : dialog.controls()) {
        if (control->kind == ControlKind::Check || control->kind == ControlKind::Field) {
            session.clickOn(control->name, control->index);
            session.number("3");
        }
    }
    session.key("Shift+Tab", kKeyTab, 9, kShift);
    session.key("Enter", kKeyEnter, 13);
}

struct Sessions {
    Lines calculators, conversions, others;
};

/// Plays on each dialog that the bank opens, and writes down what that leaves.
Sessions playedSessions() {
    Sessions all;
    std::set<std::string> seen;
    for (const KeypadTable* table : keypadTables()) {
        for (std::size_t key = 0; key < kBankKeys; ++key) {
            CalculatorAtHand hand;
            Lines* played = nullptr;
            hand.platform.inDialog = [&](Form& dialog) {
                if (seen.insert(dialogKey(dialog)).second) {
                    const bool calculates = dialog.find("cmdXreg") != nullptr;
                    const bool converts = dialog.find("cmdSwap") != nullptr;
                    played = calculates ? &all.calculators : converts ? &all.conversions : &all.others;
                    Session session(dialog, hand.platform, *played);
                    (calculates ? playAtFields : converts ? playAtBanks : playAtChoices)(session, dialog);
                }
                if (dialog.open && !closeForm(dialog)) {
                    dialog.open = false;
                }
            };
            for (const std::uint8_t mask : {kNoModifier, kCtrl}) {
                hand.calc().keypads().ShowKeypad(table->id);
                hand.enter("7");
                hand.clickWith(mask, hand.form().cmdFunctions.at(key));
                rightClick(hand.form(), hand.form().cmdFunctions.at(key), mask);
                if (Lines* lines = std::exchange(played, nullptr); lines != nullptr) {
                    lines->push_back("= left: X " + hand.x());
                    for (const std::string& line : hand.tape()) {
                        lines->push_back("  " + written::quoted(line, Face::Terminal));
                    }
                }
            }
        }
    }
    return all;
}

/// The numbers of `texts`, and a number of a base on the Binary keypad, brought into each dialog with
/// fields under every modifier.
Lines broughtIn(const std::vector<std::string>& texts) {
    Lines lines;
    for (const KeypadTable* table : keypadTables()) {
        for (std::size_t key = 0; key < kBankKeys; ++key) {
            CalculatorAtHand hand;
            std::string words;
            bool shown = false;
            hand.platform.inDialog = [&](Form& dialog) {
                shown = dialog.find("cmdXreg") != nullptr;
                std::string line = dialog.name + words + " -> " + dialog.focus->fullName();
                for (const Control* control : dialog.controls()) {
                    const bool filled = control->kind == ControlKind::Field && !control->text.empty();
                    line += filled ? " " + control->fullName() + " " + written::quoted(control->text) : "";
                }
                if (shown) {
                    lines.push_back(line);
                }
                closeForm(dialog);
            };
            for (const std::string& text : texts) {
                for (std::uint8_t mask = 0; mask < 8 && (mask == 0 || shown); ++mask) {
                    hand.calc().s.stack.StackPtr = 1;
                    hand.calc().commit.enterStored(0.0);
                    hand.calc().s.stack.Stack.at(1) = ValueCell(text);
                    hand.calc().s.stack.Xreg = ValueCell(text);
                    hand.calc().keypads().ShowKeypad(table->id);
                    words = " with " + text + " under " + std::to_string(mask);
                    hand.clickWith(mask, hand.form().cmdFunctions.at(key));
                }
            }
        }
    }
    return lines;
}

TEST(WrittenSessions, NumbersAreBroughtIntoTheirFieldsAsIsWritten) {
    expectAsWritten("brought_in", broughtIn({"7", "0", "1", "-2", "#1Fh"}));
}

TEST(WrittenSessions, EachDialogAnswersTheSameHandAsIsWritten) {
    const Sessions sessions = playedSessions();
    expectAsWritten("calculator_sessions", sessions.calculators);
    expectAsWritten("conversion_sessions", sessions.conversions);
    expectAsWritten("other_sessions", sessions.others);
}

}  // namespace
}  // namespace tallyforge
