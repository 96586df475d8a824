// SPDX-License-Identifier: GPL-3.0-or-later
#include "numbers/number_format.h"

#include "numbers/failure.h"
#include "support/fifteen_digit_samples.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <ios>

namespace tallyforge {
namespace {

TEST(NumbersBeyondTheRange, AreNotRead) {
    const std::string zeros(400, '0');
    for (const std::string& large :
         {std::string("1.5e400"), std::string("-0.5e400"), "1" + zeros, "1" + zeros + "e-50", "0." + zeros + "1e800",
          std::string("1e99999999999999999999"), std::string("00012.5E+310"), std::string("179769313486231581e291")}) {
        EXPECT_THROW(static_cast<void>(readNumber(large, '.')), Failure) << large;
    }
    for (const std::string& small :
         {std::string("1.5e-400"), "0." + zeros + "1", "." + zeros + "25e50", "1" + zeros + "e-800",
          std::string("1e-99999999999999999999"), std::string("2e-324")}) {
        EXPECT_THROW(static_cast<void>(readNumber(small, '.')), Failure) << small;
        EXPECT_FALSE(tryReadNumber(small, '.')) << small;
    }
    EXPECT_EQ(readNumber("0." + zeros + "e-400", '.'), 0.0) << "a zero is one, however it is written";
    EXPECT_EQ(readNumber("5e-324", '.'), 5e-324) << "the least of all";
    EXPECT_EQ(readNumber("1,5e-310", ','), 1.5e-310);
}

TEST(PlainText, HasUpToFifteenDigits) {
    EXPECT_EQ(plainText(1.5, '.'), "1.5");
    EXPECT_EQ(plainText(-3.0, '.'), "-3");
    EXPECT_EQ(plainText(1e20, '.'), "1E+20");
    EXPECT_EQ(plainText(1.5e-7, '.'), "1.5E-07");
    EXPECT_EQ(plainText(0.1 + 0.2, '.'), "0.3");
    EXPECT_EQ(plainText(1.0 / 3.0, ','), "0,333333333333333");
    EXPECT_EQ(plainText(123456789012345.0, '.'), "123456789012345");
    EXPECT_EQ(plainText(1e15, '.'), "1E+15");
    EXPECT_EQ(plainText(-0.0, '.'), "0");
    EXPECT_EQ(plainText(DBL_MAX, '.'), "1.79769313486232E+308");
}

struct Reading {
    const char* text;
    char decimal;
    double value;
};

TEST(ReadNumber, TakesWhatANumberMayLookLike) {
    constexpr Reading kReadings[] = {
        {"12", '.', 12},      {"-12.5", '.', -12.5},
        {"+5", '.', 5},       {".5", '.', 0.5},
        {"5.", '.', 5},       {"1e3", '.', 1000},
        {"1E-2", '.', 0.01},  {"1,5", ',', 1.5},
        {" 7 ", '.', 7},      {"1e+2", '.', 100},
        {"0e-400", '.', 0.0}, {"0001", '.', 1},
        {"-0", '.', 0.0},     {"4.9e-324", '.', DBL_TRUE_MIN},
    };
    for (const Reading& reading : kReadings) {
        EXPECT_EQ(readNumber(reading.text, reading.decimal), reading.value) << reading.text;
    }
}

TEST(ReadNumber, RefusesWhatIsNone) {
    for (const char* text : {"", " ", ".", "-", "1e", "e5", "1e-", "1.2.3", "12abc", "0x10", "inf", "nan", "--1", "+-1",
                             "1,5", "1 2", "#1b", "1e5.5"}) {
        try {
            (void)readNumber(text, '.');
            ADD_FAILURE() << text;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number(), FailureNumber::TypeMismatch) << text;
        }
        EXPECT_FALSE(tryReadNumber(text, '.').has_value()) << text;
    }
    EXPECT_FALSE(tryReadNumber("1.5", ',').has_value()) << "the other locale's decimal character";
}

TEST(ReadNumber, BeyondTheRangeIsAnOverflow) {
    for (const char* text : {"1e400", "-1e309", "9e999999999"}) {
        try {
            (void)readNumber(text, '.');
            ADD_FAILURE() << text;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number(), FailureNumber::Overflow) << text;
        }
    }
}

