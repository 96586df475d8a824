// SPDX-License-Identifier: GPL-3.0-or-later
//
// Whoever saves a file finds a full disk or a folder that cannot be written: the old file stays
// whole, and the user is told.
#include "records/settings_file.h"
#include "support/calculator_fixture.h"
#include "support/failing_disk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace tallyforge {
namespace {

/// Something that writes a file, and what the user reads where it cannot.
struct Saving {
    const char* name;
    const char* file;
    std::function<void(CalculatorAtHand&)> prepare;
    std::function<void(CalculatorAtHand&)> save;
    /// The message, with "%" where the failure stands.
    std::string message;
};

/// "mnuSave Error!: Error number 61!" as a message says it in short.
std::string numbered(const std::string& procedure) {
    return procedure + " Error!: Error number %!";
}
/// The long form, whatever procedure its title names.
std::string inProcedure(const std::string& procedure) {
    return "Error % in procedure " + procedure + " of Form frm_Tallyforge";
}

void saveTape(CalculatorAtHand& hand) {
    hand.platform.texts = {"t.txt"};
    // Overwrite it, but do not make it the default.
    hand.platform.answers = {Answer::Yes, Answer::No};
    hand.choose(hand.form().mnuSaveTape);
}
void saveRegisters(CalculatorAtHand& hand) {
    hand.platform.texts = {"regs.txt"};
    hand.platform.answers = {Answer::Yes, Answer::No};
    hand.choose(hand.form().mnuSaveMem);
}
void reset(CalculatorAtHand& hand) {
    hand.choose(hand.form().cmdReset);
}
void saveSettings(CalculatorAtHand& hand) {
    hand.platform.answers = {Answer::Yes};
    hand.choose(hand.form().mnuSave);
}
void nothing(CalculatorAtHand& /*hand*/) {}

const Saving kSavings[] = {
    {"tape", "t.txt", saveTape, saveTape, inProcedure("mnuSaveTape_Click")},
    {"registers", "regs.txt", saveRegisters, saveRegisters, inProcedure("mnuSaveMem_Click")},
    {"undo", "undo.rec", reset, reset, inProcedure("mnuSaveTape_Click")},
    {"settings", SettingsFile::kName, nothing, saveSettings, numbered("mnuSave")},
    {"tick", SettingsFile::kName, nothing, [](auto& hand) { hand.choose(hand.form().mnuAOT); }, numbered("mnuAOT")},
    {"end", SettingsFile::kName, nothing, [](auto& hand) { closeForm(hand.form()); }, numbered("Form_Unload")},
};

class FailedSaves : public ::testing::TestWithParam<Saving>, protected CalculatorAtHand {
protected:
    /// Saves once, changes what there is to save, and saves again while the disk fails.
    template <typename Failing>
    void saveWhile(const Failing& failing, const char* failure) {
        const Saving& saving = GetParam();
        enter("12.5");
        saving.prepare(*this);
        const std::string old = file(saving.file);
        ASSERT_FALSE(old.empty());
        enter("7");
        type("5");
        clickWith(kShift, form().cmdSTO);
        form().place.left = 100;
        platform.boxes.clear();
        failing([&] { saving.save(*this); });
        EXPECT_EQ(file(saving.file), old);
        expectTold(failure);
        for (const auto& entry : std::filesystem::directory_iterator(platform.folder)) {
            EXPECT_FALSE(entry.path().filename().string().starts_with(std::string(saving.file) + "."))
                << "a temporary is left";
        }
    }
    void expectTold(const std::string& failure) {
        std::string message = GetParam().message;
        message.replace(message.find('%'), 1, failure);
        std::vector<std::string> told;
        for (const MessageBox& box : platform.boxes) {
            if (box.buttons == BoxButtons::Ok) {
                told.push_back(box.title + ": " + box.text);
            }
        }
        ASSERT_EQ(told.size(), 1U) << "once";
        for (const std::string& text : told) {
            EXPECT_TRUE(text.ends_with(message)) << text;
        }
    }
    [[nodiscard]] static bool saysItsNumberOnly() { return GetParam().message.find("number") != std::string::npos; }
};

TEST_P(FailedSaves, AFullDisk) {
    saveWhile(
        [](const auto& save) {
            const FullDisk full;
            save();
        },
        saysItsNumberOnly() ? "61" : "61 (Disk full)");
}

TEST_P(FailedSaves, AReadOnlyFolder) {
    if (!ReadOnlyFolder{platform.folder}.holds()) {
        GTEST_SKIP() << "root writes anywhere";
    }
    saveWhile(
        [&](const auto& save) {
            const ReadOnlyFolder folder{platform.folder};
            save();
        },
        saysItsNumberOnly() ? "75" : "75 (Path or file access error)");
}

INSTANTIATE_TEST_SUITE_P(Of, FailedSaves, ::testing::ValuesIn(kSavings),
                         [](const auto& tested) { return std::string(tested.param.name); });

class FailedSave : public ::testing::Test, protected CalculatorAtHand {};

TEST_F(FailedSave, AResetWithoutRoomIsToldAndCanBeTakenBackAllTheSame) {
    enter("1");
    choose(form().cmdReset);
    enter("2");
    {
        const FullDisk full;
        choose(form().cmdReset);
    }
    EXPECT_EQ(s().stack.depth(), 0);
    EXPECT_EQ(calc().tape.lines(), 0U);
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    EXPECT_EQ(calc().text(s().stack.slot(1)), "2") << "what was cleared lies in memory, too";
}

TEST_F(FailedSave, SettingsThatAreGoneAreToldOnce) {
    std::filesystem::remove(platform.folder / SettingsFile::kName);
    platform.boxes.clear();
    saveSettings(*this);
    ASSERT_EQ(platform.boxes.size(), 2U);
    EXPECT_EQ(platform.boxes[1].text, "Error number 53!");
}

/// Lines of four thousand characters, which have soon filled the memory of a tape.
void addLongLines(Engine& calc, int count, char character) {
    for (int line = 0; line < count; ++line) {
        calc.tape.add("long", ValueCell{std::string(4000, character)});
    }
}

// Two tapes have no room beside each other: what Reset has cleared lies in its file alone then.
TEST_F(FailedSave, ALongTapeComesBackFromItsOwnUndoFile) {
    enter("12.5");
    addLongLines(calc(), 30'000, 'a');
    const std::size_t lines = calc().tape.lines();
    choose(form().cmdReset);
    addLongLines(calc(), 12'000, 'b');
    // Another calculator resets meanwhile.
    const std::filesystem::path undo = platform.folder / "undo.rec";
    std::filesystem::rename(undo, platform.folder / "moved.rec");
    writeFile("undo.rec", "2\n\n\n 1 \n\n\n\n\nZAK\n 2 \n\n\n");
    platform.boxes.clear();
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(calc().text(s().stack.slot(1)), "12.5");
    EXPECT_EQ(calc().tape.lines() + calc().tape.gone(), lines);
    EXPECT_EQ(calc().tape.value(calc().tape.count() - 1), ValueCell{std::string(4000, 'a')});
}

TEST_F(FailedSave, OfALongTapeWithoutRoomOnDiskTheOldestLinesGiveWay) {
    enter("12.5");
    addLongLines(calc(), 28'000, 'a');
    const std::size_t lines = calc().tape.lines();
    {
        const FullDisk full;
        choose(form().cmdReset);
    }
    EXPECT_EQ(platform.boxes.size(), 1U) << "the user knows that there is no file";
    addLongLines(calc(), 20'000, 'b');
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    EXPECT_EQ(calc().text(s().stack.slot(1)), "12.5");
    EXPECT_LT(calc().tape.count(), lines);
    EXPECT_EQ(calc().tape.row(0), std::to_string(calc().tape.gone() + 1) + " older lines");
    EXPECT_EQ(calc().tape.lines() + calc().tape.gone(), lines);
}

TEST_F(FailedSave, ATapeThatFindsNoRoomStaysInTheCalculator) {
    enter("1");
    const auto before = everything();
    platform.texts = {"t.txt"};
    {
        const FullDisk full;
        choose(form().mnuSaveTape);
    }
    EXPECT_EQ(everything(), before);
    EXPECT_FALSE(std::filesystem::exists(platform.folder / "t.txt"));
    platform.texts = {"t.txt"};
    choose(form().mnuSaveTape);
    EXPECT_TRUE(std::filesystem::exists(platform.folder / "t.txt")) << "with room again it is saved";
}

TEST_F(FailedSave, ADefaultNameThatCannotBeKeptIsTold) {
    platform.texts = {"mine.txt"};
    platform.answers = {Answer::Yes};
    {
        const FullDisk full;
        choose(form().mnuSaveTape);
    }
    const std::string message = "Error 61 (Disk full) in procedure mnuSaveTape_Click of Form frm_Tallyforge";
    EXPECT_EQ(std::count_if(platform.boxes.begin(), platform.boxes.end(),
                            [&](const MessageBox& box) { return box.text == message; }),
              2)
        << "once for the name, once for the tape";
    start();
    EXPECT_EQ(s().files.TapeFileName, "tape.txt");
}

TEST_F(FailedSave, AFirstStartWithoutRoomSaysSoOnceAndRuns) {
    std::filesystem::remove_all(platform.folder);
    platform.options.clear();
    platform.boxes.clear();
    {
        const FullDisk full;
        start();
    }
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_TRUE(platform.boxes[0].text.starts_with("The settings cannot be written to "));
    EXPECT_TRUE(form().open);
    EXPECT_TRUE(std::filesystem::is_empty(platform.folder));
    enter("12");
    choose(form().mnuPosition);
    EXPECT_TRUE(form().mnuPosition.checked);
    EXPECT_EQ(platform.boxes.size(), 1U) << "what changes a setting is not told again";
    platform.boxes.clear();
    start();
    EXPECT_TRUE(form().open) << "the next start is the first one again";
    EXPECT_TRUE(platform.boxes.empty());
}

}  // namespace
}  // namespace tallyforge
