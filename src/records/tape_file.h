// SPDX-License-Identifier: GPL-3.0-or-later
//
// The text file that a tape is saved in, and "undo.rec": registers, state, stack, tape lines and
// the value behind each. A file is parsed whole before anything of it is taken. It may be larger
// than the calculator's memory, so it is written and read in pieces.
#pragma once

#include "engine/engine_state.h"
#include "engine/tape.h"
#include "numbers/value_cell.h"
#include "platform/file_store.h"
#include "records/file_lines.h"

#include <array>
#include <functional>
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
    std::vector<ValueCell> stack;  ///< elements 1 upward
    Tape tape;

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

/// Whether a value that stands in a line of its own comes back from it as the same plain text.
[[nodiscard]] bool fileHolds(const ValueCell& value, char decimal);
/// `value`, or 0 in the place of one that a file cannot hold.
[[nodiscard]] ValueCell heldByFile(const ValueCell& value, char decimal);

using Write = std::function<void(std::string_view)>;
/// Hands the file to `write`, line by line. Tape values that no file holds are written as 0.
void writeTapeFile(const TapeFileContent& content, char decimal, const Write& write);

/// A tape file as it is read: its head at once, then line by line with the value behind each. Raises
/// 54 where a section is missing or short, a number in it makes no sense, or the last line has no end,
/// as in a file that was cut; and what onFile() raises.
class TapeFileReader {
public:
    /// `bytes` must outlive this.
    TapeFileReader(const Bytes& bytes, char decimal);
    /// All but the tape.
    [[nodiscard]] TapeFileContent readHead();
    /// The next line of the tape, into text() and value(); false behind the last one.
    [[nodiscard]] bool next();
    [[nodiscard]] std::string_view text() const { return text_; }
    [[nodiscard]] const ValueCell& value() const { return value_; }
    [[nodiscard]] std::size_t lines() const { return lines_; }
    /// How many of the lines, from the first, are filler lines.
    [[nodiscard]] std::size_t fillers() const { return fillers_; }

private:
    [[nodiscard]] TapeFileKind readKind();
    void readStack(TapeFileContent& content);
    void findValues();
    void readToTheEnd();

    const Bytes& bytes_;
    char decimal_;
    FileLines rows_;    ///< of the head, then of the tape's texts
    FileLines values_;  ///< behind the marker
    std::size_t lines_ = 0;
    std::size_t fillers_ = 0;
    std::size_t at_ = 0;  ///< lines read
    std::string_view text_;
    ValueCell value_;
};

/// The whole file. A line of a plain number becomes one again. `beforeGrowing` is told the bytes of
/// the tape to come, before each of its blocks.
[[nodiscard]] TapeFileContent readTapeFile(const Bytes& bytes, char decimal,
                                           std::function<void(std::size_t)> beforeGrowing = {});

/// The same for a text in memory.
[[nodiscard]] std::string formatTapeFile(const TapeFileContent& content, char decimal);
[[nodiscard]] TapeFileContent parseTapeFile(std::string_view text, char decimal);

}  // namespace tallyforge
