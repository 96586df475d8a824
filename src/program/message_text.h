// SPDX-License-Identifier: GPL-3.0-or-later
//
// The text of a program's message, from the lines behind "umsg" to what its box shows.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tallyforge {

/// `whole` is the text with its continuations joined, `lastLine` its last line as it was read; it
/// begins with a backslash. `showX` and `showY` give the numbers as the display shows them.
[[nodiscard]] std::string messageText(std::string_view whole, std::string_view lastLine,
                                      const std::function<std::string()>& showX,
                                      const std::function<std::string()>& showY);

}  // namespace tallyforge
