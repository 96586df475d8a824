// SPDX-License-Identifier: GPL-3.0-or-later
//
// The settings records and the life cycle, with a whole calculator.
#include "records/settings_file.h"
#include "support/calculator_fixture.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace tallyforge {
namespace {

class Settings : public ::testing::Test, protected CalculatorAtHand {
protected:
    [[nodiscard]] std::string bytes() const { return file(SettingsFile::kName); }
    [[nodiscard]] SettingsRecords records() const { return SettingsRecords(bytes()); }
    [[nodiscard]] std::string text(Setting setting) const { return records().text(setting); }
    [[nodiscard]] std::uint32_t options() const {
        return static_cast<std::uint32_t>(records().number(2, RecordField::LongB));
    }
    /// Lays down what is in the file with a change.
    template <typename Change>
    void rewrite(Change change) {
        SettingsRecords all = records();
        change(all);
        writeFile(SettingsFile::kName, std::string(all.bytes()));
    }
    void saveSettings() {
        platform.answers = {Answer::Yes};
        choose(form().mnuSave);
    }
};

TEST_F(Settings, TheFirstStartLaysTheFileDownWithItsDefaults) {
    ASSERT_EQ(bytes().size(), 3750U);
    EXPECT_EQ(text(Setting::DataVersion), "08");
    EXPECT_EQ(text(Setting::EngineeringNotices) + text(Setting::MagneticsNotices), "00");
    EXPECT_EQ(text(Setting::TaxRate), "7.75 ");
    EXPECT_EQ(text(Setting::WindowPlace), "Philosopher ");
    EXPECT_EQ(text(Setting::WordSize), "64");
    EXPECT_EQ(options(), 1U | 1U << 5 | 1U << 17 | 1U << 19 | 1U << 21);
    EXPECT_EQ(s().format.DisplayDigits, 2);
    EXPECT_EQ(s().format.Mode, DisplayMode::Fixed);
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Standard);
    EXPECT_EQ(s().format.Angle, AngleMode::Degrees);
    EXPECT_FALSE(s().window.ViewExtended);
    EXPECT_FLOAT_EQ(s().functions.TaxRate, 7.75F);
    EXPECT_TRUE(form().mnuSkins.checked);
    EXPECT_EQ(form().cmdDigits.text, "Display(2)");
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(Settings, EachRangeOfUnitsHasOneRow) {
    const auto rows = [](std::uint32_t word, int first, int last) {
        int set = 0;
        for (int bit = first; bit <= last; ++bit) {
            set += (word >> bit & 1U) != 0 ? 1 : 0;
        }
        return set;
    };
    const std::uint32_t magnetics = records().bits(Setting::UnitsMag);
    for (const auto& [first, last] :
         {std::pair{0, 4}, {5, 8}, {9, 10}, {11, 14}, {15, 18}, {19, 20}, {21, 22}, {23, 26}, {27, 30}}) {
        EXPECT_EQ(rows(magnetics, first, last), 1) << first;
    }
    const std::uint32_t ohm = records().bits(Setting::UnitsOhm);
    for (const auto& [first, last] : {std::pair{0, 3}, {6, 10}, {11, 14}, {16, 19}, {20, 22}, {23, 26}, {27, 30}}) {
        EXPECT_EQ(rows(ohm, first, last), 1) << first;
    }
}

TEST_F(Settings, SaveSettingsKeepsFormatKeypadViewAndAngle) {
    choose(form().optFix[2]);
    choose(form().optGrad);
    type("7");
    choose(form().cmdDigits);
    choose(form().mnuTrig);
    choose(form().cmdView);
    saveSettings();
    EXPECT_EQ(platform.boxes.back().text, "Would you like to save your settings?");
    EXPECT_EQ(platform.boxes.back().title, "SAVE!");
    EXPECT_EQ(options(), 1U << 2 | 1U << 10 | 1U << 18 | 1U << 23);
    start();
    EXPECT_EQ(s().format.Mode, DisplayMode::Engineering);
    EXPECT_EQ(s().format.DisplayDigits, 7);
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Trigonometry);
    EXPECT_EQ(s().format.Angle, AngleMode::Grads);
    EXPECT_TRUE(s().window.ViewExtended);
    EXPECT_EQ(form().place.width, 7200);
    EXPECT_TRUE(form().txtReg_m[11].visible);
}

