// SPDX-License-Identifier: GPL-3.0-or-later
//
// A program file, read once: its lines, where its labels stand, and each line taken apart when it
// is first run. A jump costs a look into the index, never a scan of the file.
#pragma once

#include "program/program_words.h"
#include "program/variables.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tallyforge {

/// A word with all that can be known of it before it runs.
struct ProgramWord {
    enum class Kind {
        Statement,  ///< `statement` says which
        Number,     ///< `number`
        NoNumber,   ///< begins like a number and is none: failure `failure`
        Function,   ///< `function`
        Variable,   ///< variable `index`
        Unknown,    ///< pushes 0
    };
    std::string text;  ///< small letters, no blanks at the ends
    Kind kind = Kind::Unknown;
    Statement statement = Statement::None;
    double number = 0.0;  ///< the literal, or the operand of sto, rcl and the flags
    int failure = 0;      ///< number of the failure that running it raises; 0 for none
    int index = -1;
    int target = 0;  ///< of a jump: the line of its label, 0 where there is none
    const FunctionWord* function = nullptr;
};

/// An "if" line: words, operator, words.
struct ProgramTest {
    std::vector<ProgramWord> left;
    std::string op;  ///< "=", "<", ">", "<>", anything else is unknown
    std::vector<ProgramWord> right;
};

struct ProgramLine {
    std::string text;  ///< small letters, no blanks at the ends
    std::string raw;   ///< as written, no blanks at the ends; empty where it does not differ

    // From prepare() on.
    bool prepared = false;
    ProgramWord whole;                ///< the line as one word
    std::vector<ProgramWord> words;   ///< split at blanks
    std::vector<ProgramWord> joined;  ///< words from the third on, "rcl" and "sto" joined with the next
    ProgramTest test;                 ///< of an "if" line
    bool assigns = false;             ///< "=" stands among the words
    bool isAssignment = false;        ///< "=" is the second word
    bool isName = false;              ///< the first word is "name"
    int variable = -1;                ///< index of the variable that the first word names
    bool isIf = false;
    int endifLine = 0;  ///< line of the "endif" of this "if", 0 while it is not known

    [[nodiscard]] bool skipped() const { return text.empty() || text.front() == '\''; }
    [[nodiscard]] const std::string& asWritten() const { return raw.empty() ? text : raw; }
};

/// How often the words that open and close stand at the head of a line.
struct ProgramCounts {
    int ifs = 0;
    int endifs = 0;
    int labels = 0;
    int ends = 0;
};

class ProgramText {
public:
    /// Takes the file apart at LF, CR LF or CR; UTF-8 (with or without a mark) becomes eight-bit, a
    /// file that is no UTF-8 is eight-bit already. A tab counts as a blank.
    explicit ProgramText(std::string_view file);

    [[nodiscard]] int count() const { return static_cast<int>(lines_.size()); }
    /// Line `number`, 1 to count().
    [[nodiscard]] const ProgramLine& line(int number) const { return lines_[static_cast<std::size_t>(number) - 1]; }
    /// The same, taken apart with the names of `variables`.
    [[nodiscard]] const ProgramLine& prepared(int number, const Variables& variables);
    /// Line of the first "lbl `label`"; none for a label on the last line of the file.
    [[nodiscard]] std::optional<int> label(const std::string& label) const;
    /// Line of the "endif" that closes the "if" of line `number`; 0 where there is none.
    [[nodiscard]] int endifOf(int number);
    [[nodiscard]] ProgramCounts counts() const;

private:
    void addLine(std::string_view line);
    void setTarget(ProgramWord& word) const;

    std::vector<ProgramLine> lines_;
    std::unordered_map<std::string, int> labels_;
};

/// `text` in small letters, Latin-1 letters too.
[[nodiscard]] std::string smallLetters(std::string_view text);
/// `text` in capitals, Latin-1 letters too.
[[nodiscard]] std::string capitals(std::string_view text);
/// `text` without blanks at the ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);
/// The words of `text` between its blanks.
[[nodiscard]] std::vector<std::string_view> splitAtBlanks(std::string_view text);

}  // namespace tallyforge
