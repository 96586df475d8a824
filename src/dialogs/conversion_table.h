// SPDX-License-Identifier: GPL-3.0-or-later
//
// A conversion dialog as a table: groups of units, and of each unit what its buttons say, its
// factor and its exact size. The tables themselves stand in the room of conversions; dialog, keys,
// search and documentation read the same rows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace tallyforge {

/// Where a unit's exact size is written down.
enum class Source : std::uint8_t {
    SiBrochure,             ///< BIPM, The International System of Units, 9th edition
    Nist811,                ///< NIST Special Publication 811, appendix B
    Codata,                 ///< CODATA 2022 recommended values
    Iau,                    ///< IAU resolutions and IERS conventions
    Handbook44,             ///< NIST Handbook 44, appendix C (United States)
    WeightsAndMeasuresAct,  ///< United Kingdom, 1985
    OldMeasure,             ///< laws that are no longer in force (Russia, Japan, China), calendars
    Trade,                  ///< usage of a trade, no law
};

/// Factor of a unit that has none.
inline constexpr double kNoFactor = 0.0;

struct Unit {
    std::string_view from{};        ///< caption in the From bank, eight-bit
    std::string_view to{};          ///< caption in the To bank
    double factor = kNoFactor;      ///< as the table states it, rounded or wrong as it may be
    long double exact = 0.0L;       ///< what the factor would be by the unit's definition
    std::string_view definition{};  ///< the definition in force
    Source source = Source::SiBrochure;
    std::string_view names{};  ///< other names and symbols, '|' between them
};

/// What the factors of a group mean.
enum class Measure : std::uint8_t {
    Size,         ///< size of the unit in the base unit
    Count,        ///< how many of the unit make one of the base unit
    Consumption,  ///< distance per volume, and volume per distance
    Temperature,  ///< no ratio: scales with different zeros
};

struct UnitGroup {
    std::string_view options{};  ///< name of its control array, "OptPower"
    std::string_view heading{};
    std::string_view base{};  ///< symbol of the base unit
    std::span<const Unit> units{};
    Measure measure = Measure::Size;
    /// Buttons of a bank; some stay hidden where the form has more than this group has units. 0
    /// stands for as many as there are units.
    int places = 0;
    /// What keys and tape lines call the units, where that is not what the buttons say.
    std::span<const std::string_view> labels{};

    [[nodiscard]] constexpr int bankSize() const { return places != 0 ? places : static_cast<int>(units.size()); }
    /// Index of the To button of unit `unit`: the second bank mirrors the first.
    [[nodiscard]] constexpr int toButton(int unit) const { return 2 * bankSize() - 1 - unit; }
    [[nodiscard]] constexpr const Unit& at(int unit) const { return units[static_cast<std::size_t>(unit)]; }
};

/// Two units of one group of a table.
struct UnitPair {
    int group = 0;
    int from = 0;
    int to = 0;
    friend bool operator==(const UnitPair&, const UnitPair&) = default;
};

struct ConversionTable {
    int key = 0;              ///< of the Convert keypad
    std::string_view form{};  ///< "frmPower"
    std::string_view title{};
    std::span<const UnitGroup> groups{};
    /// The pair of the Default key; a table without the key has from == to.
    UnitPair preset{};

    [[nodiscard]] constexpr const UnitGroup& group(int index) const { return groups[static_cast<std::size_t>(index)]; }
    [[nodiscard]] constexpr bool hasPreset() const { return preset.from != preset.to; }
};

}  // namespace tallyforge
