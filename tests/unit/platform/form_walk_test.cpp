// SPDX-License-Identifier: GPL-3.0-or-later
//
// The walk by keyboard over a form whose typing has a field of its own, and the steps within a list.
#include "platform/form_walk.h"

#include "platform/form_acts.h"
#include "platform/form_focus.h"
#include "platform/key_codes.h"
#include "platform/row_texts.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace tallyforge {
namespace {

/// A line to type in, a list, a bank of twelve keys in three rows of four, and three options.
class Bank : public Form {
public:
    Bank() : Form("frmBank", "Bank") {
        put(line, "txtLine", ControlKind::Field, 1, {.left = 0, .top = 0, .width = 400, .height = 100});
        put(list, "lstRows", ControlKind::List, 2, {.left = 0, .top = 100, .width = 400, .height = 100});
        // Enrolled from the last to the first: the order is that of their places.
        for (int i = 11; i >= 0; --i) {
            put(keys.at(static_cast<std::size_t>(i)), "cmdKey", ControlKind::Key, 3,
                {.left = i % 4 * 100, .top = 300 + i / 4 * 100, .width = 80, .height = 80}, i);
        }
        for (int i = 0; i < 3; ++i) {
            put(options.at(static_cast<std::size_t>(i)), "optKind", ControlKind::Option, 4,
                {.left = 0, .top = 700 + i * 50, .width = 80, .height = 40}, i);
        }
        put(label, "lblPlain", ControlKind::Label, 2, {.left = 0, .top = 90, .width = 10, .height = 10});
        list.rows = &rows;
        typing = &line;
        focus = &line;
        line.keyPress = [this](int& character) { log += std::string("press ") + static_cast<char>(character) + " "; };
        list.click = [this] { log += "row "; };
        list.doubleClick = [this] { log += "twice "; };
        copyText = [this](std::string_view text) { copied = text; };
        for (Control& key : keys) {
            key.click = [this, &key] { log += key.fullName() + " "; };
            key.mouseUp = [this](MouseButton, std::uint8_t shift) { up = shift; };
        }
    }

    std::string press(int keyCode, std::uint8_t shift = 0, int character = 0) {
        pressKey(*this, {.keyCode = keyCode, .shift = shift, .character = character});
        return at();
    }
    [[nodiscard]] std::string at() const { return tabbedTo == nullptr ? "-" : tabbedTo->fullName(); }