TEST_F(Settings, EachAngleComesBackWithItsMark) {
    for (const std::size_t chosen : {1U, 2U, 0U}) {
        const auto marks = [this] {
            return std::array{form().optDeg.checked, form().optRad.checked, form().optGrad.checked};
        };
        std::array<bool, 3> expected{};
        expected.at(chosen) = true;
        choose(*std::array{&form().optDeg, &form().optRad, &form().optGrad}.at(chosen));
        EXPECT_EQ(marks(), expected);
        saveSettings();
        start();
        EXPECT_EQ(s().format.Angle, (std::array{AngleMode::Degrees, AngleMode::Radians, AngleMode::Grads}.at(chosen)));
        EXPECT_EQ(marks(), expected);
    }
}

TEST_F(Settings, WithoutSaveSettingsNothingOfThatIsKept) {
    choose(form().optFix[1]);
    choose(form().mnuMag);
    choose(form().mnuSave);
    start();
    EXPECT_EQ(s().format.Mode, DisplayMode::Fixed);
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Standard);
}

TEST_F(Settings, OnTheBinaryKeypadTheUsersDigitsAreSaved) {
    type("6");
    choose(form().cmdDigits);
    choose(form().mnuEngBinary);
    EXPECT_EQ(s().format.DisplayDigits, 0);
    saveSettings();
    EXPECT_EQ(options() & 0xFFF8U, 1U << 9);
    EXPECT_NE(options() & 1U << 24, 0U);
}

TEST_F(Settings, TheWordSizeIsKeptInTwoDigits) {
    choose(form().mnuEngBinary);
    type("8");
    choose(form().cmdDigits);
    saveSettings();
    EXPECT_EQ(text(Setting::WordSize), "08");
    start();
    EXPECT_EQ(s().format.WordSize, 8);
}

TEST_F(Settings, TheTicksWriteThemselvesAtOnce) {
    choose(form().mnuPosition);
    choose(form().mnuAOT);
    choose(form().mnuLoad);
    choose(form().mnuSkins);
    EXPECT_EQ(text(Setting::KeepsPosition), "Snail mail: ");
    EXPECT_EQ(text(Setting::OnTop), "E");
    EXPECT_EQ(text(Setting::LoadsProgram), "S");
    EXPECT_NE(options() & 1U << 16, 0U);
    start();
    EXPECT_TRUE(form().mnuAOT.checked);
    EXPECT_TRUE(form().alwaysOnTop);
    EXPECT_TRUE(form().mnuPosition.checked);
    EXPECT_TRUE(s().modifiers.NoKeyPaint);
    EXPECT_FALSE(form().mnuSkins.checked);
    choose(form().mnuAOT);
    EXPECT_EQ(text(Setting::OnTop), "e");
}

TEST_F(Settings, ThePositionIsKeptOnlyWhereTheUserWantsIt) {
    form().place.top = 1500;
    form().place.left = 2400;
    closeForm(form());
    EXPECT_EQ(text(Setting::WindowPlace), "Philosopher ");
    EXPECT_FALSE(form().open);
    start();
    EXPECT_EQ(form().place.left, 0);
    choose(form().mnuPosition);
    form().place.top = 1500;
    form().place.left = 2400;
    closeForm(form());
    EXPECT_EQ(text(Setting::WindowPlace), "01500 002400");
    start();
    EXPECT_EQ(form().place.top, 1500);
    EXPECT_EQ(form().place.left, 2400);
    form().place.top = 9;
    form().minimised = true;
    closeForm(form());
    EXPECT_EQ(text(Setting::WindowPlace), "01500 002400") << "a minimised window keeps the place it had at start";
}

TEST_F(Settings, ReservedBytesStayAsTheyStand) {
    std::string marked = bytes();
    for (const std::size_t offset : {120U, 1249U, 1250U + 800U, 2500U + 1249U}) {
        marked[offset] = 'R';
    }
    writeFile(SettingsFile::kName, marked);
    choose(form().mnuPosition);
    saveSettings();
    closeForm(form());
    for (const std::size_t offset : {120U, 1249U, 1250U + 800U, 2500U + 1249U}) {
        EXPECT_EQ(bytes()[offset], 'R') << offset;
    }
}

TEST_F(Settings, AFileBehindALinkStaysThereWithItsPermissions) {
    using std::filesystem::perms;
    const std::filesystem::path real = platform.folder / "real.rec";
    const std::filesystem::path link = platform.folder / SettingsFile::kName;
    std::filesystem::rename(link, real);
    std::filesystem::permissions(real, perms::owner_read | perms::owner_write);
    std::filesystem::create_symlink("real.rec", link);
    choose(form().mnuAOT);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(std::filesystem::status(real).permissions(), perms::owner_read | perms::owner_write);
    start();
    EXPECT_TRUE(form().mnuAOT.checked);
}

