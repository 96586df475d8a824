// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/form_input.h"

#include "platform/key_codes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallyforge {
namespace {

/// Fields, keys and options that write down what reaches them.
class SmallForm : public Form {
public:
    SmallForm() : Form("frmSmall", "Small") {
        put(heard, "txtHeard", ControlKind::Field);
        put(plain, "txtPlain", ControlKind::Field);
        put(ok, "cmdOk", ControlKind::Key);
        put(cancel, "cmdCancel", ControlKind::Key);
        put(apply, "cmdApply", ControlKind::Key);
        put(list, "lstRows", ControlKind::List);
        apply.text = "&Apply";
        for (int i = 0; i < 3; ++i) {
            put(mode[static_cast<std::size_t>(i)], "optMode", ControlKind::Option, i);
        }
        put(warm, "optWarm", ControlKind::Option);
        put(cold, "optCold", ControlKind::Option);
        note(ok, "ok");
        note(cancel, "cancel");
        note(apply, "apply");
    }

    /// As on the main form: one field hears all typing.
    void hear() {
        typing = &heard;
        heard.keyDown = [this](KeyEvent event) {
            log.push_back("down " + std::to_string(event.keyCode) + " " + std::to_string(event.shift));
        };
        heard.keyPress = [this](int& character) { log.push_back("press " + std::to_string(character)); };
        heard.keyUp = [this](KeyEvent event) {
            log.push_back("up " + std::to_string(event.keyCode) + " " + std::to_string(event.shift));
        };
    }

