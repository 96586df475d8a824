// SPDX-License-Identifier: GPL-3.0-or-later
//
// The electrical keys in the hand of their user: what stands on tape and stack, and what a wrong
// input costs.
#include "support/bank_fixture.h"

#include "platform/text.h"

#include <cmath>
#include <utility>

namespace tallyforge {
namespace {

// Every key that needs several inputs: its reset label, and what it takes under which modifiers.
struct SeveralInputs {
    std::size_t key;
    const char* resetLabel;
    std::vector<std::uint8_t> masks;  ///< of the inputs, without Shift
    std::vector<int> without = {};    ///< masks without a meaning
};

class ElectricalBank : public BankAtHand {
protected:
    void input(const char* number, std::size_t key, std::uint8_t mask = 0) {
        type(number);
        bank(key, mask);
    }
    /// A tape line as it is read, counted from the last one.
    std::string read(std::size_t fromEnd = 0) { return toUnicode(line(fromEnd), Face::Terminal); }
    std::vector<std::string> last(std::size_t count) {
        std::vector<std::string> lines;
        for (std::size_t i = count; i > 0; --i) {
            lines.push_back(read(i - 1));
        }
        return lines;
    }
    /// Chooses options in the dialog of a key, by Ctrl and the right button.
    void chooseIn(std::size_t key, const std::vector<std::pair<const char*, int>>& options, const char* text = "") {
        platform.inDialog = [&](Form& dialog) {
            for (const auto& [name, index] : options) {
                click(dialog, *dialog.find(name, index));
            }
            if (Control* field = dialog.find("txtCd"); field != nullptr && *text != '\0') {
                click(dialog, *field);
                strikeAll(dialog, text);
            }
            click(dialog, *dialog.find("cmdOk"));
        };
        rightClick(form(), form().cmdFunctions.at(key), kCtrl);
        platform.inDialog = {};
    }
    int depth() { return s().stack.depth(); }
    // Below each key two numbers stand that it must leave alone.
    void expectProtocol(const SeveralInputs& key) {
        SCOPED_TRACE("key " + std::to_string(key.key));
        enter("7");
        enter("8");
        const int before = depth();
        input("2", key.key, key.masks.front());
        EXPECT_EQ(depth(), before + 1);
        input("3", key.key, key.masks[1]);
        EXPECT_EQ(element(depth() - before), "8") << "what lies below a set stays";
        input("0", key.key, key.masks.front());
        EXPECT_EQ(read().substr(0, read().find("  ")), key.resetLabel);
        EXPECT_EQ(x(), "0");
        // Nothing is left of the set: the last input alone solves nothing.
        input("3", key.key, key.masks.back());
        EXPECT_EQ(x(), "3");
        choose(form().cmdReset);
        for (const int mask : key.without) {
            enter("5");
            expectNoMeaning(key.key, static_cast<std::uint8_t>(mask));
        }
        choose(form().cmdReset);
    }
    using Lines = std::vector<std::string>;
};

class EngineeringBank : public ElectricalBank {
protected:
    EngineeringBank() {
        choose(form().mnuEngNormal);
        platform.boxes.clear();
    }
};

class MagneticsBank : public ElectricalBank {
protected:
    MagneticsBank() {
        choose(form().mnuMag);
        platform.boxes.clear();
    }
};

constexpr std::uint8_t kShiftCtrl = kShift + kCtrl;
constexpr std::uint8_t kShiftAlt = kShift + kAlt;
constexpr std::uint8_t kCtrlAlt = kCtrl + kAlt;

const SeveralInputs kEngineering[] = {
    {5, "Reset RT", {0, kCtrl, kAlt}, {7}},         {9, "Reset Cp", {0, kCtrl, kAlt, kCtrlAlt}},
    {13, "Reset ZyZ", {0, kCtrl, kAlt, kCtrlAlt}},  {14, "Reset αB", {0, kCtrl}, {4, 5, 6, 7}},
    {15, "Reset Cheby.", {0, kCtrl, kAlt}, {6, 7}}, {19, "Reset scl", {kShift, kAlt, kCtrlAlt}, {3, 7}},
    {20, "Reset rho", {0, kCtrl, kAlt}, {6, 7}},    {22, "Reset", {kCtrl, kAlt}, {1}}};
const SeveralInputs kMagnetics[] = {
    {4, "Reset Pc", {0, kCtrl, kAlt}, {6, 7}},          {8, "Reset Nφ", {0, kCtrl, kAlt}, {6, 7}},
    {9, "Reset Flux Cap.", {0, kCtrl, kAlt, kCtrlAlt}}, {12, "Reset MTL", {0, kCtrl, kAlt}, {6, 7}},
    {13, "Reset Ls", {0, kCtrl, kAlt, kCtrlAlt}},       {17, "Reset Bµ", {0, kAlt}, {6, 7}},
    {18, "Reset ue vs Lo", {kCtrl, 0, kAlt}},           {21, "Reset perm vs DC", {0, kCtrl}, {4, 5, 6, 7}}};

TEST_F(EngineeringBank, EveryKeyResetsOnNothingAndLeavesTheStackBelowAlone) {
    for (const SeveralInputs& key : kEngineering) {
        expectProtocol(key);
    }
}

TEST_F(MagneticsBank, EveryKeyResetsOnNothingAndLeavesTheStackBelowAlone) {
    for (const SeveralInputs& key : kMagnetics) {
        expectProtocol(key);
    }
}

TEST_F(EngineeringBank, KeysOfOneValueRefuseOtherModifiers) {
    enter("5");
    expectNoMeaning(4, {5, 7});
    expectNoMeaning(8, {4, 5, 6, 7});
    expectNoMeaning(23, {2, 3, 4, 5, 6, 7});
}

TEST_F(MagneticsBank, KeysOfOneValueRefuseOtherModifiers) {
    enter("5");
    expectNoMeaning(10, {2, 3, 4, 5, 6, 7});
    expectNoMeaning(20, {5, 7});
}

TEST_F(EngineeringBank, WavesGoByTheirModifiers) {
    const std::pair<std::uint8_t, const char*> steps[] = {{0, "Hz"},         {kShift, "m"}, {kCtrl, "s"},
                                                          {kShiftCtrl, "m"}, {kAlt, "s"},   {kCtrlAlt, "Hz"}};
    const double expected[] = {1.5e8, 1.5e8, 2 / 3e8, 6e8, 0.5, 0.5};
    for (std::size_t i = 0; i < std::size(steps); ++i) {
        input("2", 4, steps[i].first);
        EXPECT_NEAR(value() / expected[i], 1.0, 1e-14) << i;
        EXPECT_EQ(label(), steps[i].second);
    }
    // The user's digits.
    EXPECT_EQ(read(), "Hz                 0.50");
    input("0", 4);
    EXPECT_EQ(lastBox(), "Division by zero - be sure all variables are defined!");
}

TEST_F(EngineeringBank, AngularFrequencyHasItsSquareAndReciprocals) {
    const double w = 6.28318530717958 * 50;
    const std::pair<std::uint8_t, double> steps[] = {
        {0, w}, {kShift, 1 / w}, {kCtrl, w * w}, {kShiftCtrl, 1 / (w * w)}};
    const char* labels[] = {"2πf", "1/2πf", "(2πf)²", "1/(2πf)²"};
    for (std::size_t i = 0; i < std::size(steps); ++i) {
        input("50", 8, steps[i].first);
        EXPECT_NEAR(value() / steps[i].second, 1.0, 1e-13);
        EXPECT_TRUE(read().starts_with(labels[i])) << read();
    }
}

TEST_F(EngineeringBank, DecibelsWriteTheirTypedOperandAndKeepDbwInY) {
    enter("7");
    enter("100");
    input("50", 23);
    EXPECT_EQ(last(3), (Lines{"50.00", "dBw                3.01", "dBv                6.02"}));
    EXPECT_EQ(depth(), 3);
    EXPECT_NEAR(std::stod(element(1)), 3.01029995663981, 1e-12);
    EXPECT_EQ(element(2), "7");
    on({"7", "10", "50", "1", "600"}, 23, kShift);
    EXPECT_NEAR(value(), 20 * std::log10(10 * std::sqrt(600.0) / std::sqrt(50.0)), 1e-12);
    EXPECT_EQ(element(1), "7");
    EXPECT_EQ(read(), "dBv               30.79");
    input("-1", 23);
}

TEST_F(EngineeringBank, DecibelsOfAMissingOperandAreRefused) {
    input("50", 23);
    EXPECT_EQ(lastBox(), "Error number 5");
    EXPECT_EQ(label(), "No Data!");
}

TEST_F(EngineeringBank, ThePadStandsOnTheStackFromTheFirstImpedanceUp) {
    enter("7");
    enter("75");
    input("50", 5, kCtrlAlt);
    EXPECT_EQ(last(4),
              (Lines{"50.00", "R1                43.30", "R2                86.60", "dB                 5.72"}));
    EXPECT_EQ(depth(), 4);
    EXPECT_EQ(element(3), "7");
    EXPECT_NEAR(std::stod(element(2)), 43.3012701892219, 1e-10);
    // The larger impedance must come first; the key keeps no state.
    on({"50", "75"}, 5, kCtrlAlt);
    EXPECT_EQ(lastBox(), "Illegal operation - check for negitive numbers!");
    input("100", 5, kCtrl);
    EXPECT_EQ(label(), "R1");
}

TEST_F(EngineeringBank, EqualTotalAndResistorAreRefusedAndCanBeGivenAnew) {
    input("5", 5);
    input("5", 5, kCtrl);
    EXPECT_EQ(lastBox(), "Illegal operation - check for negitive numbers!");
    input("10", 5, kCtrl);
    EXPECT_EQ(label(), "R2");
    EXPECT_NEAR(value(), 10, 1e-12);
}

TEST_F(EngineeringBank, ImpedancesLeaveAngleMagnitudeAndParts) {
    input("3", 13);
    input("4", 13, kCtrl);
    input("3", 13, kAlt);
    input("4", 13, kCtrlAlt);
    EXPECT_EQ(last(5), (Lines{"jya                4.00", "(Deg)             53.13", "(Mag)              2.50",
                              "(jy)               2.00", "(x+)               1.50"}));
    EXPECT_EQ(depth(), 4);
    // Another part under Shift: all parts stand in their order, then the results.
    input("6", 13, kShiftAlt);
    EXPECT_EQ(read(7), "xb                 3.00");
    EXPECT_EQ(read(6), "jyb                4.00");
    EXPECT_EQ(read(5), "xa                 6.00");
    EXPECT_EQ(read(4), "jya                4.00");
}

TEST_F(EngineeringBank, ImpedanceAndTrianglesDoNotShareAReset) {
    input("3", 13);
    choose(form().cmdReset);
    choose(form().mnuTrig);
    input("3", 11);
    choose(form().mnuEngNormal);
    input("4", 13, kCtrl);
    input("3", 13, kAlt);
    input("4", 13, kCtrlAlt);
    EXPECT_EQ(label(), "jya") << "the first part is to be given again";
}

TEST_F(EngineeringBank, ButterworthEchoesItsInputsUnderShift) {
    input("3", 14, kCtrl);
    input("2", 14);
    EXPECT_EQ(read(), "dB                18.13");
    input("1", 14, kShift);
    EXPECT_EQ(last(3), (Lines{"n                     3", "f/fc              1.000", "dB                 3.01"}));
    EXPECT_EQ(depth(), 2);
}

TEST_F(EngineeringBank, ChebyshevRefusesWhatLiesOutsideAndKeepsTheRest) {
    input("3", 15, kCtrl);
    input("3.1", 15, kAlt);
    EXPECT_EQ(lastTitle(), "Error!");
    EXPECT_EQ(lastBox(), "Ripple must be between 0 and 3 dB");
    for (const char* degree : {"11", "1", "2.5"}) {
        input(degree, 15, kCtrl);
        EXPECT_EQ(lastBox(), "n must be between 2 and 10");
    }
    input("0.5", 15, kAlt);
    input("1", 15);
    EXPECT_EQ(last(5), (Lines{"n                     3", "ripple(dB)        0.500", "f/fc              1.000",
                              "dB(rip)           0.500", "dB(3)             3.010"}));
    EXPECT_NEAR(std::stod(element(1)), 0.5, 1e-12);
    input("3", 15, kShiftAlt);
    EXPECT_EQ(last(2), (Lines{"dB(rip)           3.000", "dB(3)             3.010"}));
}

TEST_F(EngineeringBank, ScalingKeepsItsFrameForFurtherElements) {
    input("1", 19);
    EXPECT_EQ(lastBox(), "Division by zero - be sure all variables are defined!");
    input("50", 19, kShift);
    input("1e6", 19, kAlt);
    input("1.414214", 19);
    EXPECT_EQ(read(), "Hy, LP       11.254e-06");
    input("1.414214", 19, kCtrl);
    EXPECT_EQ(read(), "Fd, LP        4.502e-09");
    input("1e6", 19, kShiftAlt);
    EXPECT_EQ(read(), "Hz, Fh        1.000e+06");
    input("1.414214", 19);
    EXPECT_EQ(read(), "Fd, HP        2.251e-09");
    input("1e7", 19, kCtrlAlt);
    input("1.414214", 19, kCtrl);
    EXPECT_EQ(last(2), (Lines{"Hy, BS        5.627e-06", "Fd, BS       45.016e-12"}));
    input("1e6", 19, kAlt);
    input("1.414214", 19, kCtrl);
    EXPECT_EQ(last(2), (Lines{"Fd, BP        4.502e-09", "Hy, BP       56.270e-09"}));
    input("0", 19, kAlt);
    input("1", 19);
    EXPECT_EQ(lastBox(), "Division by zero - be sure all variables are defined!");
}

TEST_F(EngineeringBank, ASupplyOutOfReachResetsTheKeyUnderError) {
    input("100", 9);
    input("150", 9, kCtrl);
    input("1", 9, kAlt);
    input("60", 9, kCtrlAlt);
    EXPECT_EQ(lastTitle(), "ERROR!");
    EXPECT_EQ(lastBox(), "Increase Vac, or decrease Vdc!");
    EXPECT_EQ(last(2), (Lines{"Hz                60.00", "Error              0.00"}));
    EXPECT_EQ(depth(), 1);
    input("120", 9, kShift);
    EXPECT_EQ(label(), "Vac") << "nothing is left of the set";
}

TEST_F(EngineeringBank, SurfaceOfACylinderAndTheRiseOverIt) {
    input("5", 22, kCtrl);
    EXPECT_EQ(read(), "Ht(cm)             5.00");
    input("2", 22, kAlt);
    EXPECT_EQ(last(2), (Lines{"Dia(cm)            2.00", "cm²               37.70"}));
    input("3", 22);
    EXPECT_EQ(read(1), "3.00");
    const double inches = (6.28318530717958 + 10 * 3.14159265358979) / 6.4516;
    EXPECT_NEAR(value(), 100 * std::pow(3 / inches, 0.83), 1e-9);
    EXPECT_EQ(depth(), 1);
    // Hidden from the mouse; a program may name it.
    type("1");
    unseen(22, kCtrlAlt);
    EXPECT_EQ(lastTitle(), "Cylinder Selected");
    EXPECT_EQ(lastBox(), "Width (Alt+Ctrl) not valid on cylinders.");
    EXPECT_EQ(x(), "1");
}

TEST_F(EngineeringBank, ARiseForgetsTheDimensionsBeforeIt) {
    input("5", 22, kCtrl);
    input("3", 22);
    input("2", 22, kAlt);
    EXPECT_EQ(read(), "Dia(cm)            2.00") << "no height is left to make a surface of";
    input("5", 22, kCtrl);
    EXPECT_EQ(last(2), (Lines{"Ht(cm)             5.00", "cm²               37.70"}));
}

TEST_F(MagneticsBank, CoreLossRefusesWhatItsCurvesDoNotHold) {
    input("100", 4, kCtrl);
    input("5000", 4);
    EXPECT_EQ(read(), "B over 4 kg        0.00");
    input("501", 4, kCtrl);
    EXPECT_EQ(read(), "F over 500 KHz     0.00");
    input("651", 4, kAlt);
    EXPECT_EQ(read(), "Invalid > 550    651.00");
    input("60", 4, kAlt);
    input("2000", 4);
    EXPECT_EQ(last(2), (Lines{"B(g)           2,000.00", "W/lb             113.92"}));
    EXPECT_EQ(depth(), 1);
    // Two Shift clicks in a row compute from the stored values.
    input("1000", 4, kShift);
    EXPECT_EQ(last(3), (Lines{"F(KHz)           100.00", "µ                 60.00", "W/lb              24.12"}));
    input("2000", 4, kShift);
    EXPECT_EQ(read(), "W/lb             113.92");
}

TEST_F(MagneticsBank, FerriteAndQAskForTheirChoiceAtEachInput) {
    input("100", 23, kCtrl);
    EXPECT_EQ(lastTitle(), "OOPS!");
    EXPECT_EQ(lastBox(), "Ctrl+Right Click the [PL] and select a material!");
    EXPECT_EQ(read(), "ERR              100.00");
    input("100", 11);
    EXPECT_EQ(lastBox(), "Right Click the 'Q' Button and select a permeability!");
    chooseIn(23, {{"OptMatl", 0}});
    input("500", 23, kCtrl);
    input("1000", 23);
    EXPECT_NEAR(value(), 0.00113 * std::pow(500.0, 2.19), 1e-9) << "500 takes the middle row";
    EXPECT_EQ(label(), "mW/cm^3");
}

TEST_F(MagneticsBank, QTakesItsUnitsFromTheWord) {
    chooseIn(11, {{"OptPerm", 9}}, "100");
    input("20000", 11);
    EXPECT_EQ(read(), "F(Hz)        20.000e+03");
    input("1.5", 11, kCtrl);
    input("0.01", 11, kAlt);
    EXPECT_EQ(read(), "L(Hy)        10.000e-03");
    input("20", 11, kCtrlAlt);
    const double w = 6.28318530717958 * 20000;
    const double losses =
        std::pow(w, 3) * 0.012 * 1e-4 * 1e-10 + (0.0000009 * 20 + 0.000032 + 0.000000015 * 20000) * 125 * 200;
    EXPECT_NEAR(value(), w * 0.01 / (losses + 1.5), 1e-9);
    EXPECT_EQ(label(), "Q");
}

TEST_F(MagneticsBank, InductanceAtFluxWantsACompleteSetFirst) {
    on({"0.147", "40"}, 17, kCtrl);
    EXPECT_EQ(lastBox(), "Division by zero - be sure all variables are defined!");
    input("125", 17, kAlt);
    input("2000", 17);
    EXPECT_EQ(label(), "%");
    const double p = 1 + value() / 100;
    input("40", 17, kShiftCtrl);
    EXPECT_EQ(lastBox(), "Division by zero - be sure all variables are defined!");
    enter("7");
    on({"0.147", "40"}, 17, kCtrl);
    EXPECT_NEAR(value(), 1.2566370614359161e-8 * 125 * p * 1600 * 0.147, 1e-15);
    EXPECT_EQ(label(), "Hy");
    EXPECT_EQ(read(1), "n                 40.00");
    EXPECT_EQ(element(1), "7");
    input("80", 17, kShiftCtrl);
    EXPECT_NEAR(value(), 1.2566370614359161e-8 * 125 * p * 6400 * 0.147, 1e-15);
    choose(form().cmdReset);
    input("80", 17, kShiftCtrl);
    EXPECT_EQ(lastBox(), "Division by zero - be sure all variables are defined!");
    input("601", 17, kAlt);
    EXPECT_EQ(label(), "Invalid Perm");
}

TEST_F(MagneticsBank, PermeabilityUnderAFieldHasItsRanges) {
    const std::pair<const char*, const char*> refused[] = {
        {"12", "Invalid, µ < 12"}, {"351", "Invalid µ"}, {"500", "Invalid µ"}, {"601", "Invalid, µ > 550"}};
    for (const auto& [permeability, text] : refused) {
        input(permeability, 21, kCtrl);
        EXPECT_TRUE(read().starts_with(text)) << read();
    }
    input("560", 21, kCtrl);
    EXPECT_EQ(read(), "550µ used        550.00");
    EXPECT_EQ(x(), "550");
    input("31", 21);
    EXPECT_EQ(read(), "Outside range     31.00");
    input("2.5", 21);
    EXPECT_EQ(label(), "% perm");
    input("125", 21, kShiftCtrl);
    EXPECT_EQ(last(3)[0], "µ perm           125.00");
    EXPECT_EQ(last(3)[1], "H(Oersteds)        2.50");
    EXPECT_EQ(depth(), 2);
}

TEST_F(MagneticsBank, PermeabilityAndLoFollowFromEachOther) {
    input("5.67", 18, kCtrl);
    input("0.388", 18, kAlt);
    input("68", 18);
    EXPECT_NEAR(value(), 68 * 5.67 / (12.56637061435916 * 0.388), 1e-10);
    EXPECT_TRUE(read().starts_with("µe")) << read();
    input("125", 18, kCtrlAlt);
    input("5.67", 18, kCtrl);
    input("0.388", 18, kAlt);
    EXPECT_EQ(label(), "Lo");
    EXPECT_NEAR(value(), 12.56637061435916 * 125 * 0.388 / 5.67, 1e-10);
    // All four: the permeability follows, whatever came last.
    input("125", 18, kCtrlAlt);
    input("5.67", 18, kCtrl);
    input("68", 18);
    input("0.388", 18, kAlt);
    EXPECT_NEAR(value(), 68 * 5.67 / (12.56637061435916 * 0.388), 1e-10);
}

TEST_F(MagneticsBank, SolenoidSolvesForTwoQuantitiesOnly) {
    input("50", 13, kCtrl);
    input("0.5", 13, kAlt);
    input("2", 13, kCtrlAlt);
    EXPECT_EQ(read(), "µH                25.51");
    input("25.510204081632654", 13);
    input("0.5", 13, kAlt);
    input("2", 13, kCtrlAlt);
    EXPECT_EQ(label(), "turns");
    EXPECT_NEAR(value(), 50, 1e-10);
    input("5", 13);
    input("6", 13, kCtrl);
    input("7", 13, kAlt);
    EXPECT_EQ(lastTitle(), "error!");
    EXPECT_EQ(lastBox(), "Solve for n or Ls only!");
    EXPECT_EQ(label(), "Reset Ls");
    EXPECT_EQ(x(), "0");
}

TEST_F(MagneticsBank, FluxKeysGoRound) {
    input("25000", 8);
    input("40", 8, kCtrl);
    EXPECT_EQ(read(), "V-S          10.000e-03");
    input("80", 8, kShiftCtrl);
    EXPECT_EQ(last(3), (Lines{"φt           25.000e+03", "turns             80.00", "V-S          20.000e-03"}));
    input("5000", 9);
    input("100", 9, kCtrl);
    input("60", 9, kAlt);
    EXPECT_EQ(read(), "E(v)        666.000e-03");
    input("120", 9, kShiftAlt);
    EXPECT_EQ(last(4), (Lines{"φt            5,000.000", "turns           100.000", "F(Hz)           120.000",
                              "E(v)               1.33"}));
    on({"2", "12000"}, 10);
    EXPECT_EQ(read(), "Bm             3,000.00");
    on({"2", "3000"}, 10, kShift);
    EXPECT_EQ(read(), "φt           12.000e+03");
    EXPECT_EQ(element(1), "3000") << "both operands give way to the result";
}

TEST_F(MagneticsBank, WavesOfVoltSecondsGoByTheirModifiers) {
    const std::pair<std::uint8_t, double> steps[] = {{0, 12 * 0.451 / 60},    {kShift, 60 * 12 / 0.451},
                                                     {kAlt, 12 * 0.451 / 60}, {kCtrl, 0.1},
                                                     {kShiftCtrl, 1440},      {kCtrlAlt, 0.1}};
    const char* labels[] = {"V-S", "E(V)", "F(Hz)", "V-S", "E(V)", "F(Hz)"};
    for (std::size_t i = 0; i < std::size(steps); ++i) {
        on({"60", "12"}, 20, steps[i].first);
        EXPECT_NEAR(value() / steps[i].second, 1.0, 1e-14) << i;
        EXPECT_EQ(label(), labels[i]);
    }
    choose(form().cmdReset);
    input("12", 20);
    EXPECT_EQ(lastBox(), "Division by zero - be sure all variables are defined!");
}

TEST_F(MagneticsBank, TheMeanTurnGoesByTheShapeAndUnitInForce) {
    auto& word = calc().units.UnitsWordLmu;
    const auto use = [&](unsigned shape, unsigned unit, bool feet) {
        word = (word & ~0x7F000000U) | 1U << (24 + shape) | 1U << (27 + unit) | (feet ? 1U << 30 : 0U);
    };
    use(1, 2, true);
    input("2", 12);
    input("1", 12, kCtrl);
    input("0.5", 12, kAlt);
    EXPECT_NEAR(value(), (2 + 4 + 0.5 * 3.14159265358979) / 12, 1e-13);
    EXPECT_EQ(label(), "ft");
    use(1, 2, false);
    input("0.5", 12, kShiftAlt);
    EXPECT_EQ(last(4), (Lines{"Length             2.00", "Width              1.00", "HT          500.000e-03",
                              "in                 7.57"}));
    use(2, 0, false);
    input("10", 12);
    EXPECT_EQ(label(), "OD");
    input("30", 12, kCtrl);
    EXPECT_EQ(last(2), (Lines{"ODw               30.00", "mm                62.83"}));
    expectNoMeaning(12, {4, 5});
    use(0, 2, true);
    input("1", 12);
    input("0.5", 12, kCtrl);
    input("0.6", 12, kAlt);
    EXPECT_NEAR(value(), (0.1038 - 0.0151 * 1.2) * 1.7, 1e-13);
}

TEST_F(MagneticsBank, ResultsBeyondTheRangeAreRefusedAndTheOtherInputsStay) {
    input("1e300", 8);
    input("1e300", 8, kCtrl);
    EXPECT_EQ(lastBox(), "Number outside of range: ± 1.8e308, & ± 4.9e-324"_t);
    input("2", 8, kCtrl);
    EXPECT_EQ(label(), "V-S");
}

}  // namespace
}  // namespace tallyforge
