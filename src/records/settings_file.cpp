// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/settings_file.h"

#include "records/file_failure.h"

#include <algorithm>
#include <initializer_list>

namespace tallyforge {

namespace {

constexpr std::int64_t kFixedScale = 10000;

constexpr std::int32_t bits(std::initializer_list<int> set) {
    std::uint32_t word = 0;
    for (const int bit : set) {
        word |= 1U << bit;
    }
    return static_cast<std::int32_t>(word);
}

// A fresh file has the first row of each range of units.
constexpr std::int32_t kMagneticUnits = bits({0, 5, 9, 11, 15, 19, 21, 23, 27});
constexpr std::int32_t kPermeabilityUnits = bits({0, 4, 8, 18, 20, 22, 24});
constexpr std::int32_t kResonanceUnits = bits({0, 4, 9, 12});
constexpr std::int32_t kOhmUnits = bits({0, 6, 11, 16, 20, 23, 27});
constexpr std::int32_t kCoreUnits = bits({0, 4, 7, 11, 16, 18, 22, 25, 28});

constexpr std::int32_t kFreshOptions = bits(
    {option_bit::kMode, option_bit::kDigits + 2, option_bit::kDegrees, option_bit::kViewPlain, option_bit::kKeypad});

}  // namespace

SettingsRecord::SettingsRecord() {
    writeText(kTextA, 1, kRecordText, "");
    writeText(kTextB, 1, kRecordText, "");
}

std::uint64_t SettingsRecord::readBytes(std::size_t offset, std::size_t count) const {
    std::uint64_t value = 0;
    for (std::size_t i = count; i-- > 0;) {
        value = value << 8U | static_cast<unsigned char>(bytes.at(offset + i));
    }
    return value;
}

void SettingsRecord::writeBytes(std::size_t offset, std::size_t count, std::uint64_t value) {
    for (std::size_t i = 0; i < count; ++i) {
        bytes.at(offset + i) = static_cast<char>(value >> (8U * i) & 0xFFU);
    }
}

std::int32_t SettingsRecord::readLong(std::size_t offset) const {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(readBytes(offset, 4)));
}

void SettingsRecord::writeLong(std::size_t offset, std::int32_t value) {
    writeBytes(offset, 4, static_cast<std::uint32_t>(value));
}

std::int64_t SettingsRecord::RecFixed() const {
    return static_cast<std::int64_t>(readBytes(kFixed, 8)) / kFixedScale;
}

void SettingsRecord::setRecFixed(std::int64_t whole) {
    writeBytes(kFixed, 8, static_cast<std::uint64_t>(whole) * static_cast<std::uint64_t>(kFixedScale));
}

std::string SettingsRecord::readText(std::size_t field, std::size_t first, std::size_t count) const {
    return {bytes.data() + field + first - 1, count};
}

void SettingsRecord::writeText(std::size_t field, std::size_t first, std::size_t count, std::string_view text) {
    for (std::size_t i = 0; i < count; ++i) {
        bytes.at(field + first - 1 + i) = i < text.size() ? text[i] : ' ';
    }
}

void SettingsRecord::setOption(int bit, bool on) {
    auto word = static_cast<std::uint32_t>(RecLongB());
    word = on ? word | 1U << bit : word & ~(1U << bit);
    setRecLongB(static_cast<std::int32_t>(word));
}

SettingsRecord SettingsFile::defaults(int number) {
    SettingsRecord record;
    if (number == 1) {
        record.setRecLongA(kMagneticUnits);
        record.setTextA(29, 2, "08");
        record.setTextB(1, 2, "00");
        record.setTextB(3, 25, "tape.txt");
        record.setTextB(28, 25, "registers.txt");
        record.setRecFixed(kResonanceUnits);
        record.setRecLongB(kPermeabilityUnits);
    } else if (number == 2) {
        record.setTextA(1, 1, "e");
        record.setTextA(11, 1, "s");
        record.setTextA(41, 12, "snail mail: ");
        record.setTextB(48, 5, "7.75");
        record.setRecLongB(kFreshOptions);
    } else {
        record.setRecLongA(kOhmUnits);
        record.setTextA(42, 2, "64");
        record.setTextB(1, 12, "Philosopher ");
        record.setRecLongB(kCoreUnits);
    }
    return record;
}

void SettingsFile::create() const {
    std::string file;
    for (int number = 1; number <= kRecords; ++number) {
        const SettingsRecord record = defaults(number);
        file.append(record.bytes.data(), record.bytes.size());
    }
    onFile([&] { writeWhole(path_, file); });
}

std::string SettingsFile::readFile() const {
    std::string file = onFile([&] { return readWhole(path_, kRecordSize * kRecords); });
    if (file.size() != kRecordSize * kRecords) {
        throw Failure{FailureNumber::DamagedFile};
    }
    return file;
}

SettingsRecord SettingsFile::read(int number) const {
    const std::string file = readFile();
    SettingsRecord record;
    const auto first = file.begin() + static_cast<std::ptrdiff_t>(kRecordSize) * (number - 1);
    std::copy_n(first, kRecordSize, record.bytes.begin());
    return record;
}

void SettingsFile::write(int number, const SettingsRecord& record) const {
    std::string file = readFile();
    const auto first = file.begin() + static_cast<std::ptrdiff_t>(kRecordSize) * (number - 1);
    std::copy(record.bytes.begin(), record.bytes.end(), first);
    onFile([&] { writeWhole(path_, file); });
}

void SettingsFile::AdjustRecord(std::int64_t added, std::int64_t taken, int number, RecordField field) const {
    SettingsRecord record = read(number);
    const std::int64_t change = added - taken;
    switch (field) {
        case RecordField::LongA:
            record.setRecLongA(static_cast<std::int32_t>(record.RecLongA() + change));
            break;
        case RecordField::Fixed:
            record.setRecFixed(record.RecFixed() + change);
            break;
        case RecordField::LongB:
            record.setRecLongB(static_cast<std::int32_t>(record.RecLongB() + change));
            break;
    }
    write(number, record);
}

}  // namespace tallyforge