TEST_F(Settings, AMissingShortOrNoisyFileIsToldAndSetAsideAndTheNextStartWorks) {
    const std::string whole = bytes();
    const auto expectNextStartWorks = [&] {
        platform.boxes.clear();
        start();
        EXPECT_TRUE(platform.boxes.empty());
        EXPECT_TRUE(form().open);
        EXPECT_EQ(bytes().size(), 3750U);
    };
    const std::string aside = std::string(SettingsFile::kName) + ".bad";
    std::string noise(3750, 'x');
    for (const std::string& damaged : {std::string{}, whole.substr(0, 3749), whole + "x"}) {
        writeFile(SettingsFile::kName, damaged);
        platform.boxes.clear();
        start();
        ASSERT_EQ(platform.boxes.size(), 1U) << damaged.size();
        EXPECT_EQ(platform.boxes[0].title, "Error loading program!");
        EXPECT_EQ(platform.boxes[0].text.substr(0, 73),
                  "There is a missing or corrupt file! Remove and reinstall the software, or");
        EXPECT_EQ(platform.boxes[0].kind, BoxKind::Stop);
        EXPECT_FALSE(form().open);
        EXPECT_TRUE(file(aside) == damaged);
        expectNextStartWorks();
    }
    writeFile(SettingsFile::kName, noise);
    platform.boxes.clear();
    start();
    EXPECT_EQ(platform.boxes.at(0).title, "Version Conflict!");
    EXPECT_TRUE(file(aside) == noise);
    expectNextStartWorks();
    std::filesystem::remove(platform.folder / SettingsFile::kName);
    ASSERT_TRUE(platform.hasOption("Show Tips at Startup")) << "a sign of the first start";
    writeFile("tape.txt", "a tape of the user's");
    platform.boxes.clear();
    start();
    EXPECT_EQ(platform.boxes.at(0).title, "Error loading program!");
    EXPECT_EQ(file("tape.txt"), "a tape of the user's");
}

TEST_F(Settings, AFolderOfTheUsersOwnFilesIsNoDamage) {
    std::filesystem::remove(platform.folder / SettingsFile::kName);
    platform.options.clear();
    std::filesystem::create_directories(platform.folder / "programs");
    writeFile("tape.txt", "a tape of the user's");
    start();
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_TRUE(form().open);
    EXPECT_EQ(bytes().size(), 3750U);
    EXPECT_EQ(file("tape.txt"), "a tape of the user's");
}

TEST_F(Settings, AFolderThatWasEmptiedIsAFirstStart) {
    std::filesystem::remove_all(platform.folder);
    start();
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(bytes().size(), 3750U);
}

TEST_F(Settings, AnOptionWordWithoutDigitsGivesThirteen) {
    rewrite([](SettingsRecords& all) { all.setBits(Setting::Digits, 0); });
    start();
    EXPECT_EQ(s().format.DisplayDigits, 13);
    EXPECT_EQ(form().cmdDigits.text, "Display(13)");
    enter("0.5");
    EXPECT_EQ(tape().back(), "0.500 000 000 000 0");
}

TEST_F(Settings, AnOldDataVersionIsRefused) {
    rewrite([](SettingsRecords& all) { all.setText(Setting::DataVersion, "07"); });
    start();
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].title, "Version Conflict!");
    EXPECT_EQ(platform.boxes[0].text,
              "You must uninstall the previous version \ncompletely, then reinstall the new version.");
    EXPECT_FALSE(form().open);
}

TEST_F(Settings, TheDecimalCommaIsTheLocales) {
    platform.decimal = ',';
    start();
    EXPECT_EQ(form().cmdNumPad[10].text, ",");
    EXPECT_FLOAT_EQ(s().functions.TaxRate, 7.75F);
    enter("1,5");
    EXPECT_EQ(tape().back(), "1,50");
}

TEST_F(Settings, AnotherDensityGivesTheCompactForm) {
    platform.desktop.dotsPerInch = 120;
    start();
    EXPECT_TRUE(s().window.CompactForm);
    EXPECT_EQ(s().window.TapeRows, 5);
    EXPECT_EQ(calc().tape.count(), 5U);
    EXPECT_FLOAT_EQ(form().lstDisplayReg.font.points, 12.0F);
}

