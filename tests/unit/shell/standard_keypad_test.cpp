// SPDX-License-Identifier: GPL-3.0-or-later
//
// The Standard keypad in the hand of its user: powers, logarithms, constants, factorial, rounding,
// percent, tax, statistics and everyday functions, each key under each modifier.
#include "platform/text.h"
#include "support/bank_fixture.h"

#include <cmath>

namespace tallyforge {
namespace {

class StandardKeypad : public BankAtHand {};

struct Row {
    std::size_t key;
    std::uint8_t mask;
    std::initializer_list<const char*> operands;
    double value;
    std::string_view label;
    int left;  ///< stack elements afterwards
};

// Labels in the tape's code page.
const Row kRows[] = {
    {0, 0, {"8"}, 0.125, "1/X", 1},
    {1, 0, {"12"}, 144.0, "X\xFD", 1},
    {2, 0, {"2"}, 1.41421356237310, "\xFBx", 1},
    {3, 0, {"9"}, 3.14159265358979, "\xE3", 2},
    {5, 0, {"7", "2", "10"}, 1024.0, "y^x", 2},
    {5, 1, {"7", "2", "1024"}, 10.0, "n(y^)", 2},
    {5, 2, {"7", "10"}, 1024.0, "2^", 2},
    {5, 4, {"7", "1024"}, 10.0, "n(2^)", 2},
    {11, 0, {"7", "2.345", "1"}, 2.3, "Rnd", 2},
    {11, 1, {"7", "-2.7"}, -2.0, "Int", 2},
    {11, 2, {"7", "2.75"}, 0.75, "Frac", 2},
    {11, 4, {"7", "2.75"}, 2.0, "Floor", 2},
    {11, 5, {"7", "2.25"}, 3.0, "Ceil", 2},
    {12, 0, {"30", "2"}, 1.73205080756888, "P>R(x)", 2},
    {13, 0, {"1"}, 0.693147180559945, "ln+", 1},
    {13, 1, {"1"}, 1.71828182845905, "e-", 1},
    {14, 0, {"10"}, 2.30258509299405, "ln(x)", 1},
    {14, 1, {"1"}, 2.71828182845905, "e^x", 1},
    {15, 0, {"2"}, 0.301029995663981, "log(x)", 1},
    {15, 1, {"3"}, 1000.0, "10^x", 1},
    {20, 0, {}, 2.71828182845905, "e", 1},
    {20, 1, {}, 0.367879441171442, "1/e", 1},
    {20, 2, {}, 7.38905609893065, "e\xFD", 1},
    {20, 3, {}, 0.135335283236613, "1/e\xFD", 1},
    {20,
     4,
     {},
     1.64872127070013,
     "\xFB"
     "e",
     1},
    {20,
     5,
     {},
     0.606530659712633,
     "1/\xFB"
     "e",
     1},
    {21,
     0,
     {},
     1.41421356237310,
     "\xFB"
     "2",
     1},
    {21,
     1,
     {},
     0.707106781186548,
     "1/\xFB"
     "2",
     1},
    {21,
     2,
     {},
     1.73205080756888,
     "\xFB"
     "3",
     1},
    {21,
     3,
     {},
     0.577350269189626,
     "1/\xFB"
     "3",
     1},
    {21,
     4,
     {},
     3.16227766016838,
     "\xFB"
     "10",
     1},
    {21,
     5,
     {},
     0.316227766016838,
     "1/\xFB"
     "10",
     1},
    {22, 0, {}, 1.77245385090552, "\xFB\xE3", 1},
    {22, 1, {}, 0.564189583547756, "1/\xFB\xE3", 1},
    {22,
     2,
     {},
     2.50662827463100,
     "\xFB"
     "2\xE3",
     1},
    {22,
     3,
     {},
     0.398942280401433,
     "1/\xFB"
     "2\xE3",
     1},
    {22, 4, {}, 1.25331413731550, "\xFB\xE3/2", 1},
    {22, 5, {}, 0.797884560802866, "1/\xFB\xE3/2", 1},
    {23, 0, {"10"}, 3628800.0, "N!", 1},
    {23, 1, {"4.5"}, 24.0, "N!", 1},
    {23, 2, {"5"}, 24.0, "\xE2", 1},
    {4, 0, {"200", "10"}, 20.0, "x% of y", 2},
    {4, 1, {"200", "250"}, 25.0, "d%", 1},
    {4, 2, {"200", "10"}, 180.0, "-%", 2},
    {6,
     0,
     {"7", "10", "30"},
     21.2482932556496,
     "\xF8"
     "F",
     2},
    {6,
     1,
     {"7", "50", "90"},
     94.5969412,
     "\xF8"
     "F",
     2},
    {19, 0, {"3.16"}, 0.1875, "dec", 1},
};

TEST_F(StandardKeypad, EachKeyGivesItsValueUnderItsLabel) {
    for (const Row& row : kRows) {
        SCOPED_TRACE("key " + std::to_string(row.key) + " mask " + std::to_string(row.mask));
        s().stack.StackPtr = 1;
        on(row.operands, row.key, row.mask);
        EXPECT_NEAR(value(), row.value, 1e-14 * std::abs(row.value));
        EXPECT_EQ(label(), row.label);
        EXPECT_EQ(s().stack.depth(), row.left);
        EXPECT_TRUE(platform.boxes.empty()) << lastBox();
    }
}

TEST_F(StandardKeypad, ModifiersWithoutAMeaningSaySo) {
    put({"2", "3"});
    expectNoMeaning(4, {3, 4, 5, 6, 7});
    expectNoMeaning(5, {3, 5, 6, 7});
    expectNoMeaning(6, {2, 3, 4, 5, 6, 7});
    expectNoMeaning(8, {5, 6, 7});
    expectNoMeaning(9, {3, 4, 5, 6, 7});
    expectNoMeaning(11, {3, 6, 7});
    for (const std::size_t key : {12U, 13U, 14U, 15U}) {
        expectNoMeaning(key, {2, 3, 4, 5, 6, 7});
    }
    expectNoMeaning(16, {3, 4, 5, 6, 7});
    expectNoMeaning(19, {3, 6, 7});
    for (const std::size_t key : {20U, 21U, 22U}) {
        expectNoMeaning(key, {6, 7});
    }
    expectNoMeaning(23, {3, 4, 5, 6, 7});
}

TEST_F(StandardKeypad, TheKeysOfEveryKeypadIgnoreModifiers) {
    on({"4"}, 0, kShift);
    EXPECT_EQ(x(), "0.25");
    on({"4"}, 1, kCtrl | kAlt);
    EXPECT_EQ(x(), "16");
    on({"4"}, 2, kAlt);
    EXPECT_EQ(x(), "2");
}

TEST_F(StandardKeypad, AFailedPowerLeavesItsOperandOnTheStack) {
    on({"-8", "0.5"}, 5);
    EXPECT_EQ(lastBox(), "Illegal operation - check for negitive numbers!");
    EXPECT_EQ(lastTitle(), "cmdFunctions Error!");
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(label(), "No Data!");
    EXPECT_EQ(element(1), "-8");
    EXPECT_EQ(calc().text(s().stack.LastX), "0.5");
}

TEST_F(StandardKeypad, BadOperandsShowTheirMessages) {
    on({"1e308"}, 1);
    EXPECT_EQ(lastBox(), "Number outside of range: ± 1.8e308, & ± 4.9e-324"_t);
    EXPECT_EQ(x(), "0");
    on({"-1"}, 2);
    EXPECT_EQ(lastBox(), "Illegal operation (square root of negitive number)!");
    on({"0"}, 0);
    EXPECT_EQ(lastBox(), "Division by zero - be sure all variables are defined!");
}

TEST_F(StandardKeypad, TheLogarithmsOfNegativeNumbersAreRefusedInTheirOwnWays) {
    on({"0"}, 14);
    EXPECT_EQ(lastBox(), "Error number 5");
    EXPECT_EQ(label(), "No Data!");
    const auto lines = tape().size();
    on({"-3"}, 14);
    EXPECT_EQ(lastBox(), "Positive numbers only!");
    EXPECT_EQ(lastTitle(), "Logs");
    EXPECT_EQ(tape().size(), lines + 1) << "the number entered, and no result";
    on({"-1"}, 13);
    EXPECT_EQ(lastBox(), "Enter a number > -1!");
    EXPECT_EQ(lastTitle(), "Logs");
    on({"-3"}, 15);
    EXPECT_EQ(lastBox(), "Positive numbers only!");
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(label(), "No Data!");
}

TEST_F(StandardKeypad, TheLogarithmOfOnePlusXBeginsJustAboveMinusOne) {
    on({"-0.99999"}, 13);
    EXPECT_NEAR(value(), -11.5129254649702, 1e-9) << "ln of 0.00001";
    on({"-0.5"}, 13);
    EXPECT_NEAR(value(), -0.693147180559945, 1e-15);
    on({"0"}, 13);
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(label(), "ln+");
    on({"0.0000000001"}, 13);
    EXPECT_NEAR(value(), 0.99999999995e-10, 1e-24);
    EXPECT_TRUE(platform.boxes.empty());
    for (const char* refused : {"-1", "-1.00001", "-1.5", "-3"}) {
        platform.boxes.clear();
        on({refused}, 13);
        ASSERT_EQ(platform.boxes.size(), 1U) << refused;
        EXPECT_EQ(lastBox(), "Enter a number > -1!");
    }
}

TEST_F(StandardKeypad, ANumberThatIsStillTypedIsTakenAsItIs) {
    type("5");
    bank(5, kCtrl);
    EXPECT_EQ(x(), "32");
    EXPECT_EQ(s().stack.depth(), 1);
}

TEST_F(StandardKeypad, AFunctionOnAnEmptyStackTakesZero) {
    bank(5);
    EXPECT_EQ(x(), "1") << "0 to the power of 0";
    choose(form().cmdReset);
    bank(23);
    EXPECT_EQ(x(), "1");
    choose(form().cmdReset);
    put({"3"});
    bank(4);
    EXPECT_EQ(x(), "0") << "3 percent of nothing";
}

// Factorial and gamma.

TEST_F(StandardKeypad, SmallFactorialsShowNoDecimals) {
    on({"0"}, 23);
    EXPECT_EQ(line(), "N!                    1");
    on({"16"}, 23);
    EXPECT_EQ(x(), "20922789888000");
    on({"170"}, 23);
    EXPECT_NEAR(value() / 7.2574156153079990e306, 1.0, 1e-13);
}

TEST_F(StandardKeypad, WrongFactorialsAreToldWhy) {
    on({"4.5"}, 23);
    EXPECT_EQ(lastBox(), "Number (x) must be an integer!\n\nUse Shift+Click for N!(Int(x))");
    EXPECT_EQ(lastTitle(), "Factorial Error!");
    EXPECT_EQ(label(), "4.50") << "nothing is committed";
    for (const int mask : {0, 1}) {
        on({"-2"}, 23, static_cast<std::uint8_t>(mask));
        EXPECT_EQ(lastBox(), "Negitive numbers not allowed!");
        EXPECT_EQ(lastTitle(), "Factorial!");
        EXPECT_EQ(x(), "0");
        EXPECT_EQ(label(), "No Data");
    }
    on({"171"}, 23);
    EXPECT_EQ(lastBox(), "Error 6 (Overflow)");
    EXPECT_EQ(lastTitle(), "Factorial/Gamma Function Error!");
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(label(), "No Data!");
}

TEST_F(StandardKeypad, KeepsTheLimitsOfGamma) {
    on({"1"}, 23, kCtrl);
    EXPECT_EQ(x(), "0") << "gamma of 1";
    on({"2"}, 23, kCtrl);
    EXPECT_EQ(x(), "1");
    on({"169"}, 23, kCtrl);
    EXPECT_NEAR(value() / 2.5260757449731984e302, 1.0, 1e-13) << "168!";
    for (const char* outside : {"169.5", "0", "-1"}) {
        on({outside}, 23, kCtrl);
        EXPECT_EQ(lastBox(), "Please enter a number between 0 and 170");
        EXPECT_EQ(lastTitle(), "Gamma Function");
        EXPECT_EQ(label(), "No Data!");
    }
}

TEST_F(StandardKeypad, AFunctionOfTwoOperandsLeavesOneElementOfASingleOne) {
    const struct {
        std::size_t key;
        std::uint8_t mask;
    } keys[] = {{5, 0}, {4, kShift | kCtrl}, {6, kShift}, {11, 0}};
    for (const auto& [key, mask] : keys) {
        choose(form().cmdReset);
        enter("3");
        bank(key, mask);
        if (platform.boxes.empty()) {
            EXPECT_EQ(s().stack.depth(), 1) << "key " << key;
        }
        platform.boxes.clear();
    }
    choose(form().cmdReset);
    enter("3");
    bank(5);
    EXPECT_EQ(x(), "0") << "0 to the third power";
    enter("2");
    EXPECT_EQ(s().stack.depth(), 2);
}

// Rounding.

TEST_F(StandardKeypad, KeepsFloorAndCeilingOfWholeNumbers) {
    const std::pair<const char*, const char*> floors[] = {{"-3", "-4"}, {"1", "0"}, {"2", "2"},
                                                          {"3", "2"},   {"4", "4"}, {"-2.5", "-3"}};
    for (const auto& [number, expected] : floors) {
        on({number}, 11, kAlt);
        EXPECT_EQ(x(), expected) << number;
    }
    const std::pair<const char*, const char*> ceilings[] = {
        {"1", "2"}, {"2", "2"}, {"3", "4"}, {"4", "4"}, {"-2.5", "-2"}};
    for (const auto& [number, expected] : ceilings) {
        on({number}, 11, kShift | kAlt);
        EXPECT_EQ(x(), expected) << number;
    }
}

TEST_F(StandardKeypad, RoundingIsHalfToEvenAndRefusesNegativePlaces) {
    on({"2.665", "2"}, 11);
    EXPECT_EQ(x(), "2.66");
    on({"2.5", "0"}, 11);
    EXPECT_EQ(x(), "2");
    on({"2.665", "-1"}, 11);
    EXPECT_EQ(lastBox(), "Error number 5");
    EXPECT_EQ(element(1), "2.665");
}

TEST_F(StandardKeypad, ASingleDigitBehindThePlaceRoundsUp) {
    on({"0.6", "0"}, 11);
    EXPECT_EQ(x(), "1");
    on({"1.2"}, 11, kAlt);
    EXPECT_EQ(x(), "1");
    on({"0.2"}, 11, kShift | kAlt);
    EXPECT_EQ(x(), "1");
    on({"3", "0.7"}, 11);
    EXPECT_EQ(x(), "3") << "X goes to a whole number, too";
    on({"4"}, 16, kCtrl);
    on({"0.15"}, 16);
    EXPECT_EQ(line(1), "tax                0.01");
    EXPECT_EQ(x(), "0.16");
    enter("0.7");
    choose(form().cmdDigits);
    EXPECT_EQ(s().format.DisplayDigits, 1);
}

TEST_F(StandardKeypad, ATypedNumberThatIsTooSmallIsOutOfRange) {
    enter("7");
    enter("5e\\400");
    EXPECT_EQ(lastBox(), "Number outside of range: ± 1.8e308, & ± 4.9e-324"_t);
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(s().stack.depth(), 1);
    EXPECT_EQ(element(0), "7");
}

TEST_F(StandardKeypad, ManyPlacesLeaveTheNumberAsItIs) {
    for (const char* const places : {"22", "23", "400", "1e300"}) {
        on({"0.0000000000123456789", places}, 11);
        EXPECT_EQ(x(), "1.23456789E-11") << places;
        EXPECT_EQ(label(), "Rnd");
    }
    EXPECT_TRUE(platform.boxes.empty());
}

// Percent and tax.

TEST_F(StandardKeypad, PercentWithCtrlLeavesBothValues) {
    on({"200", "10"}, 4, kCtrl);
    EXPECT_EQ(x(), "180");
    EXPECT_EQ(element(1), "220");
    EXPECT_EQ(label(), "-%");
    EXPECT_EQ(label(1), "+%");
}

TEST_F(StandardKeypad, PercentKeepsItsBaseForAFurtherKey) {
    on({"200", "10"}, 4);
    EXPECT_EQ(line(), "x% of y          20.000");
    type("+");
    EXPECT_EQ(x(), "220");
}

TEST_F(StandardKeypad, SalesTaxStandsOnTheTapeBeforeTheTotal) {
    on({"7", "100"}, 16);
    EXPECT_EQ(line(1), "tax                7.75");
    EXPECT_EQ(line(), "Total            107.75");
    EXPECT_EQ(x(), "107.75");
    EXPECT_EQ(s().stack.depth(), 2);
    EXPECT_EQ(calc().text(s().stack.LastX), "7.75");
    bank(16, kShift);
    EXPECT_EQ(x(), "7.75");
    EXPECT_EQ(label(), "Rate(%)");
}

TEST_F(StandardKeypad, ANewTaxRateIsKept) {
    on({"7.255"}, 16, kCtrl);
    EXPECT_EQ(label(), "Rate(%)");
    EXPECT_FLOAT_EQ(s().functions.TaxRate, 7.26F);
    on({"200"}, 16);
    EXPECT_EQ(x(), "214.52");
    on({"100"}, 16, kCtrl);
    EXPECT_EQ(lastBox(), "Tax Rate must be less than 100!");
    EXPECT_EQ(lastTitle(), "Error!");
    EXPECT_EQ(label(), "Error!");
    start();
    EXPECT_FLOAT_EQ(s().functions.TaxRate, 7.26F);
}

// Everyday functions.

TEST_F(StandardKeypad, WindChillShowsOneDecimal) {
    on({"10", "30"}, 6);
    EXPECT_EQ(line(),
              "\xF8"
              "F                 21.2");
    on({"-10", "30"}, 6);
    EXPECT_EQ(lastBox(), "Error number 5");
}

TEST_F(StandardKeypad, AFractionIsReadFromItsDigits) {
    on({"3.16"}, 19);
    EXPECT_EQ(line(), "dec             0.187 5");
    on({"7.10"}, 19);
    EXPECT_EQ(x(), "0.7") << "ten tenths are not one";
    platform.boxes.clear();
    const auto lines = tape().size();
    on({"3"}, 19);
    EXPECT_EQ(lastBox(), "Enter a fraction nn.ddd");
    EXPECT_EQ(lastTitle(), "F:D Error");
    EXPECT_EQ(tape().size(), lines + 1);
}

TEST_F(StandardKeypad, BoardFeetComeInAnyOrder) {
    struct Input {
        const char* number;
        std::uint8_t mask;
    };
    const Input orders[][3] = {{{"1", kShift}, {"6", kCtrl}, {"8", kAlt}},
                               {{"8", kAlt}, {"1", kShift}, {"6", kCtrl}},
                               {{"6", kCtrl}, {"96", kShift | kAlt}, {"1", kShift}}};
    for (const auto& order : orders) {
        choose(form().cmdReset);
        for (const Input& input : order) {
            type(input.number);
            bank(19, input.mask);
        }
        EXPECT_EQ(x(), "4");
        EXPECT_EQ(label(), "bf");
        EXPECT_EQ(s().stack.depth(), 1);
        EXPECT_EQ(tape().size(), 4U);
    }
    EXPECT_EQ(label(3), "Width\"");
    EXPECT_EQ(label(2), "L(in)");
    EXPECT_EQ(label(1), "thk\"");
}

TEST_F(StandardKeypad, BothLengthsOfABoardAreAnError) {
    type("8");
    bank(19, kAlt);
    EXPECT_EQ(label(), "L(ft)");
    type("96");
    bank(19, kShift | kAlt);
    EXPECT_EQ(lastBox(), "Unknown error, please re-enter from the beginning.");
    EXPECT_EQ(lastTitle(), "Board Feet Error");
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(label(), "Error");
    for (const auto& [number, mask] : {std::pair{"1", kShift}, std::pair{"6", kCtrl}, std::pair{"8", kAlt}}) {
        type(number);
        bank(19, mask);
    }
    EXPECT_EQ(x(), "4") << "begun anew";
}

TEST_F(StandardKeypad, NothingEnteredResetsTheBoard) {
    bank(19);
    EXPECT_EQ(label(), "Reset Brd Ft");
    type("2");
    bank(19, kShift);
    type("0");
    bank(19, kCtrl);
    EXPECT_EQ(label(), "Reset Brd Ft");
}

TEST_F(StandardKeypad, TheTablesKeypadHasFractionsButNoBoardFeet) {
    calc().keypads().ShowKeypad(Keypad::Tables);
    on({"3.16"}, 19);
    EXPECT_EQ(x(), "0.1875");
    const auto lines = tape().size();
    bank(19, kShift);
    EXPECT_EQ(tape().size(), lines);
    EXPECT_TRUE(platform.boxes.empty());
    choose(form().cmdReset);
    bank(19);
    EXPECT_EQ(lastBox(), "Enter a fraction nn.ddd");
}

// A number of a base stays on the stack where a plain one is wanted.
TEST_F(StandardKeypad, ANumberOfABaseIsLeftAlone) {
    choose(form().mnuEngBinary);
    type("#FFh");
    press(kKeyEnter, 13);
    choose(form().mnuStd);
    const auto lines = tape().size();
    bank(14);
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(tape().size(), lines);
    EXPECT_EQ(element(0), "#FFh");
}

}  // namespace
}  // namespace tallyforge
