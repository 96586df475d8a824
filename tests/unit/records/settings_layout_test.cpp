// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where each setting lies, written down a second time as a byte and a bit of the file, so that no
// file of an earlier version is read wrongly; and each row walked.
#include "records/settings_file.h"

#include <gtest/gtest.h>

#include <iterator>
#include <optional>
#include <string>
#include <vector>

namespace tallyforge {
namespace {

struct Place {
    Setting setting;
    std::size_t byte;
    std::size_t bit;  ///< of the byte; 0 for texts
};

constexpr Place kPlaces[] = {
    {Setting::UnitsMag, 0, 0},          {Setting::DataVersion, 32, 0},     {Setting::EngineeringNotices, 56, 0},
    {Setting::MagneticsNotices, 57, 0}, {Setting::TapeFile, 58, 0},        {Setting::RegisterFile, 83, 0},
    {Setting::UnitsLc, 108, 0},         {Setting::UnitsLmu, 116, 0},       {Setting::OnTop, 1254, 0},
    {Setting::LoadsProgram, 1264, 0},   {Setting::KeepsPosition, 1294, 0}, {Setting::TaxRate, 1353, 0},
    {Setting::Mode, 1366, 0},           {Setting::Digits, 1366, 3},        {Setting::NoKeyPaint, 1368, 0},
    {Setting::Degrees, 1368, 1},        {Setting::Grads, 1368, 2},         {Setting::ViewPlain, 1368, 3},
    {Setting::ShownKeypad, 1368, 5},    {Setting::Tall, 1369, 4},          {Setting::YField, 1369, 5},
    {Setting::LastxField, 1369, 6},     {Setting::UnitsOhm, 2500, 0},      {Setting::DefaultProgram, 2504, 0},
    {Setting::WordSize, 2545, 0},       {Setting::WindowPlace, 2556, 0},   {Setting::UnitsCore, 2616, 0},
};

/// The bytes in which two files differ.
std::vector<std::size_t> differences(const SettingsRecords& one, const SettingsRecords& other) {
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < SettingsRecords::kSize; ++i) {
        if (one.bytes()[i] != other.bytes()[i]) {
            found.push_back(i);
        }
    }
    return found;
}

TEST(SettingsLayout, EachSettingLiesWhereFilesHaveIt) {
    ASSERT_EQ(std::size(kPlaces), kSettings.size());
    const SettingsRecords fresh;
    for (const Place& place : kPlaces) {
        const SettingRow& row = rowOf(place.setting);
        SCOPED_TRACE(static_cast<int>(place.setting));
        SettingsRecords changed;
        if (isText(row.field)) {
            changed.setText(place.setting, std::string(row.width, '#'));
            const auto found = differences(fresh, changed);
            ASSERT_EQ(found.size(), row.width);
            EXPECT_EQ(found.front(), place.byte);
            EXPECT_EQ(found.back(), place.byte + row.width - 1);
        } else if (row.field == RecordField::Fixed) {
            changed.setBits(place.setting, 0x7FFFFFFF);
            const auto found = differences(fresh, changed);
            ASSERT_FALSE(found.empty());
            EXPECT_EQ(found.front(), place.byte);
            EXPECT_LT(found.back(), place.byte + 8);
        } else {
            changed.setBits(place.setting, fresh.bits(place.setting) ^ 1U);
            const auto found = differences(fresh, changed);
            ASSERT_EQ(found.size(), 1U);
            EXPECT_EQ(found.front(), place.byte);
            const auto byte = [&](const SettingsRecords& all) {
                return static_cast<unsigned char>(all.bytes()[place.byte]);
            };
            EXPECT_EQ(byte(fresh) ^ byte(changed), 1 << place.bit);
        }
    }
}

TEST(SettingsLayout, AFreshFileHasThePresetsOfTheRowsAndBlanksAndZerosElsewhere) {
    const SettingsRecords fresh;
    for (const SettingRow& row : kSettings) {
        SCOPED_TRACE(static_cast<int>(row.setting));
        if (isText(row.field)) {
            std::string wanted(row.preset);
            wanted.resize(row.width, ' ');
            EXPECT_EQ(fresh.text(row.setting), wanted);
        } else {
            EXPECT_EQ(fresh.bits(row.setting), row.presetBits);
        }
    }
    EXPECT_EQ(fresh.bytes().substr(4, 28), std::string(28, ' '));
    EXPECT_EQ(fresh.bytes().substr(120, 1130), std::string(1130, '\0'));
    EXPECT_EQ(fresh.number(2, RecordField::LongA), 0);
    EXPECT_EQ(fresh.number(3, RecordField::Fixed), 0);
}

TEST(SettingsLayout, WhatIsWrittenIsReadAndNothingElseChanges) {
    for (const SettingRow& row : kSettings) {
        SCOPED_TRACE(static_cast<int>(row.setting));
        SettingsRecords all;
        if (isText(row.field)) {
            all.setText(row.setting, std::string(row.width + 3, '7'));
            EXPECT_EQ(all.text(row.setting), std::string(row.width, '7'));
        } else {
            all.setBits(row.setting, 0xFFFFFFFF);
            EXPECT_EQ(all.bits(row.setting), row.width == 32 ? 0xFFFFFFFF : (1U << row.width) - 1);
        }
        const SettingsRecords fresh;
        for (const SettingRow& other : kSettings) {
            if (other.setting == row.setting) {
                continue;
            }
            if (isText(other.field)) {
                EXPECT_EQ(all.text(other.setting), fresh.text(other.setting));
            } else {
                EXPECT_EQ(all.bits(other.setting), fresh.bits(other.setting));
            }
        }
    }
}

TEST(SettingsLayout, OfSeveralBitsTheLowestIsTheChosenOne) {
    SettingsRecords all;
    all.setBits(Setting::Digits, 0b110100);
    EXPECT_EQ(all.chosen(Setting::Digits), 2);
    all.choose(Setting::Digits, 12);
    EXPECT_EQ(all.bits(Setting::Digits), 1U << 12U);
    all.setBits(Setting::Digits, 0);
    EXPECT_EQ(all.chosen(Setting::Digits), std::nullopt);
}

}  // namespace
}  // namespace tallyforge
