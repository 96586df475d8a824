// SPDX-License-Identifier: GPL-3.0-or-later
//
// Reads the tables of published values that lie beside the program: lines of comment with "# ",
// a line of heads, then a line a row; cells with a comma stand in quotes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

struct CsvTable {
    std::string source;  ///< what the comment says behind "source: "
    std::vector<std::string> heads;
    std::vector<std::vector<std::string>> rows;  ///< each as long as `heads`

    /// Column of that head; empty where there is none.
    [[nodiscard]] std::optional<std::size_t> column(std::string_view head) const;
};

/// The table in `text`; empty where it has no heads, a row has not a cell for each of them, or the
/// last line has no end.
[[nodiscard]] std::optional<CsvTable> readCsv(std::string_view text);

}  // namespace tallyforge
