// SPDX-License-Identifier: GPL-3.0-or-later
//
// The keys of the Convert keypad on a whole calculator: gate, dialog, memory and what is kept.
#include "convert/conversion_tables.h"
#include "support/bank_fixture.h"

#include <functional>
#include <string>
#include <vector>

using namespace tallyforge;

namespace {

constexpr std::size_t kTemperature = 3;
constexpr std::size_t kTime = 7;
constexpr std::size_t kFuel = 9;
constexpr std::size_t kPressure = 11;
constexpr std::size_t kVolume = 13;
constexpr std::size_t kLength = 15;
constexpr std::size_t kDecibels = 21;
constexpr std::size_t kForce = 23;

}  // namespace

class ConvertKeypadTest : public BankAtHand {
protected:
    ConvertKeypadTest() { choose(form().mnuConvert); }

    /// What the hand does in the next dialogs.
    void inDialog(std::function<void(Form&)> acts) {
        platform.inDialog = [acts = std::move(acts)](Form& dialog) {
            dialog.open = true;
            acts(dialog);
            dialog.open = false;
        };
    }
    static void press(Form& dialog, const std::string& control, int index = kNoIndex) {
        Control* const found = dialog.find(control, index);
        ASSERT_NE(found, nullptr) << control;
        click(dialog, *found);
    }
    /// Chooses a pair by the indexes of its buttons, and OK.
    void pair(const std::string& options, int from, int to, const std::string& key = "cmdOK") {
        inDialog([=](Form& dialog) {
            press(dialog, options, from);
            press(dialog, options, to);
            press(dialog, key);
        });
    }
    void inchToMillimeter(const char* number = "1", std::uint8_t mask = 0) {
        pair("OptLength", 16, 105);
        on({number}, kLength, mask);
    }
    [[nodiscard]] const Control& key(std::size_t index) const { return form().cmdFunctions.at(index); }
    [[nodiscard]] int dialogs() const { return static_cast<int>(platform.dialogs.size()); }
};

TEST_F(ConvertKeypadTest, AStoredConversionNeedsNoDialog) {
    inchToMillimeter();
    EXPECT_EQ(x(), "25.4");
    on({"2"}, kLength);
    EXPECT_EQ(dialogs(), 1);
    EXPECT_EQ(x(), "50.8");
    EXPECT_EQ(label(), " inch to mm");
    EXPECT_EQ(calc().text(s().stack.LastX), "2");
    EXPECT_EQ(form().lblCnvrt.text, "25.4");
    EXPECT_EQ(form().lblCnvrt.tip, "Use Alt Click to save Cnv. Fctr.");
}

TEST_F(ConvertKeypadTest, ShiftOpensTheDialogAgainAndTheNewFactorReplacesTheOld) {
    inchToMillimeter();
    pair("OptLength", 16, 102);
    on({"1"}, kLength, kShift);
    EXPECT_EQ(dialogs(), 2);
    EXPECT_EQ(x(), "2.54");
    on({"2"}, kLength);
    EXPECT_EQ(dialogs(), 2);
    EXPECT_EQ(x(), "5.08");
    EXPECT_EQ(key(kLength).text, "cm");
}

TEST_F(ConvertKeypadTest, CancelLeavesTheMemoryAsItWasAfterShiftToo) {
    inchToMillimeter();
    inDialog([](Form& dialog) { press(dialog, "cmdCancel"); });
    put({"7"});
    const auto lines = tape();
    bank(kLength, kShift);
    EXPECT_EQ(x(), "7");
    EXPECT_EQ(tape(), lines);
    EXPECT_EQ(s().stack.depth(), 2);
    EXPECT_EQ(key(kLength).text, "mm");
    bank(kLength);
    EXPECT_EQ(x(), "177.8");
}

TEST_F(ConvertKeypadTest, OkWithoutAWholePairIsCancel) {
    for (const int button : {-1, 16, 105}) {
        inDialog([=](Form& dialog) {
            if (button >= 0) {
                press(dialog, "OptLength", button);
            }
            press(dialog, "cmdOK");
        });
        put({"3"});
        const auto lines = tape();
        bank(kLength);
        EXPECT_EQ(x(), "3");
        EXPECT_EQ(tape(), lines);
        EXPECT_EQ(key(kLength).text, std::string("L\xB9"));
        EXPECT_EQ(form().lblCnvrt.text, "Use Alt Click to save Cnv. Fctr.");
    }
}

