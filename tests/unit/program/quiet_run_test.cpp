// SPDX-License-Identifier: GPL-3.0-or-later
//
// A program that nobody watches leaves what it leaves when each commit takes every step: random
// programs run on two calculators, one of which is never quiet.
#include "platform/form_input.h"
#include "support/calculator_fixture.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {
namespace {

constexpr std::size_t kKeyA = 15;
constexpr int kPrograms = 250;
constexpr int kWords = 60;

class RandomProgram {
public:
    explicit RandomProgram(unsigned seed) : random_(seed) {}

    std::string text() {
        std::string program = "# aa bb cc\nlbl init\nend\nlbl g\n" + line() + "end\nlbl a\n";
        for (int i = 0; i < kWords; ++i) {
            program += line();
        }
        return program + "end\n";
    }

private:
    static constexpr std::array<std::string_view, 14> kNumbers{"0",     "1",      "2",      "-3",   "0.5",
                                                               "0.1",   "1e-9",   "7.25",   "1e15", "123456789012345",
                                                               "1e300", "1e-300", "-0.333", "12"};
    static constexpr std::array<std::string_view, 3> kNames{"aa", "bb", "cc"};
    static constexpr std::array<std::string_view, 30> kActs{
        "+",   "-",  "*",   "/",   "+",   "-",   "*",  "/",  "drop",  "x~y",   "chs", "lstx", "enter", "sqrt", "1/x",
        "sin", "ln", "sqr", "rnd", "int", "frc", "n!", "pi", "sto 3", "rcl 3", "x",   "y",    "asinh", "^",    "p>r"};
    static constexpr std::array<std::string_view, 9> kStatements{"fix",  "sci",   "eng",   "dsp 4",  "dsp 11",
                                                                 "sf-5", "gsb g", "rcl 9", "unknown"};

    template <std::size_t Count>
    std::string one(const std::array<std::string_view, Count>& of) {
        return std::string(of[random_() % Count]);
    }
    std::string value() { return random_() % 2 == 0 ? one(kNumbers) : one(kNames); }
    std::string line() {
        switch (random_() % 8) {
            case 0:
                return one(kNames) + " = " + value() + " " + value() + " " + one(kActs) + "\n";
            case 1:
                return one(kNames) + " = " + value() + "\n";
            case 2:
                return "if " + value() + (random_() % 2 == 0 ? " > " : " <> ") + value() + " then\n" + one(kActs) +
                       "\nendif\n";
            case 3:
                return one(kStatements) + "\n";
            case 4:
            case 5:
                return value() + "\n";
            default:
                return one(kActs) + "\n";
        }
    }

    std::mt19937 random_;
};

/// All that a run leaves, for the eye too.
std::vector<std::string> runOf(const std::string& program, bool quiet) {
    CalculatorAtHand hand;
    std::filesystem::create_directories(hand.platform.folder / "programs");
    std::ofstream(hand.platform.folder / "programs/random.rec") << program;
    hand.platform.texts.emplace_back("random");
    click(hand.form(), hand.form().mnuProgram);
    hand.type("5");
    // An open dialog keeps every commit on its long road.
    hand.calc().dialogOpen = !quiet;
    click(hand.form(), hand.form().cmdFunctions.at(kKeyA));
    EXPECT_TRUE(!quiet || hand.calc().tape.lines() > 20U) << "the run has come to its quiet part";
    std::vector<std::string> all = hand.everything();
    for (const MessageBox& box : hand.platform.boxes) {
        all.push_back(box.title + ": " + box.text);
    }
    const EngineState& s = hand.s();
    const MainForm& form = hand.form();
    all.push_back(form.txtLastx.text + "|" + form.txty_Reg.text + "|" + form.txtXreg.text + "|" +
                  std::string(std::string_view(s.CurrentProc)));
    for (const bool flag : {s.entry.EntryOpen, s.entry.EexActive, s.entry.EntryTouched,
                            s.delivery.writtenAs != WrittenAs::Number, !s.delivery.FnLabel.empty(),
                            form.cmdDown.enabled, form.cmdXchgY.enabled, form.cmdLastx.enabled, form.cmdSTO.enabled,
                            form.optKey.back().checked, form.shaCtrl.visible, s.modes.QuizMode, s.modes.ProgramMode}) {
        all.emplace_back(flag ? "yes" : "no");
    }
    all.push_back(std::to_string(s.stack.LowestStackPtr) + " " + std::to_string(s.modifiers.ModifierMask) + " " +
                  std::to_string(form.lstDisplayReg.place.width) + " " + std::to_string(hand.calc().tape.selected()));
    return all;
}

TEST(QuietRun, LeavesWhatAWatchedOneLeaves) {
    for (unsigned seed = 1; seed <= kPrograms; ++seed) {
        const std::string program = RandomProgram{seed}.text();
        ASSERT_EQ(runOf(program, true), runOf(program, false)) << "seed " << seed << "\n" << program;
    }
}

// Where a number with its label grows beyond a line of the tape.
TEST(QuietRun, WritesNumbersOfEachLengthBesideTheirLabelsAsAWatchedOneDoes) {
    for (int digits = 0; digits <= 12; ++digits) {
        std::string program = "# aa bb\nlbl init\nend\nlbl a\ndsp " + std::to_string(digits) + "\n";
        for (int power = 5; power <= 17; ++power) {
            const std::string ten = "1e" + std::to_string(power);
            for (const std::string& number : {ten, "-" + ten, ten.substr(1).insert(0, "9.99999999")}) {
                program += number + "\nenter\nlstx\n";
            }
        }
        program += "end\n";
        ASSERT_EQ(runOf(program, true), runOf(program, false)) << digits;
    }
}

}  // namespace
}  // namespace tallyforge
