// SPDX-License-Identifier: GPL-3.0-or-later
//
// What can be told of a program file without running it: the mistakes that the interpreter passes
// over in silence, or meets only when a run comes to their line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

struct ProgramFinding {
    int line = 0;      ///< counted from 1
    std::string text;  ///< for the author, eight-bit
};

/// The findings in `file`, the bytes of a program file, by line: unknown words (each pushes 0) and
/// words that begin like a number and are none, variables that are not declared, names that are
/// taken for words, labels that are missing, never called or there twice, sections without an
/// "end" and ifs without an "endif", comparisons that are none or mean something else.
[[nodiscard]] std::vector<ProgramFinding> checkProgram(std::string_view file);

}  // namespace tallyforge
