// SPDX-License-Identifier: GPL-3.0-or-later
//
// The pages of help as they are written in data/help, for tests of what they say.
#pragma once

#include "help/help_page.h"

#include <vector>

namespace tallyforge {

/// All pages, in the order of their files. Raises HelpSourceError.
[[nodiscard]] const std::vector<HelpPage>& helpSources();

/// The text of a page without the marks that stand around words, with single blanks.
[[nodiscard]] std::string bareText(std::string_view text);

/// What all pages say, bare.
[[nodiscard]] const std::string& allHelpText();

}  // namespace tallyforge
