// SPDX-License-Identifier: GPL-3.0-or-later
//
// The settings record file: three records of 1250 bytes, little endian. What a field does not name
// is reserved and kept as it stands when the record is written.
//
//   offset 0    4  RecLongA  32-bit integer
//   offset 4   52  RecTextA  text, blank filled
//   offset 56  52  RecTextB  text, blank filled
//   offset 108  8  RecFixed  64-bit fixed point, value times 10000
//   offset 116  4  RecLongB  32-bit integer
//   offset 120     reserved
#pragma once

#include "engine/unit_words.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tallyforge {

inline constexpr std::size_t kRecordSize = 1250;
inline constexpr std::size_t kRecordText = 52;

/// Option bits of record 2, by bit number.
namespace option_bit {
inline constexpr int kMode = 0;    ///< + display mode
inline constexpr int kDigits = 3;  ///< + digits, 0 to 12
inline constexpr int kNoKeyPaint = 16;
inline constexpr int kDegrees = 17;
inline constexpr int kGrads = 18;
inline constexpr int kViewPlain = 19;
inline constexpr int kKeypad = 21;  ///< + place of the keypad in the list of keypads
inline constexpr int kTall = 28;
inline constexpr int kYField = 29;
inline constexpr int kLastxField = 30;
}  // namespace option_bit

/// Numeric fields of a record.
enum class RecordField { LongA, Fixed, LongB };

class SettingsRecord {
public:
    SettingsRecord();
    [[nodiscard]] std::int32_t RecLongA() const { return readLong(0); }
    [[nodiscard]] std::int32_t RecLongB() const { return readLong(kLongB); }
    void setRecLongA(std::int32_t value) { writeLong(0, value); }
    void setRecLongB(std::int32_t value) { writeLong(kLongB, value); }
    /// RecFixed as a whole number (the stored value divided by 10000).
    [[nodiscard]] std::int64_t RecFixed() const;
    void setRecFixed(std::int64_t whole);
    [[nodiscard]] std::int64_t number(RecordField field) const;
    void setNumber(RecordField field, std::int64_t value);

    /// `count` characters of a text field from position `first`, counted from 1.
    [[nodiscard]] std::string textA(std::size_t first, std::size_t count) const {
        return readText(kTextA, first, count);
    }
    [[nodiscard]] std::string textB(std::size_t first, std::size_t count) const {
        return readText(kTextB, first, count);
    }
    /// Writes `text` from position `first`; blank filled or cut to `count` characters.
    void setTextA(std::size_t first, std::size_t count, std::string_view text) {
        writeText(kTextA, first, count, text);
    }
    void setTextB(std::size_t first, std::size_t count, std::string_view text) {
        writeText(kTextB, first, count, text);
    }

    [[nodiscard]] bool option(int bit) const { return (static_cast<std::uint32_t>(RecLongB()) >> bit & 1U) != 0; }
    void setOption(int bit, bool on);

    std::array<char, kRecordSize> bytes{};

private:
    static constexpr std::size_t kTextA = 4;
    static constexpr std::size_t kTextB = 56;
    static constexpr std::size_t kFixed = 108;
    static constexpr std::size_t kLongB = 116;
    [[nodiscard]] std::uint64_t readBytes(std::size_t offset, std::size_t count) const;
    void writeBytes(std::size_t offset, std::size_t count, std::uint64_t value);
    [[nodiscard]] std::int32_t readLong(std::size_t offset) const;
    void writeLong(std::size_t offset, std::int32_t value);
    [[nodiscard]] std::string readText(std::size_t field, std::size_t first, std::size_t count) const;
    void writeText(std::size_t field, std::size_t first, std::size_t count, std::string_view text);
};

class SettingsFile {
public:
    static constexpr int kRecords = 3;

    /// Name of the file in the data folder; the leading dot hides it.
    static constexpr const char* kName = ".settings.rec";

    void setPath(std::filesystem::path path) { path_ = std::move(path); }
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// Writes a fresh file with the defaults. Raises 53 where its folder is missing, 61, 75.
    void create() const;
    /// Record 1 to 3. Raises 53 for a missing file, 54 for one that is not three records, 75.
    [[nodiscard]] SettingsRecord read(int number) const;
    /// Reads a record, lets `change` alter it, and writes it back; the others stay, and what another
    /// calculator writes at the same time stays, too. Raises as read() and 61, and what `change` raises.
    void change(int number, const std::function<void(SettingsRecord&)>& change);
    /// For a folder that cannot be written: the defaults hold, and what changes them lasts as long
    /// as this object.
    void keepInMemory();
    /// Reads a record, changes one numeric field by `added` - `taken`, writes it.
    void AdjustRecord(std::int64_t added, std::int64_t taken, int number, RecordField field);

    /// The five words of unit choices. Raises as read().
    [[nodiscard]] UnitWords readUnits() const;
    /// The bits of `mask` in one word become those of `chosen`; all others stay. Raises as write().
    void replaceUnits(UnitsWord word, std::uint32_t mask, std::uint32_t chosen);
    /// The words of a fresh file.
    [[nodiscard]] static UnitWords freshUnits();

    /// A fresh record with the defaults.
    [[nodiscard]] static SettingsRecord defaults(int number);

private:
    [[nodiscard]] std::string readFile() const;
    [[nodiscard]] static std::string fresh();

    std::filesystem::path path_;
    std::optional<std::string> memory_;  ///< the file's bytes where there can be no file
};

}  // namespace tallyforge
