// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a hand meets in a calculator dialog: keys of a field, "Use", units, values brought in, and
// input that is no good.
#include "calculator_fixture.h"
#include "calculators/calculators.h"

#include <cmath>
#include <limits>

namespace tallyforge {
namespace {

class OhmsLaw : public CalculatorTest {};

TEST_F(OhmsLaw, TheExampleComesOutToTheLetter) {
    open(kOhmsLaw, [&](DialogAtHand hand) {
        for (const char* option : {"OptP", "OptX"}) {
            hand.clickOn(option, 1);
        }
        hand.enter();
        EXPECT_EQ(hand.focus(), "txtVal(1)") << "Enter on an empty field moves on";
        hand.enter("2");
        hand.enter("10");
        EXPECT_EQ(hand.field(0), "20.000 0");
        EXPECT_EQ(hand.field(3), "5.000 0");
        EXPECT_EQ(hand.focus(), "cmdXreg");
        EXPECT_EQ(hand.at("cmdXreg").tip, " Add solution to the Running Tape Display ");
        EXPECT_EQ(hand.at("cmdCalc").text, "&Exit");
        EXPECT_EQ(hand.at("cmdCalc").tip, " Quit the Ohms Law Calculator ");
        hand.enter();
        EXPECT_EQ(hand.focus(), "cmdCalc");
        EXPECT_TRUE(hand.form.open);
        hand.enter();
        EXPECT_FALSE(hand.form.open);
    });
    EXPECT_EQ(posted(), (std::vector<double>{2, 10, 20, 5}));
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_EQ(line(), "Ohms               5.00");
}

TEST_F(OhmsLaw, AFieldTakesFifteenCharactersAndABoxTellsOfTheNext) {
    open(kOhmsLaw, [&](DialogAtHand hand) {
        hand.type("123456789012345");
        EXPECT_TRUE(platform.boxes.empty());
        hand.type("6");
        EXPECT_EQ(hand.field(0), "123456789012345");
        EXPECT_EQ(platform.boxes.at(0).kind, BoxKind::Info);
        expectBox("Character Limit Reached!",
                  "\nYou've exceeded 15 characters! The \npreviously entered number will be used.\n"
                  "123456789012345. Or press Esc or\n Click Clear to re-enter.");
        hand.press(kKeyBackspace, 8);
        EXPECT_EQ(hand.field(0), "12345678901234");
        hand.type("5");
        hand.press(kKeyEscape, 27);
        EXPECT_EQ(hand.field(0), "");
        EXPECT_TRUE(platform.boxes.empty());
        EXPECT_TRUE(hand.form.open);
    });
}

TEST_F(OhmsLaw, AFieldTakesNumbersAlone) {
    struct Case {
        const char* typed;
        const char* stands;
    };
    for (const Case& one : {Case{"1.2.3", "1.23"},
                            {"-5", "5"},
                            {"5-", "5"},
                            {"e", "1e"},
                            {"2e5", "2e5"},
                            {"2E5", "2e5"},
                            {"2e-5", "2e-5"},
                            {"2e--5", "2e-5"},
                            {"2e5e5", "2e55"},
                            {"2e\\3", "2e-3"},
                            {"2e1.5", "2e15"},
                            {"4\\", "4"},
                            {"ab7", "7"},
                            {"1,5", "15"},
                            {"e-3", "1e-3"}}) {
        open(kOhmsLaw, [&](DialogAtHand hand) {
            hand.type(one.typed);
            EXPECT_EQ(hand.field(0), one.stands) << one.typed;
        });
    }
    calc.s.format.DecimalChar = ',';
    open(kOhmsLaw, [&](DialogAtHand hand) {
        hand.type("1,5.2,5");
        EXPECT_EQ(hand.field(0), "1,525");
    });
}

TEST_F(OhmsLaw, AnExponentWithoutDigitsIsOneOfZero) {
    open(kOhmsLaw, [&](DialogAtHand hand) {
        hand.enter("1e");
        hand.enter("4");
        EXPECT_EQ(hand.field(2), "0.250 0");
    });
}

TEST_F(OhmsLaw, ATextThatIsNoNumberIsNotTaken) {
    for (const char* text : {".", "1e-"}) {
        open(kOhmsLaw, [&](DialogAtHand hand) {
            hand.enter(text);
            expectBox("calcOhms Error!", "Error number 13");
            EXPECT_TRUE(hand.at("txtVal", 0).enabled);
            EXPECT_EQ(hand.field(0), text);
            EXPECT_EQ(hand.focus(), "txtVal(0)");
            hand.press(kKeyEscape, 27);
            hand.enter("8");
            hand.enter("2");
            EXPECT_EQ(hand.field(2), "4.000 0");
        });
    }
}

TEST_F(OhmsLaw, AZeroStartsTheSetAnew) {
    open(kOhmsLaw, [&](DialogAtHand hand) {
        hand.enter("8");
        hand.enter("0");
        EXPECT_TRUE(platform.boxes.empty());
        EXPECT_EQ(hand.field(0), "");
        EXPECT_TRUE(hand.at("txtVal", 0).enabled);
        EXPECT_EQ(hand.focus(), "txtVal(0)");
        hand.press(kKeyTab, 9);
        hand.enter("3");
        EXPECT_EQ(hand.at("cmdXreg").text, "&Exit") << "nothing of the earlier set solves";
        hand.enter("6");
        EXPECT_EQ(hand.field(0), "18.000 0");
    });
}

TEST_F(OhmsLaw, AResultBeyondTheRangeShowsItsBoxAndLeavesWhatWasGiven) {
    open(kOhmsLaw, [&](DialogAtHand hand) {
        hand.press(kKeyTab, 9);
        hand.enter("1e300");
        hand.enter("1e300");
        expectBox("calcOhms Error!", std::string("Number outside of range: ± 1.8e308, & ± 4.9e-324"_t));
        EXPECT_EQ(hand.field(0), "");
        EXPECT_EQ(hand.field(1), "1e300");
        EXPECT_EQ(hand.field(2), "1e300");
        EXPECT_EQ(hand.field(3), "");
        EXPECT_EQ(hand.at("cmdXreg").text, "&Exit");
        EXPECT_EQ(hand.focus(), "cmdDefault");
        hand.enter();
        EXPECT_EQ(hand.field(1), "");
        EXPECT_EQ(hand.focus(), "txtVal(0)");
    });
    EXPECT_EQ(calc.tape.lines(), 0U);
}

TEST_F(OhmsLaw, SquaresThatLeaveTheRangeDoNotSpoilAResultWithin) {
    open(kOhmsLaw, [&](DialogAtHand hand) {
        hand.clickOn("txtVal", 2);
        hand.enter("1e200");
        hand.enter("1e200");
        hand.enter();
    });
    EXPECT_NEAR(posted().at(3) / 1e200, 1.0, 1e-15) << "E²/R";
    EXPECT_EQ(posted().at(2), 1.0);
}

TEST_F(OhmsLaw, AnotherRowClearsValuesAndLabelsTheField) {
    open(kOhmsLaw, [&](DialogAtHand hand) {
        hand.enter("8");
        hand.clickOn("OptI", 1);
        EXPECT_EQ(hand.field(0), "");
        EXPECT_EQ(hand.at("lblUnits", 1).text, "mA");
        EXPECT_EQ(hand.focus(), "txtVal(0)");
        hand.press(kKeyTab, 9);
        hand.enter("500");
        hand.enter("3");
        EXPECT_EQ(hand.field(0), "1.500 0");
        EXPECT_EQ(hand.field(3), "6.000 0");
        hand.clickOn("OptE", 1);
        EXPECT_EQ(hand.field(3), "") << "a solution goes, too";
        EXPECT_EQ(hand.at("cmdXreg").text, "&Exit");
    });
    EXPECT_EQ(chosenUnit(kOhmI, calc.units).label, "mA") << "in force for keys and tips";
}

TEST_F(OhmsLaw, UseKeepsOneFieldAndTheNextValueSolves) {
    open(kOhmsLaw, [&](DialogAtHand hand) {
        hand.enter("20");
        hand.enter("2");
        for (int i = 0; i < 4; ++i) {
            EXPECT_TRUE(hand.at("optCalc", i).visible);
        }
        EXPECT_FALSE(hand.at("optCalc", 4).visible);
        EXPECT_TRUE(hand.at("optCalc", 4).checked);
        EXPECT_TRUE(hand.at("lblUse").visible);
        hand.clickOn("optCalc", 3);
        EXPECT_EQ(hand.field(3), "5.000 0");
        EXPECT_FALSE(hand.at("txtVal", 3).enabled);
        EXPECT_FALSE(hand.at("optCalc", 0).visible) << "the mouse came up";
        EXPECT_EQ(hand.focus(), "txtVal(0)") << "around the end";
        EXPECT_EQ(hand.at("cmdXreg").text, "&Exit");
        hand.clickOn("txtVal", 2);
        hand.enter("30");
        EXPECT_EQ(hand.field(0), "180.000 0");
        EXPECT_EQ(hand.field(1), "6.000 0");
    });
}

TEST_F(OhmsLaw, KeepsTheCountThatASolutionInFieldZeroLeaves) {
    open(kOhmsLaw, [&](DialogAtHand hand) {
        hand.clickOn("txtVal", 1);
        hand.enter("3");
        hand.enter("6");
        EXPECT_EQ(hand.field(0), "18.000 0");
        hand.clickOn("optCalc", 1);
        hand.enter("7");
        EXPECT_EQ(hand.at("cmdXreg").text, "&Exit") << "the first value does not solve";
        EXPECT_EQ(hand.field(2), "7");
        hand.enter("4");
        EXPECT_EQ(hand.field(0), "36.000 0") << "the kept 3 A and the last value, 4 ohms";
        EXPECT_EQ(hand.field(2), "12.000 0");
    });
}

TEST_F(OhmsLaw, ExactValuesArePostedAndNotTheirShownDigits) {
    open(kOhmsLaw, [&](DialogAtHand hand) {
        hand.clickOn("txtVal", 2);
        hand.enter("1");
        hand.enter("3");
        EXPECT_EQ(hand.field(1), "0.333 3");
        hand.clickOn("optCalc", 1);
        hand.clickOn("txtVal", 3);
        hand.enter("3");
        EXPECT_EQ(hand.field(2), "1.000 0");
        hand.enter();
    });
    EXPECT_EQ(posted(), (std::vector<double>{1.0 / 3.0, 3.0, 1.0, 1.0 / 3.0}));
}

TEST_F(OhmsLaw, MoreDigitsOfTheUserAreShownAndHisModeToo) {
    calc.s.format.DisplayDigits = 6;
    open(kOhmsLaw, [&](DialogAtHand hand) {
        hand.clickOn("txtVal", 2);
        hand.enter("1");
        hand.enter("3");
        EXPECT_EQ(hand.field(1), "0.333 333");
    });
    calc.s.format.DisplayDigits = 2;
    calc.s.format.Mode = DisplayMode::Scientific;
    open(kOhmsLaw, [&](DialogAtHand hand) {
        hand.clickOn("txtVal", 2);
        hand.enter("1");
        hand.enter("3");
        EXPECT_EQ(hand.field(1), "3.3333e-01");
    });
}

TEST_F(OhmsLaw, TheEnterKeyOnTheFormCommitsTheFieldOfBefore) {
    open(kOhmsLaw, [&](DialogAtHand hand) {
        hand.type("20");
        hand.clickOn("cmdCalc");
        EXPECT_FALSE(hand.at("txtVal", 0).enabled);
        EXPECT_EQ(hand.focus(), "txtVal(1)");
        hand.type("2");
        hand.clickOn("cmdCalc");
        EXPECT_EQ(hand.field(2), "10.000 0");
        hand.clickOn("cmdCalc");
        EXPECT_FALSE(hand.form.open);
    });
}

TEST_F(OhmsLaw, CtrlTabLeavesTheFieldsAndComesBack) {
    open(kOhmsLaw, [&](DialogAtHand hand) {
        hand.press(kKeyTab, 9, kCtrl);
        EXPECT_EQ(hand.focus(), "OptP(1)");
        hand.press(kKeyDown);
        EXPECT_EQ(chosenUnit(kOhmP, calc.units).label, "kW");
        EXPECT_EQ(hand.focus(), "txtVal(0)") << "another row starts anew";
        hand.press(kKeyTab, 9, kCtrl);
        EXPECT_EQ(hand.focus(), "OptP(2)");
        hand.press(kKeyTab, 9, kCtrl);
        EXPECT_EQ(hand.focus(), "txtVal(0)");
    });
}

TEST_F(OhmsLaw, CtrlTabComesBackToTheFirstFieldThatIsOpen) {
    open(kOhmsLaw, [&](DialogAtHand hand) {
        hand.enter("20");
        hand.press(kKeyTab, 9, kCtrl);
        hand.press(kKeyTab, 9, kCtrl);
        EXPECT_EQ(hand.focus(), "txtVal(1)") << "the first is given";
        hand.enter("2");
        hand.press(kKeyTab, 9, kCtrl);
        EXPECT_EQ(hand.focus(), "OptP(1)") << "all are given or found";
    });
    open(kArc, [&](DialogAtHand hand) {
        hand.press(kKeyTab, 9, kCtrl);
        EXPECT_EQ(hand.focus(), "cmdXreg") << "there are no options to go to";
        hand.press(kKeyTab, 9, kCtrl | kShift);
        EXPECT_EQ(hand.focus(), "txtVal(0)");
        hand.press(kKeyTab, 9);
        EXPECT_EQ(hand.focus(), "txtVal(1)");
    });
}

TEST_F(OhmsLaw, ABaseNumberIsNoValueAndStaysOnTheStack) {
    openWith(kOhmsLaw, kShift, "#1Fh", [&](DialogAtHand hand) {
        expectBox("calcOhms Error!", "Error number 13");
        EXPECT_TRUE(hand.at("txtVal", 0).enabled);
        hand.clickOn("cmdXreg");
    });
    EXPECT_EQ(calc.s.stack.slot(1), ValueCell("#1Fh"));
}

TEST_F(OhmsLaw, AZeroOrAnEmptyStackOpensTheDialogEmpty) {
    openWith(kOhmsLaw, kShift, 0.0, [&](DialogAtHand hand) { EXPECT_EQ(hand.field(0), ""); });
    calc.s.stack.StackPtr = 1;
    calc.s.modifiers.ModifierMask = kShift;
    handOver.EnterDialog();
    open(kTemperatureCoefficient, [&](DialogAtHand hand) { EXPECT_EQ(hand.field(0), ""); });
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(OhmsLaw, DefaultAsksForTheRangesOfTheDialog) {
    std::vector<const UnitRange*> asked;
    services.saveUnits = [&](std::span<const UnitRange* const> ranges) { asked.assign(ranges.begin(), ranges.end()); };
    open(kOhmsLaw, [&](DialogAtHand hand) { hand.clickOn("cmdDefault"); });
    EXPECT_EQ(asked, (std::vector<const UnitRange*>{&kOhmP, &kOhmI, &kOhmE, &kOhmR}));
}

TEST_F(OhmsLaw, StandsBesideTheMainFormAndOnTheScreen) {
    calc.form.place = {.left = 1000, .top = 2000, .width = 5310, .height = 6200};
    open(kOhmsLaw, [&](DialogAtHand hand) {
        EXPECT_EQ(hand.form.place.left, 1000 + 5310 / 2);
        EXPECT_EQ(hand.form.place.top, 2000);
    });
    calc.form.place.left = 24000;
    calc.form.place.top = 15000;
    open(kOhmsLaw, [&](DialogAtHand hand) {
        EXPECT_EQ(hand.form.place.left, 28800 - 800 - hand.form.place.width);
        EXPECT_EQ(hand.form.place.top, 16200 - hand.form.place.height);
    });
    // Where half of the main form is wider than the dialog, it stands over the form.
    calc.form.place.width = 28000;
    open(kOhmsLaw,
         [&](DialogAtHand hand) { EXPECT_EQ(hand.form.place.left, std::min(24000, 28800 - hand.form.place.width)); });
}

class ThreeAndFourGivens : public CalculatorTest {};

TEST_F(ThreeAndFourGivens, TheFluxDensityExample) {
    open(kFluxDensity, [&](DialogAtHand hand) {
        for (const char* value : {"12000", "120", "60", "6.45"}) {
            hand.enter(value);
        }
        EXPECT_EQ(hand.field(4), "581.977 3");
        hand.enter();
    });
    EXPECT_EQ(line(), "n                581.98");
    EXPECT_EQ(line(3), "V                120.00");
}

TEST_F(ThreeAndFourGivens, AKeptFieldCountsAsGiven) {
    open(kFluxDensity, [&](DialogAtHand hand) {
        for (const char* value : {"12000", "120", "60", "6.45"}) {
            hand.enter(value);
        }
        hand.clickOn("optCalc", 4);
        EXPECT_EQ(hand.focus(), "txtVal(0)");
        hand.enter("6000");
        hand.enter("120");
        EXPECT_EQ(hand.at("cmdXreg").text, "&Exit");
        hand.enter("60");
        EXPECT_EQ(hand.field(3), "12.900 0");
    });
}

TEST_F(ThreeAndFourGivens, AnotherWaveShapeClearsAndChangesTheFactor) {
    open(kFluxDensity, [&](DialogAtHand hand) {
        hand.enter("12000");
        hand.clickOn("OptWS", 1);
        EXPECT_EQ(hand.field(0), "");
        for (const char* value : {"12000", "120", "60", "6.45"}) {
            hand.enter(value);
        }
        EXPECT_EQ(hand.field(4), "645.994 8") << "581.9773 · 4.44 / 4";
    });
}

TEST_F(ThreeAndFourGivens, AmpereTurnsOfOneLengthHaveNoFactor) {
    for (int row = 1; row < 5; ++row) {
        constexpr std::array kSameLength{0, 0, 1, 2, 3};
        chooseRow(kMagH, row, calc.units);
        chooseRow(kMagLe, kSameLength.at(static_cast<std::size_t>(row)), calc.units);
        const std::size_t before = calc.tape.lines();
        open(kMagnetizingForce, [&](DialogAtHand hand) {
            hand.enter();
            hand.enter("30");
            hand.enter("2");
            hand.enter("6");
            EXPECT_EQ(hand.field(0), "10.000 0") << row;
            hand.enter();
        });
        EXPECT_NEAR(posted(before).back(), 10.0, 1e-14);
    }
    chooseRow(kMagH, 0, calc.units);
    chooseRow(kMagLe, 0, calc.units);
    chooseRow(kMagI, 1, calc.units);
    open(kMagnetizingForce, [&](DialogAtHand hand) {
        hand.enter();
        hand.enter("30");
        hand.enter("2000");
        hand.enter("6");
        EXPECT_EQ(hand.field(0), "12.566 4") << "oersteds of milliamperes";
    });
}

TEST_F(ThreeAndFourGivens, TheCoreAsksForEachDimensionAndTakesPlainDecimals) {
    open(kCCore, [&](DialogAtHand hand) {
        for (const char* letter : {"D", "E", "F", "G"}) {
            hand.enter();
            expectBox("Missing Parameter!", "Dimension \"" + std::string(letter) + "\" is required");
        }
        EXPECT_EQ(hand.focus(), "txtVal(0)") << "results are no fields to type in";
        hand.type("1e5-\\.5.");
        EXPECT_EQ(hand.field(0), "15.5");
    });
}

TEST_F(ThreeAndFourGivens, ACoreInInches) {
    chooseRow(kCoreDimension, 2, calc.units);
    chooseRow(kCorePath, 2, calc.units);
    open(kCCore, [&](DialogAtHand hand) {
        for (const char* value : {"0.5", "1", "1.5", "3"}) {
            hand.enter(value);
        }
        EXPECT_EQ(hand.field(4), "0.500 0");
        EXPECT_EQ(hand.field(5), "12.141 6");
        EXPECT_EQ(hand.at("lblUnits", 4).text, "Ae(in²)"_t);
        hand.enter();
    });
    EXPECT_EQ(line(4), "Ae(in²)            0.50");
}

TEST_F(ThreeAndFourGivens, AZeroDimensionStartsAnew) {
    open(kCCore, [&](DialogAtHand hand) {
        hand.enter("1");
        hand.enter("0");
        EXPECT_EQ(hand.field(0), "");
        EXPECT_FALSE(hand.at("txtVal", 4).enabled);
    });
}

TEST_F(ThreeAndFourGivens, TemperaturesMayBeNegativeOrZero) {
    open(kTemperatureCoefficient, [&](DialogAtHand hand) {
        EXPECT_FALSE(hand.at("cmdValues").enabled) << "no list yet";
        hand.enter("0.004");
        hand.enter("100");
        hand.enter();
        EXPECT_EQ(hand.focus(), "txtVal(3)");
        hand.enter("0");
        hand.enter("40\\");
        EXPECT_EQ(hand.field(4), "-40");
        EXPECT_EQ(hand.field(2), "84.000 0");
        hand.enter();
    });
    EXPECT_EQ(line(4), "Ω/Ω/°C         4.00e-03");
    EXPECT_EQ(line(3), "R1               100.00");
    EXPECT_EQ(line(2), "°C                 0.00");
}

TEST_F(ThreeAndFourGivens, CopperByItsCoefficientAtTwentyDegrees) {
    open(kTemperatureCoefficient, [&](DialogAtHand hand) {
        hand.clickOn("chkCu");
        hand.clickOn("txtVal", 0);
        hand.enter("0.00393");
        hand.enter("100");
        hand.enter();
        hand.enter("50");
        hand.enter("80");
        // 100 (1 + 0.00393 · 60) / (1 + 0.00393 · 30), by hand.
        EXPECT_EQ(hand.field(2), "110.546 6");
        hand.clickOn("chkCu");
        EXPECT_EQ(hand.field(2), "111.790 0") << "and with the coefficient at T1";
    });
}

TEST_F(ThreeAndFourGivens, CopperAgreesWithTheFormulasAsTheyArePrinted) {
    const double a = 0.00393;
    const double r1 = 100.0;
    const double t1 = 50.0;
    const double t2 = 80.0;
    const double r2 = (a * t2 + 1 - 20 * a) * r1 / (a * t1 + 1 - 20 * a);
    const Values all{a, r1, r2, t1, t2};
    const auto solved = [&](std::uint16_t given, std::size_t field) {
        Values values = all;
        values[field] = 0.0;
        values[kParameter] = 1.0;
        EXPECT_NE(solveFor(kTemperatureCoefficient, given, values), nullptr);
        return values[field];
    };
    EXPECT_NEAR(solved(15, 0), (r2 - r1) / (t2 * r1 - 20 * r1 - t1 * r2 + 20 * r2), 1e-15);
    EXPECT_NEAR(solved(23, 4), r2 / (a * r1) + t1 * r2 / r1 - 20 * r2 / r1 + 20 - 1 / a, 1e-10);
    EXPECT_NEAR(solved(27, 3), r1 / (a * r2) + t2 * r1 / r2 - 20 * r1 / r2 + 20 - 1 / a, 1e-10);
    EXPECT_NEAR(solved(29, 2), r2, 1e-12);
    EXPECT_NEAR(solved(30, 1), (a * t1 + 1 - 20 * a) * r2 / (a * t2 + 1 - 20 * a), 1e-12);
}

class Bands : public CalculatorTest {};

TEST_F(Bands, TheLowerFrequencyOfAWideBandKeepsItsDigits) {
    Values values{1.0, 1e9};
    ASSERT_NE(solveFor(kGeometricMean, 3, values), nullptr);
    EXPECT_NEAR(values[2] / 1e-9, 1.0, 1e-15);
    EXPECT_NEAR(values[3] / 1e9, 1.0, 1e-15);
}

TEST_F(Bands, TheResonanceExample) {
    chooseRow(kLcC, 4, calc.units);
    chooseRow(kLcL, 2, calc.units);
    chooseRow(kLcF, 2, calc.units);
    openWith(kResonantFrequency, kCtrl, "100", [&](DialogAtHand hand) {
        EXPECT_EQ(hand.field(1), "100");
        hand.clickOn("txtVal", 2);
        hand.enter("10");
        EXPECT_EQ(hand.field(0), "316.227 8");
        EXPECT_EQ(hand.field(3), "5.032 9");
    });
    EXPECT_EQ(calc.tape.lines(), 1U) << "nothing was added";
}

TEST_F(Bands, OneHenryAndOneFarad) {
    Values values{0.0, 1.0, 1.0};
    ASSERT_NE(solveFor(kResonantFrequency, 6, values), nullptr);
    EXPECT_DOUBLE_EQ(values[3], 1.0 / (2.0 * 3.14159265358979));
}

TEST_F(Bands, TurnsByTheRowsOfInductanceATurn) {
    // nH/T, µH/100, mH/1000 against Hy, mH, µH, nH: L' and f of each pair, written down by hand.
    constexpr std::array<std::array<double, 4>, 3> kNumerator{
        {{1e9, 1e6, 1000, 1}, {1e6, 1000, 1, 1.0 / 1000}, {1000, 1, 1.0 / 1000, 1.0 / 1e6}}};
    constexpr std::array kTurns{1.0, 10000.0, 1e6};
    for (std::size_t lo = 0; lo < 3; ++lo) {
        for (std::size_t l = 0; l < 4; ++l) {
            chooseRow(kCoreLo, static_cast<int>(lo), calc.units);
            chooseRow(kCoreL, static_cast<int>(l), calc.units);
            const std::size_t before = calc.tape.lines();
            open(kInductanceByTurns, [&](DialogAtHand hand) {
                hand.enter("25");
                hand.enter("3");
                hand.enter();
            });
            const double wanted = std::sqrt(3.0 * kNumerator[lo][l] / 25.0 * kTurns[lo]);
            EXPECT_NEAR(posted(before).back() / wanted, 1.0, 1e-14) << lo << " " << l;
        }
    }
}

}  // namespace
}  // namespace tallyforge
