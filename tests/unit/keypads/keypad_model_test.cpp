// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/keypads/keypads_fixture.h"

#include <array>
#include <vector>

namespace tallyforge {
namespace {

class KeypadModelTest : public KeypadsTest {
protected:
    std::vector<std::string> namesAfter(int keyCode, int times) {
        std::vector<std::string> names;
        for (int i = 0; i < times; ++i) {
            press(keyCode);
            names.push_back(calc.form.lblBank.text);
        }
        return names;
    }
    struct Look {
        std::string text;
        std::string tip;
        Font font;
        KeyColour colour;
        bool visible;
        bool operator==(const Look&) const = default;
    };
    std::vector<Look> looks() const {
        std::vector<Look> all;
        for (const Control& key : calc.form.cmdFunctions) {
            all.push_back({key.text, key.tip, key.font, key.colour, key.visible});
        }
        return all;
    }
};

TEST_F(KeypadModelTest, DownWalksTheRingOfSevenAndReturnsToStandard) {
    const std::vector<std::string> ring{"Tables", "Convert",     "Trigonometry", "Magnetics",
                                        "Binary", "Engineering", "Standard"};
    EXPECT_EQ(namesAfter(kKeyDown, 7), ring);
    EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::Standard);
}

TEST_F(KeypadModelTest, UpWalksTheSameRingBackwards) {
    const std::vector<std::string> ring{"Engineering", "Binary", "Magnetics", "Trigonometry",
                                        "Convert",     "Tables", "Standard"};
    EXPECT_EQ(namesAfter(kKeyUp, 7), ring);
}

TEST_F(KeypadModelTest, ArrowsAreInertInProgramModeAndInMemoryArrayMode) {
    calc.s.modes.ProgramMode = true;
    press(kKeyDown);
    EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::Standard);
    calc.s.modes.ProgramMode = false;
    calc.s.modes.MemoryArrayMode = true;
    calc.s.modes.ActiveKeypad = Keypad::MemoryArray;
    for (const int key : {kKeyDown, kKeyUp, kKeyLeft, kKeyRight, kKeyF9, kKeyF10}) {
        press(key);
        EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::MemoryArray) << key;
    }
}

TEST_F(KeypadModelTest, F9ShowsTheTablesKeypadWhichNoMenuEntryTicks) {
    press(kKeyF9);
    EXPECT_EQ(calc.form.lblBank.text, "Tables");
    EXPECT_TRUE(calc.s.modes.TablesShown);
    const MainForm& form = calc.form;
    for (const Control* entryOfMenu :
         {&form.mnuStd, &form.mnuEngNormal, &form.mnuTrig, &form.mnuConvert, &form.mnuMag, &form.mnuEngBinary}) {
        EXPECT_FALSE(entryOfMenu->checked) << entryOfMenu->name;
    }
    press(kKeyDown);
    EXPECT_FALSE(calc.s.modes.TablesShown);
}

TEST_F(KeypadModelTest, EachMenuEntryShowsItsKeypadAndIsTheOnlyOneTicked) {
    MainForm& form = calc.form;
    struct Row {
        Control& entry;
        Keypad keypad;
        const char* name;
    };
    const Row rows[] = {
        {form.mnuStd, Keypad::Standard, "Standard"},          {form.mnuEngNormal, Keypad::Engineering, "Engineering"},
        {form.mnuTrig, Keypad::Trigonometry, "Trigonometry"}, {form.mnuConvert, Keypad::Convert, "Convert"},
        {form.mnuMag, Keypad::Magnetics, "Magnetics"},        {form.mnuEngBinary, Keypad::Binary, "Binary"}};
    for (const Row& row : rows) {
        click(form, row.entry);
        EXPECT_EQ(calc.s.modes.ActiveKeypad, row.keypad);
        EXPECT_EQ(form.lblBank.text, row.name);
        EXPECT_EQ(form.focus, &form.txtXreg);
        for (const Row& other : rows) {
            EXPECT_EQ(other.entry.checked, &other.entry == &row.entry) << row.name << " " << other.name;
        }
    }
}

TEST_F(KeypadModelTest, LeftGoesBackInTheHistoryAndRightReturns) {
    press(kKeyF9);
    press(kKeyDown);
    ASSERT_EQ(calc.s.modes.ActiveKeypad, Keypad::Convert);
    press(kKeyLeft);
    EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::Tables);
    press(kKeyLeft);
    EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::Standard);
    press(kKeyRight);
    EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::Tables);
    press(kKeyRight);
    EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::Convert);
}

