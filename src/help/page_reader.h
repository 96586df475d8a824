// SPDX-License-Identifier: GPL-3.0-or-later
//
// Reads the sources of the help, Markdown files with many pages each. A page begins with "# Title"
// and the lines of its header ("topics: 1506"), and reaches to the next one.
#pragma once

#include "help/help_page.h"

#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

/// What is wrong with a source, and where.
struct HelpSourceError {
    int line = 0;
    std::string reason;
};

/// The pages of `text`, the source that `file` is the name of. Raises HelpSourceError: a page
/// without name or index, an unknown line in a header, a topic that is no number, a block that is
/// not closed or of unknown kind, an example without its output, bytes that are not UTF-8.
[[nodiscard]] std::vector<HelpPage> readHelpPages(std::string_view text, std::string_view file);

/// Whether the bytes are UTF-8 throughout.
[[nodiscard]] bool isUtf8(std::string_view bytes);

}  // namespace tallyforge
