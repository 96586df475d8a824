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
    EXPECT_EQ(content.lines, (std::vector<std::string>{"", "1.00", "2.00"}));
    EXPECT_EQ(content.fillers, 1);
    EXPECT_EQ(content.values, (std::vector<ValueCell>{ValueCell{1.0}, ValueCell{2.0}}));
    EXPECT_EQ(parseTapeFile(formatTapeFile(content, '.'), '.').values, content.values);
}

TEST(TapeFile, ATapeOfFillersAloneIsWhole) {
    const auto content = parseTapeFile("2\n\n\n 1 \n\n\n\n\nZAK\n 2 \n\n\n", '.');
    EXPECT_EQ(content.StackPtr, 1);
    EXPECT_EQ(content.fillers, 2);
    EXPECT_TRUE(content.values.empty());
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

}  // namespace
}  // namespace tallyforge
