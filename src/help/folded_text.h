// SPDX-License-Identifier: GPL-3.0-or-later
//
// Text as the search compares it: capitals, superscripts, and the several signs for one thing
// (µ and μ, − and -) are one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

/// `text` (UTF-8) in the form that is compared.
[[nodiscard]] std::string foldedText(std::string_view text);

/// The ways to write a folded word of a question: itself, and the sign that it is the name of
/// ("sqrt" for a root sign).
[[nodiscard]] std::vector<std::string> spellingsOf(std::string_view word);

/// Whether a word begins at byte `at` of a folded text: a letter or digit behind something else, or
/// a sign.
[[nodiscard]] bool beginsWord(std::string_view text, std::size_t at);

}  // namespace tallyforge