TEST(Rounding, IsHalfToEvenOnTheDecimalText) {
    EXPECT_EQ(roundHalfEven(2.5, 0), 2.0);
    EXPECT_EQ(roundHalfEven(3.5, 0), 4.0);
    EXPECT_EQ(roundHalfEven(-2.5, 0), -2.0);
    EXPECT_EQ(roundHalfEven(2.665, 2), 2.66);
    EXPECT_EQ(roundHalfEven(2.675, 2), 2.68);
    EXPECT_EQ(roundHalfEven(0.4, 0), 0.0);
    EXPECT_EQ(roundHalfEven(1e300, 2), 1e300);
    EXPECT_EQ(fixedText(9.995, 2), "10.00");
    EXPECT_EQ(fixedText(-0.004, 2), "0.00");
    EXPECT_EQ(fixedText(0.05, 1), "0.0");
    EXPECT_EQ(fixedText(0.15, 1), "0.2");
    EXPECT_EQ(fixedText(999.5, 0), "1000");
}

struct Patterned {
    double value;
    const char* pattern;
    char decimal;
    const char* text;
};

TEST(FifteenDigits, AreThoseOfTheText) {
    constexpr int kSamples = 3'000'000;
    FifteenDigitSamples samples{20261121};
    for (int i = 0; i < kSamples; ++i) {
        const double value = samples.next();
        if (fifteenDigits(value) != printedAndRead(value)) {
            FAIL() << std::hexfloat << value;
        }
    }
}

TEST(FifteenDigits, RoundHalvesAsTheTextDoes) {
    for (int i = 1; i < 2000; ++i) {
        for (const double scale : {1.0, 1e-3, 1e-9, 1e4}) {
            const double value = (123456789012345.0 + i + 0.5) * scale;
            ASSERT_EQ(fifteenDigits(value), printedAndRead(value)) << std::hexfloat << value;
            ASSERT_EQ(fifteenDigits(-value), printedAndRead(-value));
        }
    }
    EXPECT_EQ(fifteenDigits(999999999999999.5), printedAndRead(999999999999999.5));
    EXPECT_EQ(fifteenDigits(0.99999999999999994), 1.0);
}

TEST(FifteenDigits, LeaveWholeNumbersAndWhatHasMadeTheTripAlone) {
    EXPECT_EQ(fifteenDigits(999999999999999.0), 999999999999999.0);
    EXPECT_EQ(fifteenDigits(-0.0), 0.0);
    const double once = fifteenDigits(2.0 / 3.0);
    EXPECT_NE(once, 2.0 / 3.0);
    EXPECT_EQ(fifteenDigits(once), once);
}

TEST(FifteenDigits, OfTheLargestNumberDoNotReadBackSoItStays) {
    EXPECT_EQ(fifteenDigits(DBL_MAX), DBL_MAX);
    EXPECT_EQ(fifteenDigits(DBL_MIN), printedAndRead(DBL_MIN));
}

TEST(Patterns, PrintAsTheyAreWritten) {
    constexpr Patterned kPatterned[] = {
        {12345, "0.000e+00", '.', "1.234e+04"},
        {0, "0.000e+00", '.', "0.000e+00"},
        {-1.5e-9, "0.000e+00", ',', "-1,500e-09"},
        {7, "0.0e+00", '.', "7.0e+00"},
        {9.99e9, "0.0e+00", '.', "1.0e+10"},
        {1e-100, "0.0e+00", '.', "1.0e-100"},
        {1234567, "#,##0", '.', "1,234,567"},
        {0, "#,##0", '.', "0"},
        {-1234, "#,##0", '.', "-1,234"},
        {1234567, "### ### ### ##0", ',', "1 234 567"},
        {-12, "### ### ### ##0", ',', "-12"},
        {1e13, "### ### ### ##0", ',', "10000 000 000 000"},
        {2.5, "   0.00e+00", '.', "   2.50e+00"},
        {-2.5, "   0.00e+00", '.', "   -2.50e+00"},
        {42, "00000", '.', "00042"},
        {0.3045, "0.00 00.0", '.', "0.30 45.0"},
        {12, "0.", '.', "12."},
        {1.5, "0.##", '.', "1.5"},
    };
    for (const Patterned& row : kPatterned) {
        EXPECT_EQ(formatPattern(row.value, row.pattern, row.decimal), row.text) << row.pattern;
    }
    EXPECT_EQ(formatScientific(12345, 3, '.'), "1.234e+04");
    EXPECT_EQ(formatScientific(0, 0, '.'), "0.e+00");
}

}  // namespace
}  // namespace tallyforge