TEST_F(ConvertKeypadTest, TheCloseButtonIsCancelEvenWithAPair) {
    inDialog([](Form& dialog) {
        press(dialog, "OptLength", 16);
        press(dialog, "OptLength", 105);
        closeForm(dialog);
    });
    on({"3"}, kLength);
    EXPECT_EQ(x(), "3");
    EXPECT_EQ(key(kLength).text, std::string("L\xB9"));
}

TEST_F(ConvertKeypadTest, TheFormerPairStandsSetAndCountsAsChosen) {
    inchToMillimeter();
    inDialog([](Form& dialog) {
        EXPECT_TRUE(dialog.find("OptLength", 16)->checked);
        EXPECT_TRUE(dialog.find("OptLength", 105)->checked);
        EXPECT_FALSE(dialog.find("OptLength", 12)->enabled) << "the twin of the To unit";
        EXPECT_FALSE(dialog.find("OptLength", 101)->enabled) << "the twin of the From unit";
        press(dialog, "cmdOK");
    });
    on({"3"}, kLength, kShift);
    EXPECT_EQ(x(), "76.2");
}

TEST_F(ConvertKeypadTest, AUnitCannotBeChosenAgainstItself) {
    inDialog([](Form& dialog) {
        press(dialog, "OptLength", 16);
        EXPECT_FALSE(click(dialog, *dialog.find("OptLength", 101)));
        EXPECT_FALSE(dialog.find("OptLength", 101)->checked);
        press(dialog, "OptLength", 23);
        EXPECT_TRUE(dialog.find("OptLength", 101)->enabled);
        EXPECT_FALSE(dialog.find("OptLength", 16)->checked);
    });
    on({"1"}, kLength);
}

TEST_F(ConvertKeypadTest, AltStoresTheFactorInRegisterTwoAndRemembersTheConversion) {
    form().cmdSTO.enabled = false;
    pair("OptPress", 15, 19);
    on({"1"}, kPressure, kAlt);
    EXPECT_EQ(reg(2), "0.068947572");
    EXPECT_EQ(form().txtReg_m.at(1).text, "6.9e-02");
    EXPECT_TRUE(form().cmdSTO.enabled);
    EXPECT_EQ(label(), " pound (force) per inches\xFD to bar 0.07");
    EXPECT_EQ(key(kPressure).text, "bar");
    on({"2"}, kPressure);
    EXPECT_EQ(x(), "0.137895144");
    EXPECT_EQ(dialogs(), 1);
    // The plain click leaves the register alone.
    inchToMillimeter();
    EXPECT_EQ(reg(2), "0.068947572");
}

TEST_F(ConvertKeypadTest, ModifiersWithoutAMeaningAreRefusedAndXStays) {
    inchToMillimeter();
    for (const int mask : {2, 3, 5, 6, 7}) {
        platform.boxes.clear();
        put({"9"});
        unseen(kLength, static_cast<std::uint8_t>(mask));
        ASSERT_EQ(platform.boxes.size(), 1U) << mask;
        EXPECT_EQ(lastBox(),
                  "That Extended key (or keys) not valid for that function,\n"
                  "see Help file or tooltip for applicable Extended keys");
        EXPECT_EQ(x(), "9");
        EXPECT_EQ(element(0), "9");
    }
    platform.boxes.clear();
    unseen(kTemperature, kAlt);
    EXPECT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(dialogs(), 1);
    bank(kLength);
    EXPECT_EQ(x(), "228.6");
}

TEST_F(ConvertKeypadTest, ANumberOfABaseStaysWithoutDialogOrMessage) {
    choose(form().mnuEngBinary);
    type("#101b");
    BankAtHand::press(kKeyEnter, 13);
    choose(form().mnuConvert);
    for (const std::uint8_t mask : {kNoModifier, kShift, kAlt}) {
        unseen(kLength, mask);
        EXPECT_EQ(dialogs(), 0);
        EXPECT_TRUE(platform.boxes.empty());
        EXPECT_EQ(x(), "#101b");
        EXPECT_EQ(element(0), "#101b");
    }
}

TEST_F(ConvertKeypadTest, TemperatureKeepsItsFormulaAndLeavesTheFactorAlone) {
    inchToMillimeter();
    pair("OptForce", 1, 21);
    on({"98.6"}, kTemperature);
    EXPECT_EQ(x(), "37");
    EXPECT_EQ(key(kTemperature).text, std::string("\xB0"
                                                  "C"));
    EXPECT_EQ(form().lblCnvrt.text, "25.4");
    on({"-40"}, kTemperature);
    EXPECT_EQ(x(), "-40");
    EXPECT_EQ(dialogs(), 2);
    pair("OptForce", 2, 21);
    on({"0"}, kTemperature, kShift);
    EXPECT_EQ(x(), "-273.15");
    EXPECT_EQ(dialogs(), 3);
}

