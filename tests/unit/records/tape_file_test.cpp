// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/tape_file.h"

#include "numbers/failure.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {
namespace {

FailureNumber refusal(std::string_view text) {
    try {
        static_cast<void>(parseTapeFile(text, '.'));
    } catch (const Failure& failure) {
        return failure.number();
    }
    return FailureNumber{};
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

std::vector<std::string> rowsOf(const Tape& tape) {
    std::vector<std::string> all;
    for (std::size_t row = 0; row < tape.count(); ++row) {
        all.push_back(tape.row(row) + "=" + tape.value(row).text('.'));
    }
    return all;
}

/// A stack of two elements, and a tape of a filler and two lines, each line of the file by itself.
std::vector<std::string> stackAndTape() {
    return {"2", " 7 ", " 1 ", " 3 ", " 2 ", " 1 ", " 2 ", "", "", "1.00", "2.00", "ZAK", " 1 ", "", " 1 ", " 2 "};
}
constexpr std::size_t kStackPointer = 3;
constexpr std::size_t kStackEnd = 7;
constexpr std::size_t kFillers = 12;

TEST(TapeFile, EachLineIsReadAsWhatItIs) {
    const TapeFileContent content = parseTapeFile(joined(stackAndTape()), '.');
    EXPECT_EQ(content.kind, TapeFileKind::StackAndTape);
    EXPECT_EQ(content.LastX, ValueCell{7.0});
    EXPECT_EQ(content.Yreg, ValueCell{1.0});
    EXPECT_EQ(content.StackPtr, 3);
    EXPECT_EQ(content.Xreg, ValueCell{2.0});
    EXPECT_EQ(content.stack, (std::vector<ValueCell>{ValueCell{1.0}, ValueCell{2.0}}));
    const std::vector<std::string> rows{"=", "1.00=1", "2.00=2"};
    EXPECT_EQ(rowsOf(content.tape), rows);
    EXPECT_EQ(content.tape.fillers(), 1);
    EXPECT_EQ(rowsOf(parseTapeFile(formatTapeFile(content, '.'), '.').tape), rows);
}

TEST(TapeFile, ATapeOfFillersAloneIsWhole) {
    const auto content = parseTapeFile("2\n\n\n 1 \n\n\n\n\nZAK\n 2 \n\n\n", '.');
    EXPECT_EQ(content.StackPtr, 1);
    EXPECT_EQ(content.tape.fillers(), 2);
    EXPECT_EQ(content.tape.count(), 2U);
}

TEST(TapeFile, ADamagedOneIsRefused) {
    struct Damage {
        std::size_t line;
        const char* text;
    };
    for (const auto& [line, text] :
         {Damage{kStackPointer, " 0 "}, Damage{kStackPointer, " -1 "}, Damage{kStackPointer, " 2 "},
          Damage{kStackPointer, " 5 "}, Damage{kStackPointer, " 3x "}, Damage{kStackPointer, " 15 "},
          Damage{kStackEnd, "1"}, Damage{kFillers, " 4 "}, Damage{kFillers, " -1 "}, Damage{kFillers, ""},
          Damage{kFillers, " one "}}) {
        std::vector<std::string> lines = stackAndTape();
        lines[line] = text;
        EXPECT_EQ(refusal(joined(lines)), FailureNumber::DamagedFile) << line << ": " << text;
    }
    for (std::size_t kept = 0; kept < stackAndTape().size(); ++kept) {
        std::vector<std::string> lines = stackAndTape();
        lines.resize(kept);
        EXPECT_EQ(refusal(joined(lines)), FailureNumber::DamagedFile) << "with " << kept << " lines";
    }
    EXPECT_EQ(refusal(joined(stackAndTape()) + " "), FailureNumber::DamagedFile) << "the last line has no end";
    EXPECT_EQ(refusal(joined(stackAndTape())), FailureNumber{});
}

TEST(TapeFile, ARegistersLineHasANameAndAComma) {
    const auto refused = [](const std::string& line) {
        try {
            static_cast<void>(parseRegisterLine(line, '.'));
        } catch (const Failure& failure) {
            return failure.number() == FailureNumber::DamagedFile;
        }
        return false;
    };
    EXPECT_TRUE(refused(""));
    EXPECT_TRUE(refused("12  "));
    EXPECT_TRUE(refused("12, 5")) << "a comma in the name ends no value";
    EXPECT_TRUE(refused("12   5 "));
    EXPECT_FALSE(refused("12  ,"));
    EXPECT_FALSE(refused("12  " + std::string(255, '7') + ",tip"));
    EXPECT_TRUE(refused("12  " + std::string(256, '7') + ",tip"));

    const RegisterLine line = parseRegisterLine("12   2.5 ,a tip, with a comma", ',');
    EXPECT_EQ(line.name, "12  ");
    EXPECT_EQ(line.value, ValueCell{2.5}) << "a point whatever the decimal character is";
    EXPECT_EQ(line.tip, "a tip, with a comma");
}

TapeFileContent withFillers(int fillers) {
    TapeFileContent content;
    content.kind = TapeFileKind::StackAndTape;
    content.tape.clear(fillers);
    return content;
}

TEST(TapeFile, LinesOfPlainNumbersComeBackAsThose) {
    TapeFileContent content = withFillers(0);
    const char* const labels[] = {"", "+", "x<>y", "sum of all", "1/x"};
    const double values[] = {0.0, 1.5, -2.25, 1e10, 3.25e-7, 1.0 / 3.0, 123456.789};
    std::size_t place = 0;
    for (const DisplayMode mode : {DisplayMode::Fixed, DisplayMode::Scientific, DisplayMode::Engineering}) {
        for (int digits = 0; digits <= kMaxDisplayDigits; ++digits) {
            for (const double value : values) {
                content.tape.addNumber({.mode = mode, .digits = digits}, labels[++place % 5], value);
            }
        }
    }
    const TapeFileContent read = parseTapeFile(formatTapeFile(content, '.'), '.');
    ASSERT_EQ(read.tape.count(), content.tape.count());
    for (std::size_t row = 0; row < read.tape.count(); ++row) {
        EXPECT_EQ(read.tape.row(row), content.tape.row(row));
        EXPECT_EQ(read.tape.value(row).text('.'), content.tape.value(row).text('.'));
    }
    EXPECT_EQ(read.tape.bytes(), content.tape.bytes()) << "a number takes no more room than it did";
}

TEST(TapeFile, FillersAndTextsComeBackInTheirPlaces) {
    for (const int fillers : {0, 1, 6, 7}) {
        TapeFileContent content = withFillers(fillers);
        content.tape.add("typed", ValueCell{"12"});
        content.tape.add("ZA", ValueCell{});
        content.tape.add("two\nlines", ValueCell{3.0});
        const TapeFileContent read = parseTapeFile(formatTapeFile(content, '.'), '.');
        EXPECT_EQ(read.tape.fillers(), fillers);
        auto expected = rowsOf(content.tape);
        expected.back() = "two lines=3";
        EXPECT_EQ(rowsOf(read.tape), expected);
    }
}

TEST(TapeFile, EveryCutOfAFileIsDamage) {
    TapeFileContent content = withFillers(3);
    content.StackPtr = 3;
    content.stack = {ValueCell{1.0}, ValueCell{"2"}};
    content.tape.addNumber({}, "+", 4.0);
    const std::string whole = formatTapeFile(content, '.');
    EXPECT_NO_THROW(static_cast<void>(parseTapeFile(whole, '.')));
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_THROW(static_cast<void>(parseTapeFile(whole.substr(0, size), '.')), Failure) << size;
    }
}

TEST(TapeFile, NoNumberInAFileAsksForMoreThanThereIs) {
    const std::string endless(kLongestLine + 2, '7');
    for (const char* const text :
         {"2\n 0 \n 0 \n 1048578 \n 0 \n", "2\n 0 \n 0 \n 99999999999 \n 0 \n", "2\n 0 \n 0 \n 1 \n 0 \n\nZAK\n 1 \n",
          "2\n 0 \n 0 \n 1 \n 0 \n\na\nZAK\n 2 \n\n\n\n", "2\n 0 \n 0 \n 1 \n 0 \n\na\nZAK\n-1 \n\n\n\n"}) {
        EXPECT_THROW(static_cast<void>(parseTapeFile(text, '.')), Failure) << text;
    }
    EXPECT_THROW(static_cast<void>(parseTapeFile("2\n" + endless + "\n", '.')), Failure);
}

TEST(TapeFile, ACopyOfATapeStaysAsItWas) {
    Tape tape;
    tape.clear(2);
    for (int line = 0; line < 10'000; ++line) {
        tape.addNumber({}, "", line);
    }
    const Tape copy = tape;
    const auto before = rowsOf(copy);
    for (int line = 0; line < 10'000; ++line) {
        tape.addNumber({}, "+", -line);
    }
    tape.clear(1);
    EXPECT_EQ(rowsOf(copy), before);
}

}  // namespace
}  // namespace tallyforge
