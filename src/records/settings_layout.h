// SPDX-License-Identifier: GPL-3.0-or-later
//
// The settings record file: three records of 1250 bytes, little endian, and what stands where in
// them, a row a field. Reading, writing, the fresh file and the tests walk these rows; no offset
// stands anywhere else. What no row names is reserved and stays as it is when a field is written.
#pragma once

#include "engine/unit_words.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace tallyforge {

inline constexpr std::size_t kRecordSize = 1250;
inline constexpr int kRecords = 3;

/// The parts of a record: two integers, two texts filled up with blanks, and a number with four
/// decimal places.
enum class RecordField : std::uint8_t { LongA, TextA, TextB, Fixed, LongB };

struct RecordFieldRow {
    std::size_t offset;
    std::size_t size;
};
/// By RecordField.
inline constexpr std::array<RecordFieldRow, 5> kRecordFields{{{0, 4}, {4, 52}, {56, 52}, {108, 8}, {116, 4}}};

constexpr const RecordFieldRow& rowOf(RecordField field) {
    return kRecordFields.at(static_cast<std::size_t>(field));
}

enum class Setting : std::uint8_t {
    UnitsMag,
    DataVersion,
    EngineeringNotices,  ///< how often the first notice of the keypad was shown, a digit
    MagneticsNotices,
    TapeFile,
    RegisterFile,
    UnitsLc,
    UnitsLmu,
    OnTop,          ///< "E", or "e" for not
    LoadsProgram,   ///< "S", or "s" for not
    KeepsPosition,  ///< "Snail mail: ", or "snail mail: " for not
    TaxRate,        ///< percent, with a decimal point
    Mode,           ///< a bit for each DisplayMode
    Digits,         ///< a bit for each number of digits from 0
    NoKeyPaint,
    Degrees,
    Grads,        ///< neither: radians
    ViewPlain,    ///< the view is not extended
    ShownKeypad,  ///< a bit for each keypad that can be the first
    Tall,
    YField,
    LastxField,
    UnitsOhm,
    DefaultProgram,
    WordSize,     ///< two digits
    WindowPlace,  ///< top, five digits, a blank, left, six digits; or "Philosopher "
    UnitsCore,
};

/// A field, or a part of one.
struct SettingRow {
    Setting setting{};
    int record = 1;
    RecordField field{};
    std::size_t place = 0;         ///< of a text its first character, from 1; of a number its lowest bit
    std::size_t width = 0;         ///< characters or bits
    std::string_view preset{};     ///< of a text in a fresh file, without the blanks behind it
    std::uint32_t presetBits = 0;  ///< of a number, counted from its lowest bit
    UnitsWord units = nullptr;     ///< the word of unit choices that the number is
};

constexpr std::uint32_t bitsSet(std::initializer_list<int> set) {
    std::uint32_t word = 0;
    for (const int bit : set) {
        word |= 1U << bit;
    }
    return word;
}

// A fresh file has the most usual unit of each range, which is not always its first; no bit of the
// surface's range (18, 19 of UnitsLmu) would mean inches.
// clang-format off
inline constexpr std::array<SettingRow, 27> kSettings{{
    {Setting::UnitsMag,           1, RecordField::LongA,  0, 32, "", bitsSet({0, 5, 9, 11, 15, 19, 21, 23, 27}),
     &UnitWords::UnitsWordMag},
    {Setting::DataVersion,        1, RecordField::TextA, 29,  2, "08"},
    {Setting::EngineeringNotices, 1, RecordField::TextB,  1,  1, "0"},
    {Setting::MagneticsNotices,   1, RecordField::TextB,  2,  1, "0"},
    {Setting::TapeFile,           1, RecordField::TextB,  3, 25, "tape.txt"},
    {Setting::RegisterFile,       1, RecordField::TextB, 28, 25, "registers.txt"},
    {Setting::UnitsLc,            1, RecordField::Fixed,  0, 32, "", bitsSet({1, 4, 9, 12}), &UnitWords::UnitsWordLc},
    {Setting::UnitsLmu,           1, RecordField::LongB,  0, 32, "", bitsSet({0, 4, 8, 19, 20, 22, 24, 27}),
     &UnitWords::UnitsWordLmu},
    {Setting::OnTop,              2, RecordField::TextA,  1,  1, "e"},
    {Setting::LoadsProgram,       2, RecordField::TextA, 11,  1, "s"},
    {Setting::KeepsPosition,      2, RecordField::TextA, 41, 12, "snail mail: "},
    {Setting::TaxRate,            2, RecordField::TextB, 48,  5, "7.75"},
    {Setting::Mode,               2, RecordField::LongB,  0,  3, "", bitsSet({0})},
    {Setting::Digits,             2, RecordField::LongB,  3, 13, "", bitsSet({2})},
    {Setting::NoKeyPaint,         2, RecordField::LongB, 16,  1},
    {Setting::Degrees,            2, RecordField::LongB, 17,  1, "", 1},
    {Setting::Grads,              2, RecordField::LongB, 18,  1},
    {Setting::ViewPlain,          2, RecordField::LongB, 19,  1, "", 1},
    {Setting::ShownKeypad,        2, RecordField::LongB, 21,  6, "", bitsSet({0})},
    {Setting::Tall,               2, RecordField::LongB, 28,  1},
    {Setting::YField,             2, RecordField::LongB, 29,  1},
    {Setting::LastxField,         2, RecordField::LongB, 30,  1},
    {Setting::UnitsOhm,           3, RecordField::LongA,  0, 32, "", bitsSet({0, 6, 11, 17, 22, 25, 28}),
     &UnitWords::UnitsWordOhm},
    {Setting::DefaultProgram,     3, RecordField::TextA,  1, 40},
    {Setting::WordSize,           3, RecordField::TextA, 42,  2, "64"},
    {Setting::WindowPlace,        3, RecordField::TextB,  1, 12, "Philosopher "},
    {Setting::UnitsCore,          3, RecordField::LongB,  0, 32, "", bitsSet({0, 4, 7, 11, 16, 18, 22, 25, 28}),
     &UnitWords::UnitsWordCore},
}};
// clang-format on

constexpr const SettingRow& rowOf(Setting setting) {
    return kSettings.at(static_cast<std::size_t>(setting));
}

constexpr bool isText(RecordField field) {
    return field == RecordField::TextA || field == RecordField::TextB;
}

}  // namespace tallyforge
