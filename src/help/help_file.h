// SPDX-License-Identifier: GPL-3.0-or-later
//
// The help as one file, made while building and read when help is first asked for: a head, a
// checksum, and the pages, each text behind its length.
#pragma once

#include "help/help_page.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

/// Name of the file among those that came with the calculator.
inline constexpr std::string_view kHelpFile = "tallyforge.help";

[[nodiscard]] std::string writeHelpFile(std::span<const HelpPage> pages);

/// The pages of such a file; empty where it is another one, or any byte of it has changed.
[[nodiscard]] std::optional<std::vector<HelpPage>> readHelpFile(std::string_view bytes);

/// The pages in what stands behind head and checksum.
[[nodiscard]] std::optional<std::vector<HelpPage>> readHelpFileContents(std::string_view contents);

}  // namespace tallyforge
