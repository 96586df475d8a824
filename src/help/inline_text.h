// SPDX-License-Identifier: GPL-3.0-or-later
//
// What stands within a line of a help page: code, bold, italic, links. A mark that nothing closes
// is a character as any other.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

struct InlineSpan {
    std::string text;
    std::string link;  ///< name of the page it leads to; empty for none
    bool code = false;
    bool bold = false;
    bool italic = false;
};

[[nodiscard]] std::vector<InlineSpan> inlineSpans(std::string_view marked);

/// The text without its marks.
[[nodiscard]] std::string plainText(std::string_view marked);

}  // namespace tallyforge
