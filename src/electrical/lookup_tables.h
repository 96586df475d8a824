// SPDX-License-Identifier: GPL-3.0-or-later
//
// All tables that keys look up, by name, and how one is printed.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tallyforge {

/// A line a table: its name and what it holds.
[[nodiscard]] std::string listOfTables();

/// The table of that name, with title, headings and source, a line a row; empty for no such name.
[[nodiscard]] std::optional<std::string> printedTable(std::string_view name);

}  // namespace tallyforge