TEST_F(ConvertKeypadTest, EachUseOfTheForceFormKeepsItsOwnPairAndHidesWhatHasNoUnit) {
    pair("OptForce", 1, 21);
    on({"32"}, kTemperature);
    inDialog([](Form& dialog) {
        EXPECT_EQ(dialog.title, "Convert Force");
        EXPECT_FALSE(dialog.find("OptForce", 1)->checked);
        EXPECT_TRUE(dialog.find("OptForce", 10)->visible);
        press(dialog, "OptForce", 6);
        press(dialog, "OptForce", 16);
        press(dialog, "cmdOK");
    });
    on({"2"}, kForce);
    EXPECT_EQ(value(), 2 * 4.4482216152605);
    inDialog([](Form& dialog) {
        EXPECT_EQ(dialog.title, "Convert Density");
        EXPECT_TRUE(dialog.find("OptForce", 5)->visible);
        EXPECT_FALSE(dialog.find("OptForce", 6)->visible);
        EXPECT_FALSE(dialog.find("OptForce", 15)->visible);
        EXPECT_TRUE(dialog.find("OptForce", 16)->visible);
    });
    on({"2"}, 5);
    inDialog([](Form& dialog) {
        EXPECT_TRUE(dialog.find("OptForce", 1)->checked);
        EXPECT_TRUE(dialog.find("OptForce", 21)->checked);
    });
    on({"2"}, kTemperature, kShift);
}

TEST_F(ConvertKeypadTest, ConsumptionRemembersThatItDivides) {
    pair("OptForce", 8, 14);
    on({"8.5"}, kFuel);
    EXPECT_EQ(x(), "27.6723039176471");
    EXPECT_EQ(form().lblCnvrt.text, "235.2145833");
    on({"27.6723039176471"}, kFuel);
    EXPECT_EQ(x(), "8.49999999999999") << "fifteen digits of a division";
    put({"0"});
    bank(kFuel);
    EXPECT_EQ(lastBox(), "Division by zero - be sure all variables are defined!");
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(label(), "No Data!");
    bank(kFuel, kAlt);
    EXPECT_EQ(reg(2), "") << "a conversion that fails stores nothing";
}

TEST_F(ConvertKeypadTest, ATimeWithoutFactorIsToldBeforeOk) {
    inDialog([](Form& dialog) {
        press(dialog, "OptTime", 16);
        press(dialog, "OptTime", 30);
        EXPECT_EQ(dialog.find("lblResult")->text, "no factor: X unchanged");
        press(dialog, "OptTime", 20);
        EXPECT_EQ(dialog.find("lblResult")->text, "no factor: X unchanged");
        press(dialog, "cmdOK");
    });
    on({"5"}, kTime);
    EXPECT_EQ(x(), "5");
    EXPECT_EQ(label(), " mean month to yr");
    EXPECT_EQ(form().lblCnvrt.text, "1");
}

TEST_F(ConvertKeypadTest, ExactConvertsByDefinitionAndTheTipSaysSo) {
    inDialog([](Form& dialog) {
        press(dialog, "OptTime", 17);
        press(dialog, "OptTime", 21);
        press(dialog, "OptExact", 1);
        EXPECT_EQ(dialog.find("lblResult")->text, "1 calander year = 12 mon");
        press(dialog, "cmdOK");
    });
    on({"1"}, kTime);
    EXPECT_EQ(x(), "12");
    EXPECT_TRUE(key(kTime).tip.ends_with("(exact) "));
    inDialog([](Form& dialog) { EXPECT_TRUE(dialog.find("OptExact", 1)->checked); });
    on({"1"}, kTime, kShift);
    EXPECT_FALSE(key(kLength).tip.ends_with("(exact) "));
}

TEST_F(ConvertKeypadTest, KeepPushesTheResultAboveX) {
    pair("OptLength", 16, 105, "cmdKeep");
    on({"12"}, kLength);
    EXPECT_EQ(x(), "304.8");
    EXPECT_EQ(element(1), "12");
    EXPECT_EQ(s().stack.depth(), 2);
    EXPECT_EQ(label(), " inch to mm");
}

