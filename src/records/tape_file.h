// SPDX-License-Identifier: GPL-3.0-or-later
//
// The text file that a tape is saved in, and "undo.rec": registers, state, stack, tape lines and
// the value behind each. A file is parsed whole before anything of it is taken.
#pragma once

#include "engine/engine_state.h"
#include "numbers/value_cell.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

/// A register as a file holds it.
struct RegisterLine {
    std::string name;  ///< four characters
    ValueCell value;
    std::string tip;
};

struct TapeFileContent {
    TapeFileKind kind = TapeFileKind::SavedByUser;
    std::array<RegisterLine, kBankKeys> registers;  ///< in key order
    ValueCell LastX;
    ValueCell Yreg;
    int StackPtr = 1;
    ValueCell Xreg;
    std::vector<ValueCell> stack;    ///< elements 1 upward
    std::vector<std::string> lines;  ///< every line of the list, filler lines too
    int fillers = 0;
    std::vector<ValueCell> values;  ///< behind each line that is no filler

    [[nodiscard]] bool hasRegisters() const { return kind != TapeFileKind::StackAndTape; }
    [[nodiscard]] bool hasStack() const { return kind != TapeFileKind::Registers; }
};

/// A value as a file holds it: a text as it stands, a number with a blank behind it and one in
/// front where it has no minus.
[[nodiscard]] std::string printedValue(const ValueCell& value, char decimal);
/// The value that a line of a file reads as. A number that was printed is a number again; one that
/// was typed is the text that was typed. Both lose the blanks around them.
[[nodiscard]] ValueCell readValue(std::string_view text, char decimal);

/// One line of the registers section, without its line end.
[[nodiscard]] std::string registerLine(const RegisterLine& line, char decimal);
/// Raises 54 for a line that is shorter than a name, or has no comma where a value may end.
[[nodiscard]] RegisterLine parseRegisterLine(std::string_view line, char decimal);

/// Lines of a text, with or without a line end at the last; every '\r' before one counts to it.
[[nodiscard]] std::vector<std::string_view> splitLines(std::string_view text);

[[nodiscard]] std::string formatTapeFile(const TapeFileContent& content, char decimal);
/// Raises 54 where a section is missing or short, a number in it makes no sense, or the last line
/// has no end, as in a file that was cut.
[[nodiscard]] TapeFileContent parseTapeFile(std::string_view text, char decimal);

}  // namespace tallyforge
