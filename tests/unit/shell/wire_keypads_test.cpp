// SPDX-License-Identifier: GPL-3.0-or-later
//
// The keys of wire, hardware and value codes in the hand of their user: each under each modifier,
// in every build of magnet wire, and what they refuse.
#include "electrical/wire_keys.h"
#include "electrical/wire_sizes.h"
#include "support/bank_fixture.h"

#include <array>
#include <cmath>

namespace tallyforge {
namespace {

/// What the key of wire sizes does, by the modifiers.
constexpr std::array<void (*)(Engine&, WireBuild), 8> kSizes{
    areaToGauge,
    gaugeToArea,
    [](Engine& calc, WireBuild) { gaugeToBareArea(calc); },
    [](Engine& calc, WireBuild) { gaugeToWeight(calc); },
    gaugeToInches,
    inchesToGauge,
    gaugeToMillimetres,
    millimetresToGauge,
};

constexpr std::array kBuilds{WireBuild::Single, WireBuild::Heavy, WireBuild::Triple, WireBuild::Quad};

class WireKeypads : public BankAtHand {
protected:
    void show(Keypad keypad) { calc().keypads().ShowKeypad(keypad); }
    /// What the key of wire sizes makes of a number in X.
    void size(WireBuild build, const char* number, std::uint8_t mask) {
        platform.boxes.clear();
        put({number});
        kSizes.at(mask)(calc(), build);
        label_ = s().delivery.FnLabel;
        calc().commit.cmdEnter_Click();
        calc().display.RestoreDisplay();
    }
    /// Label of the last size().
    const std::string& fnLabel() { return label_; }
    /// A refusal that leaves X under `label`.
    void expectRefused(WireBuild build, const char* number, std::uint8_t mask, const std::string& text,
                       const std::string& title, const std::string& label) {
        SCOPED_TRACE(std::string(number) + " under " + std::to_string(mask));
        size(build, number, mask);
        EXPECT_EQ(lastBox(), text);
        EXPECT_EQ(lastTitle(), title);
        EXPECT_EQ(fnLabel(), label);
        EXPECT_EQ(x(), number);
    }

private:
    std::string label_;
};

struct Row {
    Keypad keypad;
    std::size_t key;
    std::uint8_t mask;
    std::initializer_list<const char*> operands;
    double value;
    std::string_view label;
};

// By hand from the tables and formulas; labels in the tape's code page.
const Row kRows[] = {
    {Keypad::Magnetics, 14, 0, {"10"}, 0.000999022415, "\xEA/ft"},
    {Keypad::Magnetics, 14, 1, {"10"}, 8.32518679e-05, "\xEA/in"},
    {Keypad::Magnetics, 14, 2, {"10"}, 0.00327763259, "\xEA/m"},
    {Keypad::Magnetics, 14, 3, {"10"}, 3.27763259e-06, "\xEA/mm"},
    {Keypad::Magnetics, 14, 4, {"10"}, 3.27763259e-05, "\xEA/cm"},
    {Keypad::Magnetics, 14, 5, {"10"}, 0.999022415, "\xEA/1000ft"},
    {Keypad::Magnetics, 14, 6, {"10"}, 0.031785632, "\xEA/lb"},
    {Keypad::Magnetics, 14, 7, {"10"}, 14270.3587, "g/\xEA"},
    {Keypad::Magnetics, 15, 0, {"176.4"}, 28.5, "AWG"},
    {Keypad::Magnetics, 15, 1, {"44"}, 5.76, "CMAsgl(44)"},
    {Keypad::Magnetics, 15, 2, {"36"}, 25.0, "CMAb(36)"},
    {Keypad::Magnetics, 15, 3, {"60"}, 2.8968e-07, "lbs/ft"},
    {Keypad::Magnetics, 15, 4, {"44"}, 0.0024, "inches"},
    {Keypad::Magnetics, 15, 5, {"0.0024"}, 44, "Max AWG"},
    {Keypad::Magnetics, 15, 6, {"44"}, 0.06096, "mm"},
    {Keypad::Magnetics, 15, 7, {"0.06096"}, 44, "Max AWG"},
    {Keypad::Magnetics, 19, 0, {"5", "7", "2"}, 6.0, "dia"},
    {Keypad::Magnetics, 19, 1, {"5", "19", "44"}, 0.012, "dia"},
    {Keypad::Magnetics, 19, 2, {"5", "19", "28"}, 0.175, "dia(in)"},
    {Keypad::Magnetics, 19, 4, {"5", "19", "0"}, 0.3, "dia(in)"},
    {Keypad::Tables, 3, 0, {"44"}, 4.182, "\xEA/ft(44)"},
    {Keypad::Tables, 4, 0, {"50"}, 11.99, "\xEA/ft(50.5)"},
    {Keypad::Tables, 7, 0, {"10"}, 0.19, "dia(\")"},
    {Keypad::Tables, 9, 0, {"11"}, 0.125, "(11)"},
    {Keypad::Tables, 10, 0, {"14.24"}, 0.201, "(14.24) #7"},
    {Keypad::Tables, 12, 0, {"49.5"}, 0.00145, "inches(49.5)"},
    {Keypad::Tables, 13, 0, {"49.5"}, 2.1025, "CMAi(49.5)"},
    {Keypad::Tables, 14, 0, {"49.5"}, 0.00125, "inches(49.5)"},
    {Keypad::Tables, 15, 0, {"49.5"}, 1.5625, "CMAsgl(49.5)"},
    {Keypad::Tables, 17, 0, {"0"}, 0.3249, "(0)"},
    {Keypad::Tables, 20, 0, {"16"}, 0.0598, "16) thk"},
    {Keypad::Tables, 21, 0, {"7"}, 0.201, "7 \xED)"},
    {Keypad::Convert, 19, 0, {"4991"}, 4.99, "k\xEA"},
    {Keypad::Convert, 19, 1, {"4990"}, 4991.0, "R Code"},
    {Keypad::Convert, 19, 2, {"104"}, 100.0, "nFd"},
    {Keypad::Convert, 19, 3, {"0.1"}, 104.0, "C Code"},
    {Keypad::Convert, 19, 4, {"103"}, 10.0, "\xE6Hy"},
    {Keypad::Convert, 19, 5, {"0.01"}, 103.0, "L Code"},
};

TEST_F(WireKeypads, EveryKeyLeavesItsResultUnderItsLabel) {
    for (const Row& row : kRows) {
        SCOPED_TRACE("keypad " + std::to_string(static_cast<int>(row.keypad)) + " key " + std::to_string(row.key) +
                     " mask " + std::to_string(row.mask));
        show(row.keypad);
        choose(form().cmdReset);
        on(row.operands, row.key, row.mask);
        EXPECT_NEAR(value() / row.value, 1.0, 5e-6);
        const std::string shown = line();
        EXPECT_TRUE(shown.starts_with(std::string(row.label) + " ")) << shown;
        // One element for the result; what lay below a bundle stays.
        EXPECT_EQ(s().stack.depth(), row.operands.size() > 1 ? 2 : 1);
        // The user's format is back.
        EXPECT_EQ(s().format.DisplayDigits, 2);
        EXPECT_EQ(s().format.Mode, DisplayMode::Fixed);
    }
}

TEST_F(WireKeypads, ModifiersWithoutAMeaningAreRefused) {
    put({"20"});
    show(Keypad::Tables);
    for (const std::size_t key : {3U, 4U, 7U, 9U, 10U, 12U, 13U, 14U, 15U, 17U, 20U}) {
        expectNoMeaning(key, {1, 2, 3, 4, 5, 6, 7});
    }
    expectNoMeaning(21, {2, 3, 4, 5, 6, 7});
    show(Keypad::Magnetics);
    expectNoMeaning(19, {3, 5, 6, 7});
    show(Keypad::Convert);
    expectNoMeaning(19, {6, 7});
}

TEST_F(WireKeypads, NumbersOfABaseStayOnTheStack) {
    show(Keypad::Binary);
    type("#1Fh");
    press(kKeyEnter, 13);
    const int depth = s().stack.depth();
    const auto untouched = [&](Keypad keypad, std::size_t key, std::uint8_t mask) {
        SCOPED_TRACE(std::to_string(static_cast<int>(keypad)) + " " + std::to_string(key));
        show(keypad);
        unseen(key, mask);
        EXPECT_EQ(s().stack.depth(), depth);
        EXPECT_EQ(element(0), "#1Fh");
    };
    for (std::uint8_t mask = 0; mask < 8; ++mask) {
        untouched(Keypad::Magnetics, 14, mask);
        untouched(Keypad::Magnetics, 15, mask);
    }
    for (const std::size_t key : {3U, 4U, 7U, 9U, 10U, 12U, 13U, 14U, 15U, 17U, 20U, 21U}) {
        untouched(Keypad::Tables, key, 0);
    }
    for (std::uint8_t mask = 0; mask < 6; ++mask) {
        untouched(Keypad::Convert, 19, mask);
    }
}

TEST_F(WireKeypads, AnEmptyStackIsGaugeZero) {
    show(Keypad::Magnetics);
    bank(15, kAlt);
    EXPECT_EQ(x(), "0.3361");
}

TEST_F(WireKeypads, AMissingOperandIsNoCountOfWires) {
    show(Keypad::Magnetics);
    on({"0.1"}, 19, 0);
    EXPECT_EQ(lastBox(), "Number of wires: 1 to 1000, integers only!");
    EXPECT_EQ(element(0), "0.1");
    EXPECT_EQ(s().stack.depth(), 1);
}

TEST_F(WireKeypads, EverySizeGoesToItsDiameterAndBackInEveryBuild) {
    for (const WireBuild build : kBuilds) {
        for (int awg = -3; awg <= 60; ++awg) {
            if (!filmDiameter(build, awg)) {
                continue;
            }
            SCOPED_TRACE("build " + std::to_string(static_cast<int>(build)) + " AWG " + std::to_string(awg));
            const std::string number = std::to_string(awg);
            for (const bool millimetres : {false, true}) {
                size(build, number.c_str(), millimetres ? kCtrl | kAlt : kAlt);
                EXPECT_EQ(fnLabel(), millimetres ? "mm" : "inches");
                const std::string diameter = x();
                size(build, diameter.c_str(), millimetres ? kShift | kCtrl | kAlt : kShift | kAlt);
                EXPECT_EQ(fnLabel(), "Max AWG");
                EXPECT_EQ(value(), awg);
            }
            size(build, number.c_str(), kShift);
            const std::string area = x();
            size(build, area.c_str(), 0);
            EXPECT_EQ(fnLabel(), "AWG");
            EXPECT_EQ(std::lround(value()), awg);
        }
    }
}

TEST_F(WireKeypads, CircularMilsAreLabelledByTheirBuild) {
    size(WireBuild::Heavy, "-3", kShift);
    EXPECT_EQ(fnLabel(), "CMAi(0000)");
    size(WireBuild::Heavy, "-2", kShift);
    EXPECT_EQ(fnLabel(), "CMAi(000)");
    size(WireBuild::Heavy, "-1", kShift);
    EXPECT_EQ(fnLabel(), "CMAi(00)");
    size(WireBuild::Single, "-3", kShift);
    EXPECT_EQ(fnLabel(), "CMAsgl(0000)");
    size(WireBuild::Triple, "20", kShift);
    EXPECT_EQ(fnLabel(), "CMAtriple(20)");
    size(WireBuild::Quad, "44", kShift);
    EXPECT_EQ(fnLabel(), "CMAquad(44)");
    EXPECT_NEAR(value(), 10.24, 1e-12);
}

TEST_F(WireKeypads, CircularMilsBeyondTheTableAreRefusedInTheWordsOfTheBuild) {
    expectRefused(WireBuild::Single, "61", kShift, "Number outside of range: -3 to 60", "Error!", "Error");
    expectRefused(WireBuild::Heavy, "-4", kShift, "Number outside of range: - 3 to 60", "Error!", "Error");
    expectRefused(WireBuild::Quad, "3", kShift, "Number outside of range: 4 to 44", "Error!", "Error");
    expectRefused(WireBuild::Triple, "45", kShift, "Number outside of range: 4 to 44", "Error!", "Error");
    expectRefused(WireBuild::Triple, "20.5", kShift, "Use integers only!", "Error!", "Error");
}

TEST_F(WireKeypads, SizesThatABuildIsNotMadeInAreRefused) {
    const std::string shorter = "Triple or Quad Build Insulation wire.";
    const std::string longer = "Heavy, " + shorter;
    expectRefused(WireBuild::Heavy, "3", kAlt, "No data for this size (AWG 3) " + longer, "No Data", "No Data");
    expectRefused(WireBuild::Heavy, "57", kAlt, "No data for this size (AWG 57) " + longer, "No Data", "No Data");
    expectRefused(WireBuild::Triple, "45", kAlt, "No data for this size (AWG 45) " + shorter, "No Data", "No Data");
    expectRefused(WireBuild::Quad, "56", kCtrl | kAlt, "No data for this size (AWG 56) " + shorter, "No Data",
                  "No Data");
    expectRefused(WireBuild::Quad, "57", kAlt, "No data for this size (AWG 57) " + longer, "No Data", "No Data");
    expectRefused(WireBuild::Quad, "-1", kAlt, "No data for this size (AWG -1) " + longer, "No Data", "No Data");
    expectRefused(WireBuild::Single, "61", kAlt, "Number outside of range: -3 to 60", "Error!", "Error");
    expectRefused(WireBuild::Heavy, "4.5", kAlt, "Use integers only!", "Error!", "Error");
}

TEST_F(WireKeypads, DiametersBeyondTheLadderAreRefused) {
    const auto text = [](const std::string& range) {
        return "Diameter outside of range: " + range + " inches\nContact magnet wire supplier for more information";
    };
    constexpr std::uint8_t kMask = kShift | kAlt;
    expectRefused(WireBuild::Single, "0.4727", kMask, text("0.000328 to 0.4726"), "Error!", "Error");
    expectRefused(WireBuild::Heavy, "0.2099", kMask, text("0.0006 to 0.2098"), "Error!", "Error");
    expectRefused(WireBuild::Triple, "0.000869", kMask, text("0.00087 to 0.2125"), "Error!", "Error");
    expectRefused(WireBuild::Quad, "0.000969", kMask, text("0.00097 to 0.2148"), "Error!", "Error");
    expectRefused(WireBuild::Quad, "0", kMask, text("0.00097 to 0.2148"), "Error!", "Error");
    expectRefused(WireBuild::Single, "-1", kShift | kCtrl | kAlt, text("0.000328 to 0.4726"), "Error!", "Error");
}

TEST_F(WireKeypads, AreasWithoutAGaugeLeaveNothingButTheirBox) {
    const auto refused = [this](WireBuild build, const char* area, const std::string& text) {
        size(build, area, 0);
        EXPECT_EQ(lastBox(), text);
        EXPECT_EQ(lastTitle(), "No Data");
        EXPECT_EQ(fnLabel(), "No Data");
        EXPECT_EQ(x(), "0");
    };
    refused(WireBuild::Single, "250001", "Outside of range (AWG 0000 to 60).");
    refused(WireBuild::Single, "0.1449", "Outside of range (AWG 0000 to 60).");
    refused(WireBuild::Heavy, "49501", "AWG number is less than 4, use Single Build Insulation.");
    refused(WireBuild::Heavy, "0.619", "AWG number is greater than 56, use Single Build Insulation.");
    refused(WireBuild::Triple, "60000", "Data not available for AWG numbers less than 4, use Single Build Insulation.");
    refused(WireBuild::Quad, "1",
            "Data not available for AWG numbers greater than 44, use Heavy or Single Build Insulation.");
    refused(WireBuild::Quad, "-5",
            "Data not available for AWG numbers greater than 44, use Heavy or Single Build Insulation.");
}

TEST_F(WireKeypads, BareWireHasTheDigitsOfItsSize) {
    show(Keypad::Magnetics);
    const auto shown = [this](const char* awg) {
        on({awg}, 15, kCtrl);
        const std::string text = line();
        return text.substr(text.rfind(' ') + 1);
    };
    EXPECT_EQ(shown("19"), "1,288");
    EXPECT_EQ(shown("20"), "1,021.5");
    EXPECT_EQ(shown("30"), "100.50");
    EXPECT_EQ(shown("50"), "0.973");
    EXPECT_EQ(line().substr(0, 8), "CMAb(50)");
}

// A second drill in the tip says what the pair's key cannot.
TEST_F(WireKeypads, LettersOfDrillsLieOnTheBankUntilF9) {
    show(Keypad::Tables);
    put({"5"});
    bank(21, kShift);
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::LetterDrill);
    EXPECT_EQ(form().cmdFunctions.at(19).text, "Y/Z");
    EXPECT_FALSE(form().mnuStd.enabled);
    const auto lines = tape();
    for (std::size_t key = 0; key < 24; ++key) {
        for (std::uint8_t mask = 0; mask < 8; ++mask) {
            unseen(key, mask);
            s().modifiers.ModifierMask = 0;
        }
    }
    EXPECT_EQ(tape(), lines);
    EXPECT_TRUE(platform.boxes.empty());
    press(kKeyF9);
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Tables);
    EXPECT_EQ(form().cmdFunctions.at(19).text, "F:D");
    EXPECT_TRUE(form().mnuStd.enabled);
    EXPECT_TRUE(form().cmdF11.enabled);
}

TEST_F(WireKeypads, TheRingOfKeypadsLeavesTheLettersOut) {
    show(Keypad::Standard);
    show(Keypad::Tables);
    bank(21, kShift);
    press(kKeyLeft);
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Standard);
    press(kKeyLeft);
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Tables);
}

}  // namespace
}  // namespace tallyforge
