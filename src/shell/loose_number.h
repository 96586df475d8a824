// SPDX-License-Identifier: GPL-3.0-or-later
//
// Reads a number that stands in a text as people write it elsewhere: with group marks, the other
// decimal character, a minus sign of its own, a unit behind it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

/// All that `text` may mean, as numbers that the entry line could hold with the decimal character
/// `decimal`; none where it is no number, two where a mark or a letter has two meanings ("1,234",
/// "5 m"). Only the first line counts. Group marks are blanks, apostrophes and underscores; a
/// character that is not Latin-1, and so reads "?", is a minus in front and a group mark between
/// digits. A prefix before a known unit scales (3.3 kHz is 3.3e3); other units fall away.
[[nodiscard]] std::vector<std::string> looseReadings(std::string_view text, char decimal);

}  // namespace tallyforge