TEST_F(ConvertKeypadTest, SwapTurnsThePairRound) {
    inDialog([](Form& dialog) {
        press(dialog, "OptDB", 1);
        press(dialog, "OptDB", 5);
        EXPECT_EQ(dialog.find("lblResult")->text, "1 nepers = 8.686 decibel");
        press(dialog, "cmdSwap");
        EXPECT_EQ(dialog.find("lblResult")->text, "1 decibel = 0.115127791848952 nepers");
        EXPECT_TRUE(dialog.find("OptDB", 0)->checked);
        EXPECT_TRUE(dialog.find("OptDB", 4)->checked);
        press(dialog, "cmdOK");
    });
    on({"1"}, kDecibels);
    EXPECT_EQ(x(), "0.115127791848952");
}

TEST_F(ConvertKeypadTest, TheDefaultKeyChoosesTheUsualPair) {
    inDialog([](Form& dialog) {
        press(dialog, "cmdDef");
        EXPECT_EQ(dialog.find("lblResult")->text, "2 gallon(liq) = 7.570823568 l");
        press(dialog, "cmdOK");
    });
    on({"2"}, kVolume);
    EXPECT_EQ(x(), "7.570823568");
    inDialog([](Form& dialog) { EXPECT_FALSE(dialog.find("cmdDef")->visible); });
    on({"2"}, kPressure);
}

TEST_F(ConvertKeypadTest, AWrongFactorIsToldInTheDialogAndAtTheKey) {
    inDialog([](Form& dialog) {
        press(dialog, "OptVolume", 23);
        press(dialog, "OptVolume", 83);
        EXPECT_EQ(dialog.find("lblNote")->text, "Table: gallon(dry) is off by -8.1 %");
        press(dialog, "OptExact", 1);
        EXPECT_EQ(dialog.find("lblNote")->text, "");
        EXPECT_EQ(dialog.find("lblResult")->text, "1 gallon(dry) = 4.40488377086 l");
        press(dialog, "OptExact", 0);
        press(dialog, "cmdOK");
    });
    on({"1"}, kVolume);
    EXPECT_EQ(x(), "4.0488377086");
    EXPECT_TRUE(key(kVolume).tip.ends_with("Table: gallon(dry) is off by -8.1 % ")) << key(kVolume).tip;
}

TEST_F(ConvertKeypadTest, AResultOutOfRangeIsRefusedAndNothingIsRemembered) {
    pair("OptLength", 57, 117);
    on({"1e308"}, kLength);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(lastTitle(), "cmdFunctions Error!");
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(label(), "No Data!");
    EXPECT_EQ(calc().text(s().stack.LastX), "1e308");
    EXPECT_EQ(key(kLength).text, std::string("L\xB9"));
    // Key 21 keeps the message of the octal key.
    pair("OptDB", 2, 5);
    on({"1e308"}, kDecibels);
    EXPECT_EQ(lastBox(), "Octal number outside of range: 17777777777 octal maximum");
}

TEST_F(ConvertKeypadTest, AnEmptyStackConvertsZero) {
    pair("OptLength", 16, 105);
    bank(kLength);
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(x(), "0");
}

TEST_F(ConvertKeypadTest, AnExponentWithoutDigitsIsTheNumberBeforeIt) {
    pair("OptLength", 16, 105);
    type("1e");
    bank(kLength);
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(x(), "25.4");
    EXPECT_EQ(s().stack.depth(), 1);
}

TEST_F(ConvertKeypadTest, TheLabelStaysUntilTheKeypadIsChosenAnew) {
    inchToMillimeter();
    holdModifiers(form(), kShift);
    releaseModifiers(form());
    EXPECT_EQ(form().lblCnvrt.text, "25.4");
    EXPECT_EQ(key(kLength).text, "mm");
    choose(form().mnuConvert);
    EXPECT_EQ(form().lblCnvrt.text, "Use Alt Click to save Cnv. Fctr.");
    EXPECT_EQ(key(kLength).text, "mm");
}

TEST_F(ConvertKeypadTest, ShiftAndAltLeaveTheCaptionOfTheConversion) {
    inchToMillimeter();
    for (const std::uint8_t mask : {kShift, kAlt}) {
        holdModifiers(form(), mask);
        EXPECT_EQ(key(kLength).text, "mm");
        EXPECT_EQ(key(kLength).font.face, Face::Arial);
        releaseModifiers(form());
    }
    holdModifiers(form(), kCtrl);
    EXPECT_FALSE(key(kLength).visible);
    releaseModifiers(form());
    EXPECT_EQ(key(kLength).text, "mm");
}