TEST_F(Settings, ViewShowsTheSmallRegistersAndKeepsThem) {
    EXPECT_FALSE(form().txty_Reg.visible);
    clickWith(kAlt, form().cmdView);
    EXPECT_TRUE(form().txty_Reg.visible);
    EXPECT_TRUE(form().Label7.visible);
    EXPECT_FALSE(form().txtLastx.visible);
    clickWith(kCtrl, form().cmdView);
    EXPECT_TRUE(form().txtLastx.visible);
    clickWith(kCtrl, form().cmdDigits);
    EXPECT_EQ(form().place.height, s().window.BasicHeight + 300);
    start();
    EXPECT_TRUE(form().txty_Reg.visible);
    EXPECT_TRUE(form().txtLastx.visible);
    EXPECT_TRUE(s().window.TallForm);
    EXPECT_EQ(form().place.height, s().window.BasicHeight + 240);
    clickWith(kAlt, form().cmdView);
    EXPECT_FALSE(form().txty_Reg.visible);
    choose(form().cmdView);
    EXPECT_TRUE(form().txty_Reg.visible);
    EXPECT_EQ(form().place.height, s().window.BasicHeight + 240 + 2000);
    clickWith(kAlt, form().cmdView);
    EXPECT_TRUE(form().txty_Reg.visible) << "only the plain view has the choice";
    clickWith(kShift, form().cmdView);
    EXPECT_TRUE(s().window.ViewExtended);
}

TEST_F(Settings, TheFirstNoticesOfTheKeypadsAreCounted) {
    choose(form().mnuEngNormal);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].title, "Engineering Keypad");
    EXPECT_EQ(text(Setting::EngineeringNotices), "1");
    for (int run = 0; run < 10; ++run) {
        start();
        choose(form().mnuEngNormal);
    }
    EXPECT_EQ(platform.boxes.size(), 7U);
    EXPECT_EQ(text(Setting::EngineeringNotices), "7");
}

TEST_F(Settings, APasteTakesNumbersAndNumbersOfABase) {
    platform.clipboard = "12abc";
    choose(form().mnuPaste);
    EXPECT_EQ(s().stack.depth(), 0);
    platform.clipboard = " 1.50\n";
    choose(form().mnuPaste);
    EXPECT_EQ(x(), "1.50");
    EXPECT_EQ(tape().back(), "Paste              1.50");
    platform.clipboard = "#101b";
    choose(form().mnuPaste);
    EXPECT_EQ(x(), "#101b");
    platform.clipboard = "#101";
    choose(form().mnuPaste);
    EXPECT_EQ(s().stack.depth(), 2);
    platform.clipboard = "1e999";
    choose(form().mnuPaste);
    EXPECT_EQ(platform.boxes.back().text, "Error number 6!");
    EXPECT_EQ(s().stack.depth(), 2);
}

TEST_F(Settings, APasteWithoutATextLeavesX) {
    enter("2.500");
    for (const char* nothing : {"", " ", "\r\n"}) {
        platform.clipboard = nothing;
        choose(form().mnuPaste);
        pressKey(form(), {.keyCode = 'V', .shift = kCtrl | kShift, .character = 'V' - '@'});
        EXPECT_EQ(x(), "2.500");
        EXPECT_EQ(s().stack.depth(), 1);
    }
    type("7");
    choose(form().mnuPaste);
    EXPECT_EQ(x(), "7") << "what was typed is entered, as before any paste";
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(Settings, APasteOfNoiseOrOfALongTextIsRefused) {
    enter("2.500");
    std::string noise;
    for (int byte = 0; byte < 1000; ++byte) {
        noise += static_cast<char>(byte * 7919 % 256);
    }
    const std::string longText = std::string(kLongestClipping, '1') + "...";
    for (const std::string& text : {noise, longText, std::string(kLongestClipping, ' ') + "...", "12" + longText}) {
        platform.clipboard = text;
        choose(form().mnuPaste);
        EXPECT_EQ(s().stack.depth(), 1);
        EXPECT_EQ(tape().size(), 1U);
        EXPECT_LT(form().lineFor(nullptr).size(), 150U) << "what is said of it fits a line";
        EXPECT_LT(form().txtXreg.resting().size(), 50U);
    }
    ASSERT_EQ(platform.boxes.size(), 2U);
    for (const MessageBox& box : platform.boxes) {
        EXPECT_EQ(box.text, "The text on the clipboard is too long for a number.");
    }
    enter("3");
    choose(form().mnuCopy);
    EXPECT_EQ(platform.clipboard, "3") << "it goes on";
}

TEST_F(Settings, APasteTakesNoTextThatIsTooLong) {
    enter("7");
    platform.clipboard = std::string(4096, '1');
    choose(form().mnuPaste);
    EXPECT_EQ(x(), platform.clipboard) << "no number of the calculator's range, but a text that X may hold";
    enter("7");
    platform.clipboard += '1';
    choose(form().mnuPaste);
    EXPECT_EQ(platform.boxes.back().text, "The text on the clipboard is too long for a number.");
    EXPECT_EQ(x(), "7");
    EXPECT_EQ(s().stack.depth(), 2);
}

TEST_F(Settings, CopyGivesTheNumberAsItWasTyped) {
    enter("2.500");
    choose(form().mnuCopy);
    EXPECT_EQ(platform.clipboard, "2.500");
}

}  // namespace
}  // namespace tallyforge