    Control heard, plain, ok, cancel, apply, list, warm, cold;
    Control mode[3];
    std::vector<std::string> log;

private:
    void put(Control& control, const char* controlName, ControlKind kind, int index = kNoIndex) {
        control.name = controlName;
        control.kind = kind;
        control.index = index;
        enrol(control);
    }
    void note(Control& control, const char* word) {
        control.click = [this, word] { log.emplace_back(word); };
    }
};

using Log = std::vector<std::string>;

KeyStroke stroke(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return {.keyCode = keyCodeOf(byte), .character = byte};
}

void typeText(Form& form, std::string_view text) {
    for (const char character : text) {
        pressKey(form, stroke(character));
        releaseKey(form, stroke(character));
    }
}

/// Five rows, one of them selected.
class FiveRows : public ListRows {
public:
    std::size_t count() const override { return 5; }
    std::string row(std::size_t index) const override { return "row " + std::to_string(index); }
    std::size_t selected() const override { return chosen; }
    void select(std::size_t index) override { chosen = index; }
    std::uint64_t revision() const override { return chosen; }
    std::size_t chosen = 5;
};

TEST(FormInput, AKeyIsHeardAsDownThenPressThenUp) {
    SmallForm form;
    form.hear();
    form.focus = &form.heard;
    typeText(form, "a");
    EXPECT_EQ(form.log, (Log{"down 65 0", "press 97", "up 65 0"}));
    EXPECT_EQ(form.heard.text, "a");
    EXPECT_EQ(form.heard.caret, 1U);
}

TEST(FormInput, AKeyWithoutACharacterIsNoKeyPress) {
    SmallForm form;
    form.hear();
    form.focus = &form.heard;
    pressKey(form, {.keyCode = kKeyF9});
    EXPECT_EQ(form.log, (Log{"down 120 0"}));
}

TEST(FormInput, AKeyPressHandlerDropsTheCharacter) {
    SmallForm form;
    form.focus = &form.heard;
    form.heard.keyPress = [](int& character) { character = character == 'q' ? 0 : character; };
    typeText(form, "aqb");
    EXPECT_EQ(form.heard.text, "ab");
}

TEST(FormInput, AKeyPressHandlerReplacesTheCharacter) {
    SmallForm form;
    form.focus = &form.heard;
    form.heard.keyPress = [](int& character) { character = character == 'h' ? 'H' : character; };
    typeText(form, "h");
    EXPECT_EQ(form.heard.text, "H");
}

TEST(FormInput, AControlCharacterIsPressedButNeverTyped) {
    SmallForm form;
    form.hear();
    form.focus = &form.heard;
    pressKey(form, {.keyCode = 'P', .shift = kCtrl, .character = 16});
    EXPECT_EQ(form.log, (Log{"down 80 2", "press 16"}));
    EXPECT_EQ(form.heard.text, "");
}

TEST(FormInput, AFieldThatHearsItsKeysIsNotEditedBehindItsHandlers) {
    SmallForm form;
    form.hear();
    form.focus = &form.heard;
    typeText(form, "12");
    pressKey(form, {.keyCode = kKeyBackspace, .character = 8});
    pressKey(form, {.keyCode = kKeyHome});
    EXPECT_EQ(form.heard.text, "12");
    EXPECT_EQ(form.heard.caret, 2U);
}

TEST(FormInput, TypingGoesInAtTheCaret) {
    SmallForm form;
    form.focus = &form.plain;
    form.plain.text = "13";
    form.plain.caret = 1;
    typeText(form, "2");
    EXPECT_EQ(form.plain.text, "123");
    EXPECT_EQ(form.plain.caret, 2U);
}

TEST(FormInput, ACaretBehindTheEndTypesAtTheEnd) {
    SmallForm form;
    form.focus = &form.plain;
    form.plain.text = "1";
    form.plain.caret = 99;
    typeText(form, "2");
    EXPECT_EQ(form.plain.text, "12");
    EXPECT_EQ(form.plain.caret, 2U);
}

TEST(FormInput, AFullFieldTakesNoMoreCharacters) {
    SmallForm form;
    form.focus = &form.plain;
    form.plain.maxLength = 3;
    typeText(form, "12345");
    EXPECT_EQ(form.plain.text, "123");
    EXPECT_EQ(form.plain.caret, 3U);
}

TEST(FormInput, BytesAboveAsciiAreTypedAsOneCharacterEach) {
    SmallForm form;
    form.focus = &form.plain;
    typeText(form, "\xE4\xF7");
    EXPECT_EQ(form.plain.text, "\xE4\xF7");
}

struct Edit {
    const char* what;
    int keyCode;
    std::size_t caret;
    const char* text;
    std::size_t caretAfter;
};

class PlainEditing : public testing::TestWithParam<Edit> {};

TEST_P(PlainEditing, ChangesTheTextAtTheCaret) {
    const Edit& edit = GetParam();
    SmallForm form;
    form.focus = &form.plain;
    form.plain.text = "abcd";
    form.plain.caret = edit.caret;
    pressKey(form, {.keyCode = edit.keyCode});
    EXPECT_EQ(form.plain.text, edit.text);
    EXPECT_EQ(form.plain.caret, edit.caretAfter);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, PlainEditing,
    testing::Values(Edit{"BackspaceInside", kKeyBackspace, 2, "acd", 1},
                    Edit{"BackspaceAtTheHead", kKeyBackspace, 0, "abcd", 0},
                    Edit{"BackspaceBehindTheEnd", kKeyBackspace, 99, "abc", 3},
                    Edit{"DeleteInside", kKeyDelete, 1, "acd", 1}, Edit{"DeleteAtTheEnd", kKeyDelete, 4, "abcd", 4},
                    Edit{"Home", kKeyHome, 3, "abcd", 0}, Edit{"End", kKeyEnd, 1, "abcd", 4},
                    Edit{"Left", kKeyLeft, 2, "abcd", 1}, Edit{"LeftAtTheHead", kKeyLeft, 0, "abcd", 0},
                    Edit{"Right", kKeyRight, 2, "abcd", 3}, Edit{"RightAtTheEnd", kKeyRight, 4, "abcd", 4},
                    Edit{"AnyOtherKey", kKeyF9, 2, "abcd", 2}),
    [](const auto& row) { return row.param.what; });

TEST(FormInput, EnterClicksTheDefaultKeyAfterKeyDown) {
    SmallForm form;
    form.hear();
    form.focus = &form.heard;
    form.defaultKey = &form.ok;
    pressKey(form, {.keyCode = kKeyEnter, .character = 13});
    EXPECT_EQ(form.log, (Log{"down 13 0", "ok"}));
}

TEST(FormInput, EnterDoesNothingWhileTheDefaultKeyIsDisabled) {
    SmallForm form;
    form.hear();
    form.focus = &form.heard;
    form.defaultKey = &form.ok;
    form.ok.enabled = false;
    pressKey(form, {.keyCode = kKeyEnter, .character = 13});
    EXPECT_EQ(form.log, (Log{"down 13 0"}));
}

TEST(FormInput, EnterIsAPressWhereTheFormHasNoDefaultKey) {
    SmallForm form;
    form.hear();
    form.focus = &form.heard;
    pressKey(form, {.keyCode = kKeyEnter, .character = 13});
    EXPECT_EQ(form.log, (Log{"down 13 0", "press 13"}));
}

TEST(FormInput, EscClicksTheCancelKeyAfterKeyDown) {
    SmallForm form;
    form.hear();
    form.focus = &form.heard;
    form.cancelKey = &form.cancel;
    pressKey(form, {.keyCode = kKeyEscape, .character = 27});
    EXPECT_EQ(form.log, (Log{"down 27 0", "cancel"}));
}

TEST(FormInput, EscIsAPressWhereTheFormHasNoCancelKey) {
    SmallForm form;
    form.hear();
    form.focus = &form.heard;
    pressKey(form, {.keyCode = kKeyEscape, .character = 27});
    EXPECT_EQ(form.log, (Log{"down 27 0", "press 27"}));
}

TEST(FormInput, SpaceClicksTheKeyThatHasTheFocus) {
    SmallForm form;
    form.focus = &form.ok;
    typeText(form, " ");
    EXPECT_EQ(form.log, (Log{"ok"}));
}

TEST(FormInput, SpaceClicksNoDisabledKey) {
    SmallForm form;
    form.focus = &form.ok;
    form.ok.enabled = false;
    typeText(form, " ");
    EXPECT_TRUE(form.log.empty());
}

TEST(FormInput, AltWithAnAccessLetterLetsAltGoAndClicksTheControl) {
    SmallForm form;
    form.hear();
    form.focus = &form.heard;
    pressKey(form, {.keyCode = 'A', .shift = kAlt});
    EXPECT_EQ(form.log, (Log{"down 65 4", "up 16 0", "apply"}));
}

TEST(FormInput, AltWithAnAccessLetterSelectsAnOption) {
    SmallForm form;
    form.focus = &form.plain;
    form.warm.text = "&Warm";
    pressKey(form, {.keyCode = 'W', .shift = kAlt});
    EXPECT_TRUE(form.warm.checked);
}

TEST(FormInput, AltReachesNoHiddenOrDisabledControl) {
    SmallForm form;
    form.focus = &form.plain;
    form.apply.visible = false;
    pressKey(form, {.keyCode = 'A', .shift = kAlt});
    form.apply.visible = true;
    form.apply.enabled = false;
    pressKey(form, {.keyCode = 'A', .shift = kAlt});
    EXPECT_TRUE(form.log.empty());
}

TEST(FormInput, AltWithALetterOfNoCaptionIsNotTyped) {
    SmallForm form;
    form.focus = &form.plain;
    pressKey(form, {.keyCode = 'Z', .shift = kAlt, .character = 'z'});
    EXPECT_EQ(form.plain.text, "");
}

TEST(FormInput, AltGrTypesItsCharacter) {
    SmallForm form;
    form.focus = &form.plain;
    pressKey(form, {.keyCode = 'A', .shift = kAlt | kCtrl, .character = '@'});
    EXPECT_EQ(form.plain.text, "@");
    EXPECT_TRUE(form.log.empty());
}

TEST(FormInput, TypingIsHeardWhateverKeyTookTheFocus) {
    SmallForm form;
    form.hear();
    for (Control* thief : {&form.ok, &form.warm}) {
        form.log.clear();
        form.focus = thief;
        typeText(form, "5");
        EXPECT_EQ(form.log, (Log{"down 53 0", "press 53", "up 53 0"}));
    }
    EXPECT_EQ(form.heard.text, "55");
}

TEST(FormInput, WithoutAFocusTypingStillReachesTheFieldThatHearsKeys) {
    SmallForm form;
    form.hear();
    typeText(form, "5");
    EXPECT_EQ(form.heard.text, "5");
}

TEST(FormInput, AnotherFieldWithTheFocusKeepsItsTyping) {
    SmallForm form;
    form.hear();
    form.focus = &form.plain;
    typeText(form, "5");
    EXPECT_EQ(form.plain.text, "5");
    EXPECT_TRUE(form.log.empty());
}

TEST(FormInput, AFieldThatTakesNoInputLeavesTypingToTheOneThatHearsKeys) {
    SmallForm form;
    form.hear();
    for (bool* state : {&form.plain.enabled, &form.plain.visible}) {
        *state = false;
        form.focus = &form.plain;
        typeText(form, "5");
        *state = true;
    }
    EXPECT_EQ(form.plain.text, "");
    EXPECT_EQ(form.heard.text, "55");
}

TEST(FormInput, AFormWithoutAnyControlIgnoresKeys) {
    Form form("frmEmpty", "Empty");
    pressKey(form, stroke('a'));
    releaseKey(form, stroke('a'));
    holdModifiers(form, kShift);
    releaseModifiers(form);
    EXPECT_EQ(form.focus, nullptr);
}

TEST(FormInput, EnterEscAndAltNeedNoControlWithTheKeyboard) {
    SmallForm form;
    form.defaultKey = &form.ok;
    form.cancelKey = &form.cancel;
    pressKey(form, {.keyCode = kKeyEnter, .character = 13});
    pressKey(form, {.keyCode = kKeyEscape, .character = 27});
    pressKey(form, {.keyCode = 'A', .shift = kAlt});
    EXPECT_EQ(form.log, (Log{"ok", "cancel", "apply"}));
}

TEST(FormInput, HeldModifiersAreHeardAsTheirOwnKeys) {
    SmallForm form;
    form.hear();
    form.focus = &form.heard;
    holdModifiers(form, kShift);
    holdModifiers(form, kCtrl);
    holdModifiers(form, kAlt | kShift);
    releaseModifiers(form);
    EXPECT_EQ(form.log, (Log{"down 16 1", "down 17 2", "down 18 5", "up 16 0"}));
}

TEST(FormInput, AClickRunsTheHandler) {
    SmallForm form;
    EXPECT_TRUE(click(form, form.ok));
    EXPECT_EQ(form.log, (Log{"ok"}));
}

TEST(FormInput, AClickWithoutAHandlerIsTaken) {
    SmallForm form;
    form.ok.click = nullptr;
    EXPECT_TRUE(click(form, form.ok));
}

TEST(FormInput, ADisabledOrHiddenControlTakesNoClick) {
    SmallForm form;
    form.ok.enabled = false;
    EXPECT_FALSE(click(form, form.ok));
    form.cancel.visible = false;
    EXPECT_FALSE(click(form, form.cancel));
    form.warm.enabled = false;
    EXPECT_FALSE(click(form, form.warm));
    EXPECT_TRUE(form.log.empty());
    EXPECT_FALSE(form.warm.checked);
}

TEST(FormInput, AHandlerMayHangAnotherHandlerOnItsOwnKey) {
    SmallForm form;
    form.ok.click = [&form, first = std::string("first")] {
        form.ok.click = [&form] { form.log.emplace_back("second"); };
        form.log.push_back(first);
    };
    click(form, form.ok);
    click(form, form.ok);
    EXPECT_EQ(form.log, (Log{"first", "second"}));
}

TEST(FormInput, AnOptionOfAnArrayClearsItsNeighboursOnly) {
    SmallForm form;
    form.warm.checked = true;
    form.mode[0].checked = true;
    click(form, form.mode[2]);
    EXPECT_FALSE(form.mode[0].checked);
    EXPECT_FALSE(form.mode[1].checked);
    EXPECT_TRUE(form.mode[2].checked);
    EXPECT_TRUE(form.warm.checked);
}

TEST(FormInput, ALetterLeadsToTheNextOptionThatBeginsWithIt) {
    SmallForm form;
    const char* const captions[] = {"Volts (V)", "Millivolts (mV)", "Microvolts"};
    for (std::size_t i = 0; i < 3; ++i) {
        form.mode[i].text = captions[i];
    }
    form.setFocus(form.mode[0]);
    pressKey(form, {.keyCode = 'M', .character = 'm'});
    EXPECT_TRUE(form.mode[1].checked);
    EXPECT_EQ(form.focus, &form.mode[1]);
    pressKey(form, {.keyCode = 'M', .character = 'm'});
    EXPECT_TRUE(form.mode[2].checked);
    pressKey(form, {.keyCode = 'M', .character = 'm'});
    EXPECT_TRUE(form.mode[1].checked) << "around the end";
    pressKey(form, {.keyCode = 'X', .character = 'x'});
    EXPECT_EQ(form.focus, &form.mode[1]);
    pressKey(form, {.keyCode = 'V', .shift = kCtrl, .character = 22});
    EXPECT_EQ(form.focus, &form.mode[1]) << "a short cut is no letter";
}

TEST(FormInput, ArrowsGoFromOptionToOptionAroundTheEnds) {
    SmallForm form;
    const auto after = [&](int keyCode) {
        pressKey(form, {.keyCode = keyCode});
        return form.focus - &form.mode[0];
    };
    form.setFocus(form.mode[0]);
    EXPECT_EQ(after(kKeyDown), 1);
    EXPECT_EQ(after(kKeyRight), 2);
    EXPECT_EQ(after(kKeyDown), 0);
    EXPECT_EQ(after(kKeyUp), 2);
    EXPECT_EQ(after(kKeyLeft), 1);
    EXPECT_TRUE(form.mode[1].checked);
    form.mode[2].enabled = false;
    EXPECT_EQ(after(kKeyDown), 0) << "what takes no input is passed over";
    EXPECT_EQ(after(kKeyUp), 1);
}

TEST(FormInput, OptionsThatStandAloneAreOneGroup) {
    SmallForm form;
    form.mode[1].checked = true;
    click(form, form.warm);
    click(form, form.cold);
    EXPECT_FALSE(form.warm.checked);
    EXPECT_TRUE(form.cold.checked);
    EXPECT_TRUE(form.mode[1].checked);
}

TEST(FormInput, AnOptionIsSelectedBeforeItsHandlerRuns) {
    SmallForm form;
    form.warm.click = [&form] { form.log.emplace_back(form.warm.checked ? "checked" : "not yet"); };
    click(form, form.warm);
    EXPECT_EQ(form.log, (Log{"checked"}));
}

TEST(FormInput, ARightClickHandsOnTheModifiers) {
    SmallForm form;
    form.ok.mouseDown = [&form](MouseButton button, std::uint8_t shift) {
        form.log.push_back(std::string(button == MouseButton::Right ? "right " : "left ") + std::to_string(shift));
    };
    EXPECT_TRUE(rightClick(form, form.ok, kCtrl | kShift));
    EXPECT_EQ(form.log, (Log{"right 3"}));
    form.ok.enabled = false;
    EXPECT_FALSE(rightClick(form, form.ok, 0));
    EXPECT_EQ(form.log.size(), 1U);
}

TEST(FormInput, AClickOnARowSelectsItBeforeTheHandlerRuns) {
    SmallForm form;
    FiveRows rows;
    form.list.rows = &rows;
    form.list.click = [&] { form.log.push_back("click " + std::to_string(rows.chosen)); };
    form.list.doubleClick = [&] { form.log.push_back("double " + std::to_string(rows.chosen)); };
    EXPECT_TRUE(clickRow(form, form.list, 3));
    EXPECT_TRUE(doubleClickRow(form, form.list, 0));
    EXPECT_EQ(form.log, (Log{"click 3", "double 0"}));
}

TEST(FormInput, ARowThatIsNotThereTakesNoClick) {
    SmallForm form;
    EXPECT_FALSE(clickRow(form, form.list, 0));
    FiveRows rows;
    form.list.rows = &rows;
    EXPECT_FALSE(clickRow(form, form.list, 5));
    EXPECT_FALSE(doubleClickRow(form, form.list, 5));
    form.list.enabled = false;
    EXPECT_FALSE(clickRow(form, form.list, 1));
    EXPECT_FALSE(doubleClickRow(form, form.list, 1));
    EXPECT_EQ(rows.chosen, 5U);
}

TEST(FormInput, TheCloseButtonClosesAFormWithoutAHandler) {
    SmallForm form;
    EXPECT_TRUE(closeForm(form));
    EXPECT_FALSE(form.open);
}

TEST(FormInput, ACloseHandlerMayRefuse) {
    SmallForm form;
    form.close = [&form] { form.log.emplace_back("asked"); };
    EXPECT_FALSE(closeForm(form));
    EXPECT_TRUE(form.open);
    form.close = [&form] { form.open = false; };
    EXPECT_TRUE(closeForm(form));
}

TEST(FormLookUp, AControlIsFoundByNameAndIndex) {
    SmallForm form;
    EXPECT_EQ(form.find("cmdOk"), &form.ok);
    EXPECT_EQ(form.find("optMode", 2), &form.mode[2]);
    EXPECT_EQ(form.find("optMode"), nullptr);
    EXPECT_EQ(form.find("cmdOk", 0), nullptr);
    EXPECT_EQ(form.find("cmdNone"), nullptr);
    EXPECT_EQ(form.ok.fullName(), "cmdOk");
    EXPECT_EQ(form.mode[2].fullName(), "optMode(2)");
}

TEST(KeyCodes, ALetterHasTheCodeOfItsCapital) {
    EXPECT_EQ(keyCodeOf('p'), 80);
    EXPECT_EQ(keyCodeOf('P'), 80);
    EXPECT_EQ(keyCodeOf('5'), kKeyDigit5);
    EXPECT_EQ(keyCodeOf(' '), kKeySpace);
    EXPECT_EQ(keyCodeOf('+'), kKeyPunctuation);
    EXPECT_EQ(keyCodeOf(0xE4), kKeyPunctuation);
}

}  // namespace
}  // namespace tallyforge
