// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is known of the physical constants today: the CODATA values of 2022, which lie in the
// program as data/constants/codata_2022.csv.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

/// The data file, byte by byte.
[[nodiscard]] std::span<const std::uint8_t> codataFile();

struct CodataRow {
    std::string constant;     ///< name as in the list of constants, without the symbol
    std::string value;        ///< in `unit`; counted in kmol where the list counts so
    std::string uncertainty;  ///< standard uncertainty in the same unit, or "exact"
    std::string unit;
    std::string basis;
};

/// All rows in the order of the file.
[[nodiscard]] std::vector<CodataRow> codataRows();

}  // namespace tallyforge