    Control line, list, label;
    std::array<Control, 12> keys;
    std::array<Control, 3> options;
    RowTexts rows{{"  alpha", "beta", "9 bits", "Bread", " ", "last"}};
    std::string log;
    std::string copied = "nothing";
    int up = -1;

private:
    void put(Control& control, const char* controlName, ControlKind kind, int stop, const Place& at,
             int index = kNoIndex) {
        control.name = controlName;
        control.kind = kind;
        control.index = index;
        control.walkStop = stop;
        control.place = at;
        enrol(control);
    }
};

TEST(FormWalk, TabGoesFromStopToStopAndBack) {
    Bank bank;
    EXPECT_EQ(bank.press(kKeyTab), "lstRows");
    EXPECT_EQ(bank.press(kKeyTab), "cmdKey(0)") << "the first in reading order";
    EXPECT_EQ(bank.press(kKeyTab), "optKind(0)");
    EXPECT_EQ(bank.press(kKeyTab), "-") << "the line itself";
    EXPECT_EQ(bank.press(kKeyTab, kShift), "optKind(0)");
    EXPECT_EQ(bank.press(kKeyTab, kShift), "cmdKey(0)");
    EXPECT_EQ(bank.press(kKeyTab, kShift), "lstRows");
    EXPECT_EQ(bank.press(kKeyTab, kShift), "-");
    EXPECT_EQ(bank.press(kKeyTab, kCtrl), "-");
    EXPECT_EQ(bank.press(kKeyTab, kAlt), "-");
    bank.line.walkStop = 0;
    EXPECT_EQ(bank.press(kKeyTab), "-") << "no walk on a form without stops";
}

TEST(FormWalk, TabPassesOverWhatTakesNoInput) {
    Bank bank;
    bank.list.enabled = false;
    bank.keys.at(0).visible = false;
    bank.options.at(2).checked = true;
    EXPECT_EQ(bank.press(kKeyTab), "cmdKey(1)");
    EXPECT_EQ(bank.press(kKeyTab), "optKind(2)") << "at the chosen option";
    bank.options.at(2).place.width = 0;
    EXPECT_EQ(bank.press(kKeyTab, kShift), "cmdKey(1)");
    EXPECT_EQ(bank.press(kKeyTab), "optKind(0)") << "what has no width is not there";
    bank.keys.at(3).place.top -= 1;
    EXPECT_EQ(bank.press(kKeyTab, kShift), "cmdKey(3)") << "higher goes before farther left";
}

TEST(FormWalk, ArrowsGoToTheNeighbourAndStayAtTheEdge) {
    for (int from = 0; from < 12; ++from) {
        const int row = from / 4;
        const int column = from % 4;
        const auto expected = [](int toRow, int toColumn) {
            return "cmdKey(" + std::to_string(toRow * 4 + toColumn) + ")";
        };
        const auto step = [&](int arrow) {
            Bank bank;
            bank.tabbedTo = &bank.keys.at(static_cast<std::size_t>(from));
            return bank.press(arrow);
        };
        EXPECT_EQ(step(kKeyLeft), expected(row, std::max(column - 1, 0))) << from;
        EXPECT_EQ(step(kKeyRight), expected(row, std::min(column + 1, 3))) << from;
        EXPECT_EQ(step(kKeyUp), expected(std::max(row - 1, 0), column)) << from;
        EXPECT_EQ(step(kKeyDown), expected(std::min(row + 1, 2), column)) << from;
    }
}

TEST(FormWalk, ArrowsPassOverGapsAndTakeWhatLiesOffTheLineLast) {
    Bank bank;
    bank.keys.at(1).enabled = false;
    bank.tabbedTo = &bank.keys.at(0);
    EXPECT_EQ(bank.press(kKeyRight), "cmdKey(2)");
    // Farther off than along is no neighbour.
    bank.keys.at(2).visible = bank.keys.at(3).visible = false;
    bank.tabbedTo = &bank.keys.at(0);
    EXPECT_EQ(bank.press(kKeyRight), "cmdKey(6)") << "two along and one down";
    bank.keys.at(6).visible = false;
    bank.tabbedTo = &bank.keys.at(0);
    EXPECT_EQ(bank.press(kKeyRight), "cmdKey(7)");
    bank.keys.at(7).visible = false;
    bank.tabbedTo = &bank.keys.at(0);
    EXPECT_EQ(bank.press(kKeyRight), "cmdKey(11)") << "three along and two down";
    bank.keys.at(11).visible = false;
    bank.tabbedTo = &bank.keys.at(0);
    EXPECT_EQ(bank.press(kKeyRight), "cmdKey(0)") << "what lies as far off as along is none";
    // Of two at one distance the first on the form stays.
    Bank wide;
    wide.keys.at(4).visible = wide.keys.at(8).visible = false;
    wide.keys.at(5).place.left = 0;
    wide.tabbedTo = &wide.keys.at(0);
    EXPECT_EQ(wide.press(kKeyDown), "cmdKey(5)");
}

TEST(FormWalk, SpacePressesWithTheModifiersThatAreHeldAndEndsTheWalk) {
    Bank bank;
    bank.tabbedTo = &bank.keys.at(5);
    EXPECT_EQ(bank.press(kKeySpace, kShift, ' '), "-");
    EXPECT_EQ(bank.log, "cmdKey(5) ");
    EXPECT_EQ(bank.up, kShift);
    EXPECT_FALSE(bank.line.text.starts_with(' '));
}

TEST(FormWalk, EscAndTypingLeadBackToTheLine) {
    Bank bank;
    bank.press(kKeyTab);
    EXPECT_EQ(bank.press(kKeyEscape, 0, 27), "-");
    EXPECT_EQ(bank.log, "") << "the Esc ends the walk and nothing else";
    bank.press(kKeyTab);
    bank.press(kKeyTab);
    EXPECT_EQ(bank.press('7', 0, '7'), "-");
    EXPECT_EQ(bank.log, "press 7 ");
    bank.tabbedTo = &bank.keys.at(3);
    bank.keys.at(3).enabled = false;
    EXPECT_EQ(bank.press(kKeyDown), "-") << "what it stood on is gone";
}

TEST(FormWalk, AListIsWalkedByArrowsPagesAndLetters) {
    Bank bank;
    bank.press(kKeyTab);
    const auto row = [&](int keyCode, int character = 0) {
        EXPECT_EQ(bank.press(keyCode, 0, character), "lstRows");
        return bank.rows.selected();
    };
    EXPECT_EQ(row(kKeyDown), 0U);
    EXPECT_EQ(row(kKeyDown), 1U);
    EXPECT_EQ(row(kKeyUp), 0U);
    EXPECT_EQ(row(kKeyEnd), 5U);
    EXPECT_EQ(row(kKeyHome), 0U);
    EXPECT_EQ(row('B', 'b'), 1U);
    EXPECT_EQ(row('B', 'b'), 3U) << "the next one with that letter";
    EXPECT_EQ(row('B', 'b'), 1U) << "around the end";
    EXPECT_EQ(row('A', 'a'), 0U) << "blanks before it do not count";
    EXPECT_EQ(bank.log, "") << "a row that is walked over is not taken";
    EXPECT_EQ(bank.press('9', 0, '9'), "-") << "a digit is typed, whatever a row begins with";
    EXPECT_EQ(bank.rows.selected(), 0U);
}

TEST(FormWalk, EnterTakesTheRowAndCtrlCCopiesIt) {
    Bank bank;
    bank.press(kKeyTab);
    EXPECT_EQ(bank.press('C', kCtrl, 3), "-") << "no row is chosen";
    EXPECT_EQ(bank.copied, "nothing");
    EXPECT_EQ(bank.log, "press \x03 ") << "that is the form's own Ctrl+C";
    bank.log.clear();
    bank.press(kKeyTab);
    bank.press(kKeyHome);
    EXPECT_EQ(bank.press('C', kCtrl, 3), "lstRows");
    EXPECT_EQ(bank.copied, "alpha");
    bank.rows.select(4);
    EXPECT_EQ(bank.press('C', kCtrl, 3), "lstRows");
    EXPECT_EQ(bank.copied, "") << "a row of blanks";
    EXPECT_EQ(bank.press(kKeyEnter, 0, 13), "-");
    EXPECT_EQ(bank.log, "twice ");
    bank.list.doubleClick = nullptr;
    bank.press(kKeyTab);
    bank.press(kKeyEnter, 0, 13);
    EXPECT_EQ(bank.log, "twice row ") << "a list without a double click takes a click";
    bank.press(kKeyTab);
    EXPECT_EQ(bank.press(kKeyDown, kCtrl), "-") << "with Ctrl it is no step";
    bank.rows.assign({});
    bank.press(kKeyTab);
    EXPECT_EQ(bank.press(kKeyDown), "-") << "there is nothing to walk in";
}

TEST(RowByKey, PagesStepByEightAndStayWithinTheRows) {
    std::vector<std::string> texts;
    for (int i = 0; i < 20; ++i) {
        texts.push_back(std::string(1, static_cast<char>('a' + i)));
    }
    RowTexts rows(texts);
    const auto from = [&](std::size_t here, int keyCode, int character = 0) {
        rows.select(here);
        return rowByKey(rows, {.keyCode = keyCode, .character = character});
    };
    constexpr std::size_t kNone = 20;
    EXPECT_EQ(from(kNone, kKeyUp), 19U);
    EXPECT_EQ(from(kNone, kKeyDown), 0U);
    EXPECT_EQ(from(kNone, kKeyPageUp), 0U);
    EXPECT_EQ(from(kNone, kKeyPageDown), 19U);
    EXPECT_EQ(from(0, kKeyUp), 0U);
    EXPECT_EQ(from(19, kKeyDown), 19U);
    EXPECT_EQ(from(5, kKeyPageDown), 13U);
    EXPECT_EQ(from(12, kKeyPageDown), 19U);
    EXPECT_EQ(from(13, kKeyPageUp), 5U);
    EXPECT_EQ(from(7, kKeyPageUp), 0U);
    EXPECT_EQ(from(8, kKeyPageUp), 0U);
    EXPECT_EQ(from(kNone, 'A', 'a'), 0U);
    EXPECT_EQ(from(kNone, 'T', 't'), 19U);
    EXPECT_EQ(from(3, 'D', 'd'), 3U) << "the only one with that letter";
    EXPECT_EQ(from(3, 'Z', 'z'), kNone);
    EXPECT_EQ(from(3, 'D', 0), kNone) << "a key that types nothing";
    rows.assign({"+x", "-y"});
    EXPECT_EQ(rowByKey(rows, {.keyCode = kKeyPunctuation, .character = '-'}), 2U) << "signs lead nowhere";
}

/// A dialog of four kinds of controls.
class Mixed : public Form {
public:
    Mixed() : Form("frmMixed", "Mixed") {
        for (Control* control : {&first, &list, &choice, &key}) {
            enrol(*control);
        }
        first.kind = ControlKind::Field;
        list.kind = ControlKind::List;
        choice.kind = ControlKind::Choice;
        list.rows = choice.rows = &rows;
        for (Control* control : {&list, &choice}) {
            control->click = [this] { log += "click "; };
            control->changed = [this] { log += "changed "; };
            control->doubleClick = [this] { log += "twice "; };
            control->mouseDown = [this](MouseButton, std::uint8_t) { log += "down "; };
        }
        focus = &first;
    }
    Control first, list, choice, key;
    RowTexts rows{{"a", "b", "c"}};
    std::string log;
};

TEST(FormInput, AClickOnARowOfADialogTakesTheFocus) {
    Mixed once;
    EXPECT_TRUE(clickRow(once, once.list, 1));
    EXPECT_EQ(once.focus, &once.list);
    EXPECT_EQ(once.log, "click ");
    Mixed twice;
    EXPECT_TRUE(doubleClickRow(twice, twice.list, 2));
    EXPECT_EQ(twice.focus, &twice.list);
    EXPECT_EQ(twice.rows.selected(), 2U);
    EXPECT_EQ(twice.log, "twice ");
    Mixed chosen;
    EXPECT_TRUE(clickRow(chosen, chosen.choice, 0));
    EXPECT_EQ(chosen.log, "click changed ");
    EXPECT_FALSE(doubleClickRow(chosen, chosen.list, 3));
    EXPECT_FALSE(clickRow(chosen, chosen.first, 0)) << "a field has no rows";
    chosen.list.enabled = false;
    EXPECT_FALSE(doubleClickRow(chosen, chosen.list, 0));
    EXPECT_FALSE(clickRow(chosen, chosen.list, 0));
    EXPECT_FALSE(rightClick(chosen, chosen.list, 0));
}

TEST(FormInput, OnlyWhatAHandCanUseHasTheFocus) {
    const std::set<ControlKind> used{ControlKind::Key,    ControlKind::Field, ControlKind::List,
                                     ControlKind::Option, ControlKind::Check, ControlKind::Choice};
    for (int kind = 0; kind <= static_cast<int>(ControlKind::Progress); ++kind) {
        EXPECT_EQ(canHaveFocus(static_cast<ControlKind>(kind)), used.contains(static_cast<ControlKind>(kind))) << kind;
    }
}

}  // namespace
}  // namespace tallyforge
