// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/settings_file.h"

#include "records/file_failure.h"

#include <algorithm>
#include <bit>

namespace tallyforge {

namespace {

constexpr std::int64_t kFixedScale = 10000;
constexpr const char* kLock = ".lock";

constexpr std::size_t offsetOf(int record, RecordField field) {
    return kRecordSize * static_cast<std::size_t>(record - 1) + rowOf(field).offset;
}

constexpr std::size_t textOffset(const SettingRow& row) {
    return offsetOf(row.record, row.field) + row.place - 1;
}

/// The bits of the setting, from bit 0.
constexpr std::uint32_t maskOf(const SettingRow& row) {
    constexpr std::size_t kWord = 32;
    return row.width >= kWord ? ~0U : (1U << row.width) - 1U;
}

/// In the order of Setting, each within its field, none on top of another.
constexpr bool rowsHold() {
    std::array<std::array<std::uint64_t, kRecordFields.size()>, kRecords> taken{};
    for (std::size_t i = 0; i < kSettings.size(); ++i) {
        const SettingRow& row = kSettings.at(i);
        const std::size_t first = isText(row.field) ? row.place - 1 : row.place;
        const std::size_t room = isText(row.field) ? rowOf(row.field).size : 32U;
        const std::uint64_t own = ((std::uint64_t{1} << row.width) - 1) << first;
        std::uint64_t& field =
            taken.at(static_cast<std::size_t>(row.record - 1)).at(static_cast<std::size_t>(row.field));
        if (static_cast<std::size_t>(row.setting) != i || first + row.width > room || (field & own) != 0 ||
            row.preset.size() > row.width || (row.presetBits & ~maskOf(row)) != 0) {
            return false;
        }
        field |= own;
    }
    return true;
}
static_assert(rowsHold());

}  // namespace

SettingsRecords::SettingsRecords() {
    for (int record = 1; record <= kRecords; ++record) {
        for (const RecordField field : {RecordField::TextA, RecordField::TextB}) {
            std::fill_n(bytes_.begin() + static_cast<std::ptrdiff_t>(offsetOf(record, field)), rowOf(field).size, ' ');
        }
    }
    for (const SettingRow& row : kSettings) {
        if (isText(row.field)) {
            setText(row.setting, row.preset);
        } else {
            setBits(row.setting, row.presetBits);
        }
    }
}

SettingsRecords::SettingsRecords(std::string_view bytes) {
    std::copy_n(bytes.begin(), std::min(bytes.size(), kSize), bytes_.begin());
}

std::string SettingsRecords::text(Setting setting) const {
    const SettingRow& row = rowOf(setting);
    return std::string(bytes().substr(textOffset(row), row.width));
}

void SettingsRecords::setText(Setting setting, std::string_view text) {
    const SettingRow& row = rowOf(setting);
    for (std::size_t i = 0; i < row.width; ++i) {
        bytes_.at(textOffset(row) + i) = i < text.size() ? text[i] : ' ';
    }
}

std::uint32_t SettingsRecords::bits(Setting setting) const {
    const SettingRow& row = rowOf(setting);
    return static_cast<std::uint32_t>(number(row.record, row.field)) >> row.place & maskOf(row);
}

void SettingsRecords::setBits(Setting setting, std::uint32_t bits) {
    const SettingRow& row = rowOf(setting);
    const auto word = static_cast<std::uint32_t>(number(row.record, row.field));
    const std::uint32_t mask = maskOf(row) << row.place;
    setNumber(row.record, row.field, (word & ~mask) | (bits << row.place & mask));
}

std::optional<int> SettingsRecords::chosen(Setting setting) const {
    const std::uint32_t set = bits(setting);
    return set == 0 ? std::nullopt : std::optional(std::countr_zero(set));
}

std::int64_t SettingsRecords::number(int record, RecordField field) const {
    const std::size_t offset = offsetOf(record, field);
    std::uint64_t value = 0;
    for (std::size_t i = rowOf(field).size; i-- > 0;) {
        value = value << 8U | static_cast<unsigned char>(bytes_.at(offset + i));
    }
    return field == RecordField::Fixed ? static_cast<std::int64_t>(value) / kFixedScale
                                       : static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}

void SettingsRecords::setNumber(int record, RecordField field, std::int64_t value) {
    const std::size_t offset = offsetOf(record, field);
    auto stored = static_cast<std::uint64_t>(value);
    if (field == RecordField::Fixed) {
        stored *= static_cast<std::uint64_t>(kFixedScale);
    }
    for (std::size_t i = 0; i < rowOf(field).size; ++i) {
        bytes_.at(offset + i) = static_cast<char>(stored >> (8U * i) & 0xFFU);
    }
}

void SettingsFile::create() const {
    onFile([&] { writeWhole(path_, SettingsRecords().bytes()); });
}

void SettingsFile::keepInMemory() {
    memory_ = SettingsRecords();
}

SettingsRecords SettingsFile::read() const {
    if (memory_) {
        return *memory_;
    }
    const std::string file = onFile([&] { return readWhole(path_, SettingsRecords::kSize); });
    if (file.size() != SettingsRecords::kSize) {
        throw Failure{FailureNumber::DamagedFile};
    }
    return SettingsRecords(file);
}

void SettingsFile::change(const std::function<void(SettingsRecords&)>& change) {
    const FileLock alone(path_.parent_path() / kLock);
    SettingsRecords records = read();
    change(records);
    if (memory_) {
        memory_ = records;
    } else {
        onFile([&] { writeWhole(path_, records.bytes()); });
    }
}

void SettingsFile::AdjustRecord(std::int64_t added, std::int64_t taken, int number, RecordField field) {
    change([&](SettingsRecords& all) { all.setNumber(number, field, all.number(number, field) + added - taken); });
}

UnitWords SettingsFile::units(const SettingsRecords& records) {
    UnitWords words;
    for (const SettingRow& row : kSettings) {
        if (row.units != nullptr) {
            words.*row.units = records.bits(row.setting);
        }
    }
    return words;
}

void SettingsFile::replaceUnits(UnitsWord word, std::uint32_t mask, std::uint32_t chosen) {
    for (const SettingRow& row : kSettings) {
        if (row.units == word) {
            change([&](SettingsRecords& records) {
                records.setBits(row.setting, (records.bits(row.setting) & ~mask) | (chosen & mask));
            });
        }
    }
}

UnitWords SettingsFile::freshUnits() {
    UnitWords words;
    for (const SettingRow& row : kSettings) {
        if (row.units != nullptr) {
            words.*row.units = row.presetBits;
        }
    }
    return words;
}

}  // namespace tallyforge
