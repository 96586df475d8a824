// SPDX-License-Identifier: GPL-3.0-or-later
//
// The manual: all pages of help in one HTML file with contents and index, for a browser and for
// paper.
#pragma once

#include "help/help_page.h"

#include <span>
#include <string>
#include <string_view>

namespace tallyforge {

/// The manual as a file of its own, with its style; `version` stands under the title.
[[nodiscard]] std::string manualHtml(std::span<const HelpPage> pages, std::string_view version);

/// A page of its own about something beside the help, such as the list of changes: `text` in the
/// Markdown of the help, "# Title" first.
[[nodiscard]] std::string documentHtml(std::string_view text);

}  // namespace tallyforge