TEST_F(ConvertKeypadTest, F10AppliesTheLastConversionOnAnyKeypad) {
    inchToMillimeter();
    pair("OptForce", 6, 16);
    on({"1"}, kForce);
    bank(kLength);
    choose(form().mnuTrig);
    put({"3"});
    BankAtHand::press(kKeyF10);
    EXPECT_EQ(x(), "76.2") << "the length key was the last to convert";
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Trigonometry);
    choose(form().mnuConvert);
    BankAtHand::press(kKeyF10);
    EXPECT_EQ(x(), "1935.48");
    EXPECT_EQ(form().lblCnvrt.text, "25.4") << "on its own keypad the factor stays to be seen";
}

TEST_F(ConvertKeypadTest, ResetForgetsWhatIsInForce) {
    inchToMillimeter();
    pair("OptForce", 1, 21);
    on({"98.6"}, kTemperature);
    choose(form().cmdReset);
    EXPECT_EQ(key(kLength).text, std::string("L\xB9"));
    EXPECT_EQ(key(kTemperature).text, std::string("T\xB0"));
    const int before = dialogs();
    inDialog([](Form& dialog) { press(dialog, "cmdCancel"); });
    on({"1"}, kTemperature);
    on({"1"}, kLength);
    EXPECT_EQ(dialogs(), before + 2);
    BankAtHand::press(kKeyF10);
    EXPECT_EQ(x(), "1");
}

TEST_F(ConvertKeypadTest, TheMemoryIsSavedWithTheSettingsAndReadAtStart) {
    inchToMillimeter();
    pair("OptForce", 1, 21);
    on({"98.6"}, kTemperature);
    platform.answers.push_back(Answer::Yes);
    choose(form().mnuSave);
    EXPECT_EQ(file(".conversions"),
              "tallyforge conversions 1\n3 0 1 0 table held marked\n15 0 16 12 table held plain\nend 2\n");
    start();
    choose(form().mnuConvert);
    const int before = dialogs();
    EXPECT_EQ(key(kLength).text, "mm");
    on({"2"}, kLength);
    EXPECT_EQ(x(), "50.8");
    on({"212"}, kTemperature);
    EXPECT_EQ(x(), "100");
    EXPECT_EQ(dialogs(), before);
    // Reset clears what is in force, not the file.
    choose(form().cmdReset);
    start();
    choose(form().mnuConvert);
    EXPECT_EQ(key(kLength).text, "mm");
}

TEST_F(ConvertKeypadTest, AMemoryFileCutShortIsSetAsideAndTold) {
    const std::string whole = "tallyforge conversions 1\n15 0 16 12 table held marked\nend 1\n";
    for (std::size_t length = 0; length < whole.size(); ++length) {
        writeFile(".conversions", whole.substr(0, length));
        platform.boxes.clear();
        start();
        ASSERT_EQ(platform.boxes.size(), 1U) << length;
        EXPECT_EQ(lastTitle(), "Conversions");
        EXPECT_EQ(file(".conversions.damaged"), whole.substr(0, length));
        EXPECT_EQ(file(".conversions"), "");
        choose(form().mnuConvert);
        EXPECT_EQ(key(kLength).text, std::string("L\xB9"));
    }
    writeFile(".conversions", whole);
    platform.boxes.clear();
    start();
    EXPECT_TRUE(platform.boxes.empty());
    choose(form().mnuConvert);
    EXPECT_EQ(key(kLength).text, "mm");
}

// Every dialog opened from its key, each group's first and last unit taken through the buttons.
TEST_F(ConvertKeypadTest, EveryDialogConvertsFromItsKey) {
    for (const ConversionTable* table : conversionTables()) {
        for (const UnitGroup& group : table->groups) {
            SCOPED_TRACE(std::string(table->title) + " " + std::string(group.options));
            const int last = static_cast<int>(group.units.size()) - 1;
            inDialog([&](Form& dialog) {
                EXPECT_EQ(dialog.name, table->form);
                EXPECT_EQ(dialog.title, table->title);
                press(dialog, std::string(group.options), 0);
                press(dialog, std::string(group.options), group.toButton(last));
                press(dialog, "cmdOK");
            });
            on({"1"}, static_cast<std::size_t>(table->key), kShift);
            EXPECT_EQ(x(), calc().text(ValueCell{convert(group, 0, last, 1.0).value}));
            EXPECT_EQ(key(static_cast<std::size_t>(table->key)).text, toLabel(group, last));
            EXPECT_TRUE(platform.boxes.empty());
        }
    }
}
