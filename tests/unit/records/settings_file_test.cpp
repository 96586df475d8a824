// SPDX-License-Identifier: GPL-3.0-or-later
//
// A numeric field of a settings record changes by a difference, byte by byte.
#include "records/settings_file.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <thread>
#include <vector>

namespace tallyforge {
namespace {

class AdjustRecord : public ::testing::Test {
protected:
    AdjustRecord() {
        file.setPath(folder.path / SettingsFile::kName);
        std::vector<char> blank(3 * 1250, '.');
        for (const std::size_t record : {0U, 1250U, 2500U}) {
            for (const auto& [offset, size] : {std::pair{0U, 4U}, {108U, 8U}, {116U, 4U}}) {
                std::fill_n(blank.begin() + static_cast<std::ptrdiff_t>(record + offset), size, '\0');
            }
        }
        std::ofstream(file.path(), std::ios::binary).write(blank.data(), static_cast<std::streamsize>(blank.size()));
    }
    [[nodiscard]] std::vector<unsigned char> bytes() const {
        std::ifstream in(file.path(), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    /// The bytes from `offset`, lowest first.
    [[nodiscard]] std::vector<int> at(std::size_t offset, std::size_t count) const {
        const auto all = bytes();
        const auto first = all.begin() + static_cast<std::ptrdiff_t>(offset);
        return {first, first + static_cast<std::ptrdiff_t>(count)};
    }

    TemporaryFolder folder;
    SettingsFile file;
};

using Bytes = std::vector<int>;

TEST_F(AdjustRecord, AddsTheNewValueAndTakesTheOldOne) {
    file.AdjustRecord(0x10203, 0, 1, RecordField::LongA);
    EXPECT_EQ(at(0, 4), (Bytes{3, 2, 1, 0}));
    file.AdjustRecord(0x20000, 0x10000, 1, RecordField::LongA);
    EXPECT_EQ(at(0, 4), (Bytes{3, 2, 2, 0}));
    file.AdjustRecord(0, 0x20204, 1, RecordField::LongA);
    EXPECT_EQ(at(0, 4), (Bytes{255, 255, 255, 255})) << "-1";
}

TEST_F(AdjustRecord, TheFixedPointFieldHoldsTenThousandths) {
    file.AdjustRecord(7, 4, 2, RecordField::Fixed);
    EXPECT_EQ(at(1250 + 108, 8), (Bytes{0x30, 0x75, 0, 0, 0, 0, 0, 0})) << "30000";
    file.AdjustRecord(1 << 30, 3, 2, RecordField::Fixed);
    EXPECT_EQ(at(1250 + 108, 8), (Bytes{0, 0, 0, 0, 0xC4, 0x09, 0, 0})) << "2500 times 2 to the 32nd";
}

TEST_F(AdjustRecord, TheSecondLongStandsBehindTheFixedPointField) {
    file.AdjustRecord(1 << 28, 0, 3, RecordField::LongB);
    EXPECT_EQ(at(2500 + 116, 4), (Bytes{0, 0, 0, 16}));
    file.AdjustRecord(1 << 29, 1 << 28, 3, RecordField::LongB);
    EXPECT_EQ(at(2500 + 116, 4), (Bytes{0, 0, 0, 32}));
}

TEST_F(AdjustRecord, TouchesNothingButItsField) {
    auto wanted = bytes();
    file.AdjustRecord(258, 0, 2, RecordField::LongB);
    wanted.at(1250 + 116) = 2;
    wanted.at(1250 + 117) = 1;
    EXPECT_EQ(bytes(), wanted);
}

TEST_F(AdjustRecord, CalculatorsThatChangeSettingsAtTheSameTimeLoseNone) {
    constexpr int kChanges = 100;
    const auto changeBits = [&](int first) {
        SettingsFile own;
        own.setPath(file.path());
        for (int i = 0; i < kChanges; ++i) {
            own.AdjustRecord(1, 0, first, RecordField::LongA);
        }
    };
    std::thread other([&] { changeBits(1); });
    changeBits(2);
    other.join();
    EXPECT_EQ(file.read().number(1, RecordField::LongA), kChanges);
    EXPECT_EQ(file.read().number(2, RecordField::LongA), kChanges);
}

TEST_F(AdjustRecord, InMemoryTheDefaultsHoldAndChangesLast) {
    const auto before = bytes();
    file.keepInMemory();
    EXPECT_EQ(file.read().text(Setting::TaxRate), "7.75 ");
    file.change([](SettingsRecords& records) { records.setText(Setting::TaxRate, "8.25"); });
    EXPECT_EQ(file.read().text(Setting::TaxRate), "8.25 ");
    EXPECT_TRUE(bytes() == before);
}

}  // namespace
}  // namespace tallyforge