TEST_F(KeypadModelTest, HistoryIsARingThatHoldsAllSevenKeypads) {
    namesAfter(kKeyDown, 6);
    ASSERT_EQ(calc.s.modes.ActiveKeypad, Keypad::Engineering);
    const std::vector<std::string> back{"Binary", "Magnetics", "Trigonometry", "Convert",
                                        "Tables", "Standard",  "Engineering"};
    EXPECT_EQ(namesAfter(kKeyLeft, 7), back);
}

TEST_F(KeypadModelTest, FunctionKeysLeaveTheHistoryAlone) {
    press(kKeyF9);
    type("4");
    clickBank(1);
    clickBank(1);
    press(kKeyLeft);
    EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::Standard);
}

TEST_F(KeypadModelTest, ConvertShowsItsHintLabelAndTheOthersHideIt) {
    keypads.ShowKeypad(Keypad::Convert);
    EXPECT_TRUE(calc.form.lblCnvrt.visible);
    EXPECT_EQ(calc.form.lblCnvrt.text, "Use Alt Click to save Cnv. Fctr.");
    EXPECT_EQ(calc.form.lblCnvrt.tip, " Conversion Factor saved to Reg 2 ");
    EXPECT_EQ(calc.form.lblCnvrt.font.points, 8.0F);
    keypads.ShowKeypad(Keypad::Trigonometry);
    EXPECT_FALSE(calc.form.lblCnvrt.visible);
}

TEST_F(KeypadModelTest, SetUpEnablesTheProgramAndTheMemoryKey) {
    calc.form.cmdF11.enabled = false;
    calc.form.cmdF12.enabled = false;
    keypads.ShowKeypad(Keypad::Magnetics);
    EXPECT_TRUE(calc.form.cmdF11.enabled);
    EXPECT_TRUE(calc.form.cmdF12.enabled);
}

TEST_F(KeypadModelTest, BinarySetsTheBaseModeAndLeavingItGivesTheDisplayBack) {
    calc.s.format.DisplayDigits = 4;
    calc.s.format.Mode = DisplayMode::Engineering;
    keypads.ShowKeypad(Keypad::Binary);
    EXPECT_TRUE(calc.s.modes.BaseMode);
    EXPECT_EQ(calc.form.cmdDigits.text, "wrdsze(64)");
    EXPECT_EQ(calc.form.cmdDigits.tip, " Change Word Size (4 - 64) ");
    EXPECT_EQ(calc.form.cmdChs.text, "Mod");
    EXPECT_EQ(calc.form.cmdChs.tip, " Recall last Remainder ");
    keypads.ShowKeypad(Keypad::Standard);
    EXPECT_FALSE(calc.s.modes.BaseMode);
    EXPECT_EQ(calc.form.cmdDigits.text, "Display(4)");
    EXPECT_EQ(calc.form.cmdChs.text, "C&HS");
    EXPECT_EQ(calc.s.format.DisplayDigits, 4);
    EXPECT_EQ(calc.s.format.Mode, DisplayMode::Engineering);
}

TEST_F(KeypadModelTest, AShortCutOnTheBinaryKeypadLeavesTheBaseModeAndTheSavedFormatAlone) {
    calc.s.format.DisplayDigits = 4;
    keypads.ShowKeypad(Keypad::Binary);
    press('P', 'p');
    EXPECT_TRUE(calc.s.modes.BaseMode);
    EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::Binary);
    EXPECT_EQ(calc.form.lblBank.text, "Binary");
    EXPECT_EQ(bank(3).text, keypadTable(Keypad::Binary).rows[3].caption.text);
    keypads.ShowKeypad(Keypad::Standard);
    EXPECT_EQ(calc.s.format.DisplayDigits, 4);
}

TEST_F(KeypadModelTest, SetUpUnderAHeldModifierShowsThePlainKeypadAndTheNextKeyDownPaintsAgain) {
    hold(kShift);
    ASSERT_FALSE(bank(0).text.empty());
    ASSERT_EQ(bank(14).text, "e^x");
    keypads.ShowKeypad(Keypad::Trigonometry);
    for (std::size_t i = 0; i < kBankKeys; ++i) {
        EXPECT_EQ(bank(i).text, keypadTable(Keypad::Trigonometry).rows.at(i).caption.text) << i;
        EXPECT_TRUE(bank(i).visible) << i;
    }
    hold(kShift);
    bool changed = false;
    for (std::size_t i = 0; i < kBankKeys; ++i) {
        const KeyRow& row = keypadTable(Keypad::Trigonometry).rows.at(i);
        EXPECT_EQ(bank(i).visible, row.common || !row.under.shift.text.empty()) << i;
        changed = changed || bank(i).text != row.caption.text || !bank(i).visible;
    }
    EXPECT_TRUE(changed);
}

