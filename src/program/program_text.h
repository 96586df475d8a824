// SPDX-License-Identifier: GPL-3.0-or-later
//
// A program file, read once: its lines, where its labels stand, and each line taken apart when it
// is first run. A jump costs a look into the index, never a scan of the file. Of a long program no
// more is kept taken apart than has a bound.
#pragma once

#include "program/program_words.h"
#include "program/variables.h"

#include <cstddef>
#include <cstdint>
#include <memory>
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

/// A line without the blanks at its ends.
struct WrittenLine {
    std::string_view text;       ///< in small letters
    std::string_view asWritten;  ///< with its capitals

    [[nodiscard]] bool skipped() const { return text.empty() || text.front() == '\''; }
};

/// A line that has been taken apart.
struct ProgramLine {
    std::string_view text;            ///< small letters, no blanks at the ends
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
    ~ProgramText() = default;
    ProgramText(const ProgramText&) = delete;
    ProgramText& operator=(const ProgramText&) = delete;

    [[nodiscard]] int count() const { return static_cast<int>(lines_.size()); }
    /// Line `number`, 1 to count().
    [[nodiscard]] WrittenLine line(int number) const { return at(static_cast<std::size_t>(number) - 1); }
    /// The same, taken apart with the names of `variables`. Raises std::bad_alloc for a line of more words
    /// than are kept.
    [[nodiscard]] const ProgramLine& prepared(int number, const Variables& variables);
    /// The same where it has been taken apart already, else nullptr.
    [[nodiscard]] const ProgramLine* known(int number) const {
        return prepared_[static_cast<std::size_t>(number) - 1].get();
    }
    /// Whether as many lines have been taken apart as are kept.
    [[nodiscard]] bool full() const { return words_ >= kMostWords; }
    /// No line is taken apart any more; none that prepared() gave may be in use.
    void forgetPrepared();
    /// Line of the first "lbl `label`"; none for a label on the last line of the file.
    [[nodiscard]] std::optional<int> label(std::string_view label) const;
    /// Line of the "endif" that closes the "if" of line `number`; 0 where there is none.
    [[nodiscard]] int endifOf(int number);
    [[nodiscard]] ProgramCounts counts() const;

private:
    struct Place {
        std::uint32_t begin;
        std::uint32_t length;
    };
    static constexpr std::size_t kMostWords = 50'000;

    void addLine(std::string_view line);
    [[nodiscard]] WrittenLine at(std::size_t index) const {
        const Place place = lines_[index];
        return {.text = std::string_view(small_).substr(place.begin, place.length),
                .asWritten = std::string_view(written_).substr(place.begin, place.length)};
    }
    [[nodiscard]] ProgramLine takenApart(std::string_view text, const Variables& variables);
    void setTarget(ProgramWord& word) const;

    std::string written_;  ///< the lines without the blanks at their ends, one behind the other
    std::string small_;    ///< the same in small letters
    std::vector<Place> lines_;
    std::unordered_map<std::string_view, int> labels_;
    std::vector<std::unique_ptr<ProgramLine>> prepared_;
    std::size_t words_ = 0;  ///< of the prepared lines, about
};

/// `text` in small letters, Latin-1 letters too.
[[nodiscard]] std::string smallLetters(std::string_view text);
/// `text` in capitals, Latin-1 letters too.
[[nodiscard]] std::string capitals(std::string_view text);
/// `text` without blanks at the ends.
[[nodiscard]] std::string_view withoutBlanks(std::string_view text);
/// The words of `text` between its blanks.
[[nodiscard]] std::vector<std::string_view> splitAtBlanks(std::string_view text);

}  // namespace tallyforge
