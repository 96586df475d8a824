// SPDX-License-Identifier: GPL-3.0-or-later
//
// A published table as the keys look it up and as it is printed: a value for each whole size (a
// gauge, a drill's number, a count of strands), with its unit and where its rows come from. The
// tables themselves stand with their subjects; lookup_tables.h lists them all.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tallyforge {

struct TableRow {
    int size = 0;
    double value = 0.0;
};

/// A size as a number.
[[nodiscard]] std::string plainSize(int size);
/// A wire gauge as it is written: "0000" for -3 up to "00" for -1, else the number.
[[nodiscard]] std::string gaugeSize(int awg);
/// The same for any number, a fraction by the locale's `decimal`.
[[nodiscard]] std::string gaugeName(double awg, char decimal);

struct LookupTable {
    std::string_view name{};    ///< "wire-single", as the command line takes it
    std::string_view title{};   ///< what the values are
    std::string_view sizes{};   ///< heading of the sizes, "AWG"
    std::string_view unit{};    ///< of the values, "in"
    std::string_view source{};  ///< where the rows come from, and which do not
    std::span<const TableRow> rows{};
    std::string (*sizeText)(int) = plainSize;

    /// The value of `size`; empty for a size between the rows or beyond them.
    [[nodiscard]] std::optional<double> at(double size) const;
    [[nodiscard]] int first() const { return rows.front().size; }
    [[nodiscard]] int last() const { return rows.back().size; }
};

}  // namespace tallyforge