TEST_F(KeypadModelTest, CommonKeysStayUnderEveryMaskAndAllReturnsAfterwards) {
    const auto plain = looks();
    for (std::uint8_t mask = 1; mask <= 7; ++mask) {
        keypads.PaintModifiers(mask);
        for (const std::size_t key : {0U, 1U, 2U}) {
            EXPECT_TRUE(bank(key).visible);
            EXPECT_EQ(bank(key).text, plain.at(key).text);
        }
        keypads.RepaintKeypad();
        EXPECT_EQ(looks(), plain) << int{mask};
    }
}

TEST_F(KeypadModelTest, OnConvertAndBinaryTheSweepTakesTheFirstKeysToo) {
    for (const Keypad keypad : {Keypad::Convert, Keypad::Binary}) {
        keypads.ShowKeypad(keypad);
        keypads.PaintModifiers(kShift | kCtrl | kAlt);
        for (std::size_t i = 0; i < kBankKeys; ++i) {
            EXPECT_FALSE(bank(i).visible) << i;
        }
    }
}

TEST_F(KeypadModelTest, TheTablesKeypadIsNotRepaintedByAnyMask) {
    keypads.ShowKeypad(Keypad::Tables);
    const auto plain = looks();
    for (std::uint8_t mask = 1; mask <= 7; ++mask) {
        keypads.PaintModifiers(mask);
        EXPECT_EQ(looks(), plain) << int{mask};
    }
}

TEST_F(KeypadModelTest, WithKeyPaintingOffTheCaptionsStayAndTheFunctionsWorkTheSame) {
    calc.s.modifiers.NoKeyPaint = true;
    const auto plain = looks();
    keypads.PaintModifiers(kShift);
    EXPECT_EQ(looks(), plain);
    latch(0);
    EXPECT_EQ(looks(), plain);
    EXPECT_TRUE(calc.s.modifiers.ModifierLatched);
}

TEST_F(KeypadModelTest, NothingIsPaintedOverTheRegistersOfMemoryArrayMode) {
    calc.s.modes.MemoryArrayMode = true;
    calc.s.modes.ActiveKeypad = Keypad::MemoryArray;
    calc.s.memory.RegisterNames[5] = "volt";
    keypads.model.paintRegisterNames();
    EXPECT_EQ(bank(5).text, "volt");
    EXPECT_EQ(bank(5).tip, " Click: recall | Shift+: save | Ctrl+: name ");
    EXPECT_EQ(bank(5).font, (Font{.face = Face::SmallFonts, .points = 7.0F}));
    EXPECT_EQ(bank(18).colour, KeyColour::Plain);
    const auto registers = looks();
    keypads.PaintModifiers(kShift);
    keypads.RepaintKeypad();
    EXPECT_EQ(looks(), registers);
}

TEST_F(KeypadModelTest, YellowAndLightBlueKeysAreAsTheKeypadsSay) {
    struct Row {
        Keypad keypad;
        std::vector<std::size_t> yellow;
        std::vector<std::size_t> blue;
    };
    const Row rows[] = {{Keypad::Standard, {18}, {}},
                        {Keypad::Engineering, {6, 7, 10, 11, 16, 17, 18, 21}, {9, 20, 22}},
                        {Keypad::Trigonometry, {8}, {}},
                        {Keypad::Convert, {}, {19}},
                        {Keypad::Magnetics, {5, 6, 7, 16, 22}, {11, 12, 13, 15, 23}},
                        {Keypad::Binary, {}, {}},
                        {Keypad::Tables, {}, {}}};
    for (const Row& row : rows) {
        keypads.ShowKeypad(row.keypad);
        std::vector<std::size_t> yellow;
        std::vector<std::size_t> blue;
        for (std::size_t i = 0; i < kBankKeys; ++i) {
            if (bank(i).colour != KeyColour::Plain) {
                (bank(i).colour == KeyColour::Yellow ? yellow : blue).push_back(i);
            }
        }
        EXPECT_EQ(yellow, row.yellow) << calc.form.lblBank.text;
        EXPECT_EQ(blue, row.blue) << calc.form.lblBank.text;
    }
}

