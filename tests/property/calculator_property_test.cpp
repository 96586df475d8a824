// SPDX-License-Identifier: GPL-3.0-or-later
//
// What must hold for every sequence of keys, not only for those that someone thought of.
#include "numbers/number_format.h"
#include "support/calculator_fixture.h"

#include <rapidcheck.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <ostream>
#include <string_view>
#include <utility>

namespace tallyforge {
namespace {

/// One thing that a hand does: a key of the keyboard, a whole number with Enter, a click under modifiers, or a
/// modifier that is chosen on screen.
struct Act {
    enum class Kind { Key, Number, Bank, Control, Latch } kind = Kind::Key;
    int which = 0;
    std::uint8_t mask = 0;
};

struct HandKey {
    const char* name;
    int keyCode;
    int character;
    std::uint8_t shift = 0;
};

constexpr HandKey kHandKeys[] = {
    {"0", '0', '0'},
    {"1", '1', '1'},
    {"2", '2', '2'},
    {"5", '5', '5'},
    {"9", '9', '9'},
    {".", kKeyPunctuation, '.'},
    {",", kKeyPunctuation, ','},
    {"e", 'E', 'e'},
    {"+", kKeyPunctuation, '+'},
    {"-", kKeyPunctuation, '-'},
    {"*", kKeyPunctuation, '*'},
    {"/", kKeyPunctuation, '/'},
    {"\\", kKeyPunctuation, '\\'},
    {"<", kKeyPunctuation, '<'},
    {">", kKeyPunctuation, '>'},
    {"^", kKeyPunctuation, '^'},
    {"!", kKeyPunctuation, '!'},
    {"%", kKeyPunctuation, '%'},
    {"p", 'P', 'p'},
    {"x", 'X', 'x'},
    {"X", 'X', 'X'},
    {"a", 'A', 'a'},
    {"A", 'A', 'A'},
    {"q", 'Q', 'q'},
    {"#", kKeyPunctuation, '#'},
    {"h", 'H', 'h'},
    {"H", 'H', 'H'},
    {"b", 'B', 'b'},
    {"Ctrl+P", 'P', 16, kCtrl},
    {"Ctrl+X", 'X', 24, kCtrl},
    {"Ctrl+C", 'C', 3, kCtrl},
    {"Ctrl+V", 'V', 22, kCtrl},
    {"Ctrl+5", kKeyDigit5, 0, kCtrl},
    {"Ctrl+6", kKeyPad6, 0, kCtrl},
    {"Enter", kKeyEnter, 13},
    {"Enter", kKeyEnter, 13},
    {"Enter", kKeyEnter, 13},
    {"Backspace", kKeyBackspace, 8},
    {"Esc", kKeyEscape, 27},
    {"Delete", kKeyDelete, 0},
    {"End", kKeyEnd, 0},
    {"Insert", kKeyInsert, 0},
    {"Up", kKeyUp, 0},
    {"Down", kKeyDown, 0},
    {"Left", kKeyLeft, 0},
    {"F9", kKeyF9, 0},
    {"F10", kKeyF10, 0},
    {"F11", kKeyF11, 0},
    {"F11", kKeyF11, 0},
    {"F12", kKeyF12, 0},
    {"F12", kKeyF12, 0},
};

constexpr const char* kNumbers[] = {"3", "0.5", "60", "1e300", "1e-5", "#101b", "#17o", "#FFh", "#FFFFFFFFFFFFFFFFh"};

/// Controls beside the bank that a hand clicks; the first of them show the keypads.
constexpr Control MainForm::*kControls[] = {
    &MainForm::mnuStd,   &MainForm::mnuTrig,      &MainForm::mnuEngBinary, &MainForm::mnuMag,    &MainForm::cmdChs,
    &MainForm::cmdEex,   &MainForm::cmdBackSpace, &MainForm::cmdEsc,       &MainForm::cmdEnter,  &MainForm::cmdDown,
    &MainForm::cmdXchgY, &MainForm::cmdLastx,     &MainForm::cmdSTO,       &MainForm::cmdDigits, &MainForm::cmdView,
    &MainForm::cmdF11,   &MainForm::cmdF12,       &MainForm::cmdReset,
};
constexpr std::size_t kKeypads = 3;
constexpr std::size_t kLatches = 7;

Control& controlOf(const CalculatorAtHand& hand, const Act& act) {
    return act.kind == Act::Kind::Bank ? hand.form().cmdFunctions.at(static_cast<std::size_t>(act.which))
                                       : hand.form().*kControls[act.which];
}

void showValue(const Act& act, std::ostream& out) {
    constexpr const char* kMasks[] = {"",     "Shift+",     "Ctrl+",     "Shift+Ctrl+",
                                      "Alt+", "Shift+Alt+", "Ctrl+Alt+", "Shift+Ctrl+Alt+"};
    static const MainForm form;
    switch (act.kind) {
        case Act::Kind::Key:
            out << kHandKeys[act.which].name;
            break;
        case Act::Kind::Number:
            out << kNumbers[act.which];
            break;
        case Act::Kind::Bank:
            out << kMasks[act.mask] << "bank(" << act.which << ")";
            break;
        case Act::Kind::Control:
            out << kMasks[act.mask] << (form.*kControls[act.which]).name;
            break;
        case Act::Kind::Latch:
            out << "latch " << kMasks[act.which + 1];
            break;
    }
}

rc::Gen<Act> acts(Act::Kind kind, std::size_t count, bool underModifiers) {
    const auto which = rc::gen::inRange(0, static_cast<int>(count));
    // Half of the clicks are plain ones.
    const auto mask = underModifiers ? rc::gen::oneOf(rc::gen::just(0), rc::gen::inRange(0, 8)) : rc::gen::just(0);
    return rc::gen::map(rc::gen::pair(which, mask), [kind](const std::pair<int, int>& drawn) {
        return Act{.kind = kind, .which = drawn.first, .mask = static_cast<std::uint8_t>(drawn.second)};
    });
}

/// Acts that begin on a keypad of their own choice.
std::vector<Act> someActs() {
    const Act keypad = *acts(Act::Kind::Control, kKeypads, false);
    auto all = *rc::gen::container<std::vector<Act>>(
        rc::gen::weightedOneOf<Act>({{10, acts(Act::Kind::Key, std::size(kHandKeys), false)},
                                     {3, acts(Act::Kind::Number, std::size(kNumbers), false)},
                                     {7, acts(Act::Kind::Bank, kBankKeys, true)},
                                     {3, acts(Act::Kind::Control, std::size(kControls), true)},
                                     {1, acts(Act::Kind::Latch, kLatches, false)}}));
    all.insert(all.begin(), keypad);
    return all;
}

void startInSomeLocale(CalculatorAtHand& hand) {
    hand.platform.decimal = *rc::gen::element('.', ',');
    if (hand.platform.decimal != '.') {
        hand.start();
    }
}

void play(const CalculatorAtHand& hand, const Act& act) {
    switch (act.kind) {
        case Act::Kind::Key: {
            const HandKey& pressed = kHandKeys[act.which];
            hand.press(pressed.keyCode, pressed.character, pressed.shift);
            break;
        }
        case Act::Kind::Number:
            hand.enter(kNumbers[act.which]);
            break;
        case Act::Kind::Bank:
        case Act::Kind::Control:
            hand.clickWith(act.mask, controlOf(hand, act));
            break;
        case Act::Kind::Latch:
            hand.choose(hand.form().optKey.at(static_cast<std::size_t>(act.which)));
            break;
    }
}

bool isKey(const Act& act, std::string_view name) {
    return act.kind == Act::Kind::Key && kHandKeys[act.which].name == name;
}

bool isClickOn(const CalculatorAtHand& hand, const Act& act, const Control& control) {
    return act.kind == Act::Kind::Control && &controlOf(hand, act) == &control;
}

/// Whether the act was the key of last x, by hand or mouse.
bool bringsLastxBack(const CalculatorAtHand& hand, const Act& act) {
    return isKey(act, "Insert") || isClickOn(hand, act, hand.form().cmdLastx);
}

/// Whether the act takes a reset back: the tape's lines return without a commit, and the slot below the stack, which
/// is in no file, stays empty whatever Y was. Asked before the act, which uses a latched modifier up.
bool takesResetBack(const CalculatorAtHand& hand, const Act& act) {
    const std::uint8_t mask = hand.s().modifiers.ModifierLatched ? hand.s().modifiers.ModifierMask : act.mask;
    return isClickOn(hand, act, hand.form().cmdReset) && mask == (kShift | kCtrl | kAlt);
}

/// Whether X is a text from the clipboard that was no number: X keeps it, the stack knows nothing of it.
bool refusedPaste(const CalculatorAtHand& hand, const Act& act) {
    const ValueCell& x = hand.s().stack.Xreg;
    return isKey(act, "Ctrl+V") && !x.isTagged() && !x.tryNumber(hand.s().format.DecimalChar);
}

/// Ctrl+V finds a text that is no plain number, as a web page or a sheet has it.
void copySomething(CalculatorAtHand& hand) {
    hand.platform.clipboard = *rc::gen::element<std::string>("1,234.56", "1.234,56", "12abc", "a,b", "x y", "#1Fb",
                                                             "  7 ", std::string(300, '7'), std::string(300, 'z'));
}

/// A cell's number, or its text where it has none, for comparison.
std::string asRead(const Engine& calc, const ValueCell& cell) {
    return cell.isEmpty() ? "0" : calc.text(cell);
}

/// Whether a cell holds a number of the calculator's range, or a text.
bool isFinite(const Engine& calc, const ValueCell& cell) {
    return std::isfinite(cell.tryNumber(calc.s.format.DecimalChar).value_or(0.0));
}

TEST(Properties, TheFourInvariantsHoldAfterEveryCommit) {
    EXPECT_TRUE(rc::check("after each act that committed a number", [] {
        CalculatorAtHand hand;
        startInSomeLocale(hand);
        const Engine& calc = hand.calc();
        bool wroteBelowTheStack = false;
        // A last x that there never was is an empty cell, and is brought back as that.
        bool pushedNothing = false;
        for (const Act& act : someActs()) {
            const std::size_t lines = calc.tape.lines();
            const std::size_t boxes = hand.platform.boxes.size();
            const int depth = hand.s().stack.depth();
            const bool lastxEmpty = hand.s().stack.LastX.isEmpty();
            const bool undoes = takesResetBack(hand, act);
            play(hand, act);
            const EngineState& s = hand.s();
            pushedNothing |= lastxEmpty && bringsLastxBack(hand, act);
            RC_ASSERT(s.stack.depth() >= 0);
            RC_ASSERT(s.stack.Stack.size() >= static_cast<std::size_t>(s.stack.StackPtr) + 1);
            RC_ASSERT(!s.entry.EntryOpen || !calc.form.txtXreg.text.empty());
            RC_ASSERT(calc.form.txtXreg.text.size() <= 22U);
            RC_ASSERT(isFinite(calc, s.stack.Xreg) && isFinite(calc, s.stack.LastX));
            for (const ValueCell& element : s.stack.Stack) {
                RC_ASSERT(isFinite(calc, element));
            }
            wroteBelowTheStack |= s.stack.depth() == 0 && depth <= 1;
            const bool committed = calc.tape.lines() > lines && hand.platform.boxes.size() == boxes && !undoes;
            if (!committed || s.stack.depth() == 0 || s.stack.Xreg.isEmptyText() || refusedPaste(hand, act)) {
                continue;
            }
            RC_ASSERT(asRead(calc, s.stack.slot(s.stack.StackPtr - 1)) == asRead(calc, s.stack.Xreg));
            RC_ASSERT(asRead(calc, s.stack.Yreg) == asRead(calc, s.stack.slot(s.stack.StackPtr - 2)));
            RC_ASSERT(calc.form.txtXreg.text.empty() == !s.entry.EntryOpen);
            RC_ASSERT(wroteBelowTheStack || s.stack.slot(0).isEmpty());
            for (int element = 1; element < s.stack.StackPtr; ++element) {
                RC_ASSERT(pushedNothing || !s.stack.slot(element).isEmpty());
            }
        }
    }));
}

TEST(Properties, ResetAndUndoBringBackWhatWasThere) {
    const CalculatorAtHand fresh;
    EXPECT_TRUE(rc::check("stack, tape, values, registers and names", [&fresh] {
        CalculatorAtHand hand;
        startInSomeLocale(hand);
        copySomething(hand);
        for (const Act& act : someActs()) {
            play(hand, act);
        }
        hand.press(kKeyEscape, 27);
        for (const int number : *rc::gen::container<std::vector<int>>(rc::gen::inRange(1, 25))) {
            hand.type(std::to_string(number));
            hand.clickWith(kShift, hand.form().cmdSTO);
        }
        for (const int number : *rc::gen::container<std::vector<int>>(rc::gen::inRange(1, 25))) {
            hand.platform.texts.push_back(*rc::gen::container<std::string>(rc::gen::inRange<char>(' ', '~')));
            hand.type(std::to_string(number));
            hand.clickWith(kCtrl, hand.form().cmdSTO);
            hand.platform.texts.clear();
        }
        const auto stackAndTape = hand.stackAndTape();
        const auto registers = hand.registers();
        const int mask = *rc::gen::element<int>(kNoModifier, kCtrl, kAlt);
        hand.clickWith(static_cast<std::uint8_t>(mask), hand.form().cmdReset);
        RC_ASSERT(hand.stackAndTape() == (mask == kCtrl ? stackAndTape : fresh.stackAndTape()));
        RC_ASSERT(hand.registers() == (mask == kNoModifier ? registers : fresh.registers()));
        hand.clickWith(kShift | kCtrl | kAlt, hand.form().cmdReset);
        RC_ASSERT(hand.stackAndTape() == stackAndTape);
        RC_ASSERT(hand.registers() == registers);
    }));
}

/// The keypad that a start shows for `keypad`: one that the settings have no place for, as one that is
/// lent to a mode, starts as the Standard keypad.
Keypad shownAtStart(Keypad keypad) {
    constexpr Keypad kKept[] = {Keypad::Engineering, Keypad::Trigonometry, Keypad::Binary, Keypad::Convert,
                                Keypad::Magnetics};
    return std::find(std::begin(kKept), std::end(kKept), keypad) == std::end(kKept) ? Keypad::Standard : keypad;
}

/// What "Save Settings" keeps, as the form shows it.
std::vector<std::string> settingsShown(const CalculatorAtHand& hand) {
    const EngineState& s = hand.s();
    const DisplayMode mode = s.format.DisplaySaved ? s.format.SavedMode : s.format.Mode;
    std::vector<std::string> all{std::to_string(static_cast<int>(shownAtStart(s.modes.ActiveKeypad))),
                                 std::to_string(static_cast<int>(mode)),
                                 std::to_string(s.format.SavedDigits),
                                 std::to_string(s.format.WordSize),
                                 std::to_string(static_cast<int>(s.format.Angle)),
                                 std::to_string(static_cast<int>(s.window.ViewExtended)),
                                 std::to_string(static_cast<int>(s.window.TallForm)),
                                 std::to_string(static_cast<int>(s.window.ShowYField)),
                                 std::to_string(static_cast<int>(s.window.ShowLastxField))};
    for (const Control* option : {&hand.form().optDeg, &hand.form().optRad, &hand.form().optGrad}) {
        all.push_back(option->checked ? option->name : "");
    }
    return all;
}

/// Chooses a menu entry and answers its question for a name; all others with yes.
void save(CalculatorAtHand& hand, Control& entry, const std::string& name) {
    hand.platform.texts = {name};
    hand.platform.answers.assign(3, Answer::Yes);
    hand.choose(entry);
    hand.platform.texts.clear();
    hand.platform.answers.clear();
}

/// Whether a box has said that the file holds less than there is.
bool toldOfWhatIsLeftOut(const CalculatorAtHand& hand, std::string_view title) {
    const auto& boxes = hand.platform.boxes;
    return std::any_of(boxes.begin(), boxes.end(), [title](const MessageBox& box) {
        return box.title == title && box.text.starts_with("A file cannot hold");
    });
}

TEST(Properties, WhatIsSavedIsThereAfterARestart) {
    EXPECT_TRUE(rc::check("tape, registers and settings", [] {
        CalculatorAtHand hand;
        startInSomeLocale(hand);
        copySomething(hand);
        for (const Act& act : someActs()) {
            play(hand, act);
        }
        hand.press(kKeyEscape, 27);
        for (const int number : *rc::gen::container<std::vector<int>>(rc::gen::inRange(1, 25))) {
            hand.type(std::to_string(number));
            hand.clickWith(kShift, hand.form().cmdSTO);
        }
        // A quiz lets nothing be saved before it ends.
        RC_PRE(!hand.s().modes.QuizMode);
        save(hand, hand.form().mnuSave, "");
        const auto settings = settingsShown(hand);
        save(hand, hand.form().mnuSaveTape, "day.tape");
        save(hand, hand.form().mnuSaveMem, "day.reg");
        const bool toldOfTheTape = toldOfWhatIsLeftOut(hand, "Save Running Tape");
        const bool toldOfRegisters = toldOfWhatIsLeftOut(hand, "Save Memory Registers");
        const auto stackAndTape = hand.stackAndTape();
        const auto registers = hand.registers();
        closeForm(hand.form());
        hand.start();
        RC_ASSERT(settingsShown(hand) == settings);
        save(hand, hand.form().mnuRetMem, "day.reg");
        RC_ASSERT(toldOfRegisters || hand.registers() == registers);
        save(hand, hand.form().mnuTape, "day.tape");
        RC_ASSERT(toldOfTheTape || hand.stackAndTape() == stackAndTape);
        RC_ASSERT(toldOfTheTape || hand.registers() == registers);
    }));
}

TEST(Properties, ANumbersTextReadsBackToItsDigits) {
    EXPECT_TRUE(rc::check("fifteen digits there and back, in both locales", [] {
        const auto mantissa = *rc::gen::inRange<std::int64_t>(-999999999999999, 1000000000000000);
        const auto exponent = *rc::gen::inRange(-290, 290);
        const char decimal = *rc::gen::element('.', ',');
        const double value = readNumber(std::to_string(mantissa) + "e" + std::to_string(exponent), '.');
        const std::string text = plainText(value, decimal);
        RC_ASSERT(plainText(readNumber(text, decimal), decimal) == text);
        RC_ASSERT(readNumber(text, decimal) == value);
    }));
}

TEST(Properties, AFixedTextIsTheNearestOfItsPlaces) {
    EXPECT_TRUE(rc::check("never further away than half a place", [] {
        const auto mantissa = *rc::gen::inRange<std::int64_t>(-999999999, 1000000000);
        const int places = *rc::gen::inRange(0, 10);
        const double value = static_cast<double>(mantissa) / 1e6;
        const double shown = readNumber(fixedText(value, places), '.');
        // A value may lie half way between two texts but for its own last bit, and the text read back is rounded again.
        const double lastBit = std::nextafter(std::abs(value), HUGE_VAL) - std::abs(value);
        RC_ASSERT(std::abs(shown - value) <= 0.5 * std::pow(10.0, -places) + lastBit);
    }));
}

}  // namespace
}  // namespace tallyforge
