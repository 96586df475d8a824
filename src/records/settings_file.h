// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the settings record file holds, and the file in the data folder. What stands where:
// settings_layout.h.
#pragma once

#include "engine/unit_words.h"
#include "records/settings_layout.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tallyforge {

/// The three records. A setting is a text or some bits, as its row says.
class SettingsRecords {
public:
    /// Those of a fresh file.
    SettingsRecords();
    /// Those of a file of kSize bytes.
    explicit SettingsRecords(std::string_view bytes);

    static constexpr std::size_t kSize = kRecordSize * kRecords;

    /// As wide as the setting is, with its blanks.
    [[nodiscard]] std::string text(Setting setting) const;
    /// Filled up with blanks, or cut.
    void setText(Setting setting, std::string_view text);
    [[nodiscard]] std::uint32_t bits(Setting setting) const;
    void setBits(Setting setting, std::uint32_t bits);
    /// The lowest bit that is set; none where no bit is.
    [[nodiscard]] std::optional<int> chosen(Setting setting) const;
    void choose(Setting setting, int bit) { setBits(setting, 1U << bit); }
    [[nodiscard]] bool on(Setting setting) const { return bits(setting) != 0; }
    void set(Setting setting, bool on) { setBits(setting, on ? 1U : 0U); }

    /// A numeric field of record 1 to 3; of the fixed point field the whole number.
    [[nodiscard]] std::int64_t number(int record, RecordField field) const;
    void setNumber(int record, RecordField field, std::int64_t value);

    [[nodiscard]] std::string_view bytes() const { return {bytes_.data(), bytes_.size()}; }

private:
    std::array<char, kSize> bytes_{};
};

class SettingsFile {
public:
    /// Name of the file in the data folder; the leading dot hides it.
    static constexpr const char* kName = ".settings.rec";

    void setPath(std::filesystem::path path) { path_ = std::move(path); }
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// Writes a fresh file with the defaults. Raises 53 where its folder is missing, 61, 75.
    void create() const;
    /// Raises 53 for a missing file, 54 for one that is not three records, 75.
    [[nodiscard]] SettingsRecords read() const;
    /// Reads the records, lets `change` alter them, and writes them back; what another calculator
    /// writes at the same time stays. Raises as read() and 61, and what `change` raises.
    void change(const std::function<void(SettingsRecords&)>& change);
    /// For a folder that cannot be written: the defaults hold, and what changes them lasts as long
    /// as this object.
    void keepInMemory();
    /// Changes one numeric field of record 1 to 3 by `added` - `taken`.
    void AdjustRecord(std::int64_t added, std::int64_t taken, int number, RecordField field);

    /// The five words of unit choices in `records`.
    [[nodiscard]] static UnitWords units(const SettingsRecords& records);
    /// The bits of `mask` in one word become those of `chosen`; all others stay. Raises as write().
    void replaceUnits(UnitsWord word, std::uint32_t mask, std::uint32_t chosen);
    /// The words of a fresh file.
    [[nodiscard]] static UnitWords freshUnits();

private:
    std::filesystem::path path_;
    std::optional<SettingsRecords> memory_;  ///< where there can be no file
};

}  // namespace tallyforge