TEST_F(KeypadModelTest, TheHintOfTheColouredKeysIsShownOnceARun) {
    int counted = 0;
    keypads.model.hintDue = [&](Keypad /*keypad*/) { return ++counted <= 7; };
    keypads.ShowKeypad(Keypad::Trigonometry);
    EXPECT_TRUE(platform.boxes.empty());
    keypads.ShowKeypad(Keypad::Magnetics);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].title, "Magnetics Keypad");
    EXPECT_EQ(platform.boxes[0].kind, BoxKind::Plain);
    EXPECT_EQ(platform.boxes[0].text,
              "Right click any of the light colored Buttons to\nchange the units used for that function, and the\n"
              "yellow buttons perform multiple calculations!");
    keypads.ShowKeypad(Keypad::Engineering);
    keypads.ShowKeypad(Keypad::Magnetics);
    EXPECT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(counted, 1);
}

TEST_F(KeypadModelTest, TheHintIsNotShownOnceItsCounterIsFull) {
    keypads.model.hintDue = [](Keypad /*keypad*/) { return false; };
    keypads.ShowKeypad(Keypad::Engineering);
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(KeypadModelTest, CaptionsFollowWhatTheUserHasChosen) {
    keypads.ShowKeypad(Keypad::Magnetics);
    EXPECT_EQ(bank(15).text, " S \nAWG");
    keypads.keys.electrical.choices.build = WireBuild::Quad;
    // A round winding.
    calc.units.UnitsWordLmu = 1U << 26U;
    keypads.RepaintKeypad();
    EXPECT_EQ(bank(15).text, " Q \nAWG");
    const std::pair<std::uint8_t, std::string_view> captions[] = {
        {kShift, "dia"}, {kCtrl, " od wdg"}, {kShift + kCtrl, "ODw"}, {kAlt, "Ht"}};
    for (const auto& [mask, caption] : captions) {
        keypads.PaintModifiers(mask);
        EXPECT_EQ(bank(12).text, caption);
        keypads.RepaintKeypad();
    }
    // A block has a length and a width, a cylinder a diameter.
    keypads.ShowKeypad(Keypad::Engineering);
    for (const bool block : {false, true}) {
        calc.units.UnitsWordLmu = 1U << (block ? 21U : 20U);
        keypads.PaintModifiers(kAlt);
        EXPECT_EQ(bank(22).text, block ? "len" : "dia");
        keypads.PaintModifiers(kCtrl + kAlt);
        EXPECT_EQ(bank(22).visible, block);
        keypads.RepaintKeypad();
    }
}

TEST_F(KeypadModelTest, F10WithoutAStoredConversionChangesNothing) {
    type("5");
    press(kKeyF10);
    EXPECT_EQ(calc.entryText(), "5");
    EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::Standard);
    EXPECT_EQ(calc.form.lblBank.text, "Standard");
}

TEST_F(KeypadModelTest, F10ClicksTheMarkedConvertKeyAndRestoresTheKeypadWithoutATraceInTheHistory) {
    keypads.ShowKeypad(Keypad::Magnetics);
    keypads.keys.conversions.memory.keep(15, 5.0, " inch to mm ", "mm");
    type("5");
    press(kKeyF10);
    EXPECT_EQ(x(), "25");
    EXPECT_EQ(calc.form.lblBank.text, "Magnetics");
    EXPECT_FALSE(calc.form.lblCnvrt.visible);
    press(kKeyLeft);
    EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::Standard);
}

TEST_F(KeypadModelTest, ArrowsSuppressTheRepaintOfTheKeyUpOnce) {
    pressKey(calc.form, {.keyCode = kKeyUp});
    EXPECT_TRUE(calc.s.modifiers.SkipModifierRelease);
    releaseKey(calc.form, {.keyCode = kKeyUp});
    EXPECT_FALSE(calc.s.modifiers.SkipModifierRelease);
    press(kKeyDown);
    press(kKeyDown);
    EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::Tables);
    EXPECT_FALSE(calc.s.modifiers.SkipModifierRelease) << "a modifier's release would be lost";
}

TEST_F(KeypadModelTest, BankIndexesDoNotRunInReadingOrder) {
    const MainForm& form = calc.form;
    const int bottom = form.cmdFunctions[0].place.top;
    EXPECT_EQ(form.cmdFunctions[19].place.top, bottom);
    EXPECT_LT(form.cmdFunctions[2].place.left, form.cmdFunctions[1].place.left);
    EXPECT_LT(form.cmdFunctions[1].place.left, form.cmdFunctions[0].place.left);
    EXPECT_LT(form.cmdFunctions[0].place.left, form.cmdFunctions[19].place.left);
    EXPECT_LT(form.cmdFunctions[15].place.top, bottom);
}

}  // namespace
}  // namespace tallyforge
