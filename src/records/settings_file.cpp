// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/settings_file.h"

#include "records/file_failure.h"

#include <algorithm>
#include <initializer_list>

namespace tallyforge {

namespace {

constexpr std::int64_t kFixedScale = 10000;
constexpr const char* kLock = ".lock";

constexpr std::uint32_t bits(std::initializer_list<int> set) {
    std::uint32_t word = 0;
    for (const int bit : set) {
        word |= 1U << bit;
    }
    return word;
}

/// Where a word of unit choices lies, and its bits in a fresh file: the most usual unit of each
/// range, not always its first. No bit of the surface's range (18, 19) would mean inches.
struct UnitsField {
    UnitsWord word;
    int record;
    RecordField field;
    std::uint32_t fresh;
};
constexpr std::array<UnitsField, 5> kUnitsFields{{
    {&UnitWords::UnitsWordMag, 1, RecordField::LongA, bits({0, 5, 9, 11, 15, 19, 21, 23, 27})},
    {&UnitWords::UnitsWordLmu, 1, RecordField::LongB, bits({0, 4, 8, 19, 20, 22, 24, 27})},
    {&UnitWords::UnitsWordLc, 1, RecordField::Fixed, bits({1, 4, 9, 12})},
    {&UnitWords::UnitsWordOhm, 3, RecordField::LongA, bits({0, 6, 11, 17, 22, 25, 28})},
    {&UnitWords::UnitsWordCore, 3, RecordField::LongB, bits({0, 4, 7, 11, 16, 18, 22, 25, 28})},
}};

constexpr std::uint32_t kFreshOptions = bits(
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

std::int64_t SettingsRecord::number(RecordField field) const {
    return field == RecordField::LongA ? RecLongA() : field == RecordField::LongB ? RecLongB() : RecFixed();
}

void SettingsRecord::setNumber(RecordField field, std::int64_t value) {
    switch (field) {
        case RecordField::LongA:
            setRecLongA(static_cast<std::int32_t>(value));
            break;
        case RecordField::Fixed:
            setRecFixed(value);
            break;
        case RecordField::LongB:
            setRecLongB(static_cast<std::int32_t>(value));
            break;
    }
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
        record.setTextA(29, 2, "08");
        record.setTextB(1, 2, "00");
        record.setTextB(3, 25, "tape.txt");
        record.setTextB(28, 25, "registers.txt");
    } else if (number == 2) {
        record.setTextA(1, 1, "e");
        record.setTextA(11, 1, "s");
        record.setTextA(41, 12, "snail mail: ");
        record.setTextB(48, 5, "7.75");
        record.setRecLongB(static_cast<std::int32_t>(kFreshOptions));
    } else {
        record.setTextA(42, 2, "64");
        record.setTextB(1, 12, "Philosopher ");
    }
    for (const UnitsField& units : kUnitsFields) {
        if (units.record == number) {
            record.setNumber(units.field, units.fresh);
        }
    }
    return record;
}

std::string SettingsFile::fresh() {
    std::string file;
    for (int number = 1; number <= kRecords; ++number) {
        const SettingsRecord record = defaults(number);
        file.append(record.bytes.data(), record.bytes.size());
    }
    return file;
}

void SettingsFile::create() const {
    onFile([&] { writeWhole(path_, fresh()); });
}

void SettingsFile::keepInMemory() {
    memory_ = fresh();
}

std::string SettingsFile::readFile() const {
    if (memory_) {
        return *memory_;
    }
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

void SettingsFile::change(int number, const std::function<void(SettingsRecord&)>& change) {
    const FileLock alone(path_.parent_path() / kLock);
    std::string file = readFile();
    const auto first = file.begin() + static_cast<std::ptrdiff_t>(kRecordSize) * (number - 1);
    SettingsRecord record;
    std::copy_n(first, kRecordSize, record.bytes.begin());
    change(record);
    std::copy(record.bytes.begin(), record.bytes.end(), first);
    if (memory_) {
        memory_ = std::move(file);
    } else {
        onFile([&] { writeWhole(path_, file); });
    }
}

void SettingsFile::AdjustRecord(std::int64_t added, std::int64_t taken, int number, RecordField field) {
    change(number, [&](SettingsRecord& record) { record.setNumber(field, record.number(field) + added - taken); });
}

UnitWords SettingsFile::readUnits() const {
    UnitWords words;
    for (const UnitsField& units : kUnitsFields) {
        words.*units.word = static_cast<std::uint32_t>(read(units.record).number(units.field));
    }
    return words;
}

void SettingsFile::replaceUnits(UnitsWord word, std::uint32_t mask, std::uint32_t chosen) {
    for (const UnitsField& units : kUnitsFields) {
        if (units.word == word) {
            change(units.record, [&](SettingsRecord& record) {
                const auto held = static_cast<std::uint32_t>(record.number(units.field));
                record.setNumber(units.field, (held & ~mask) | (chosen & mask));
            });
        }
    }
}

UnitWords SettingsFile::freshUnits() {
    UnitWords words;
    for (const UnitsField& units : kUnitsFields) {
        words.*units.word = units.fresh;
    }
    return words;
}

}  // namespace tallyforge
