// SPDX-License-Identifier: GPL-3.0-or-later
//
// The running tape: the lines as shown and the exact value behind each. A line is fixed-width
// text, kept inline, and lines live in blocks, so that appending the millionth costs what the
// first did and a line takes less than 96 bytes.
#pragma once

#include "engine/engine_state.h"
#include "engine/value_cell.h"
#include "platform/form.h"

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tallyforge {

/// Characters in a line of the tape.
inline constexpr std::size_t kTapeWidth = 23;

/// How a number is to be shown: the format in force when its line was written.
struct NumberLook {
    DisplayMode mode = DisplayMode::Fixed;
    int digits = 2;
    char decimal = '.';
};

class Tape : public ListRows {
public:
    /// Empties the tape and lays `rows` filler lines on it, so that new lines appear at the
    /// bottom of a list of fixed height.
    void clear(int rows);

    /// Appends a line with the value behind it and selects it.
    void add(std::string_view text, const ValueCell& value);

    /// Longest label that addNumber takes.
    static constexpr std::size_t kLongestLabel = kTapeWidth - 4;
    /// Appends the line of a number, one that is not a text, with its label, and selects it. The
    /// line is formatted when someone looks at it, and reads as it would have been written now.
    void addNumber(const NumberLook& look, std::string_view label, const ValueCell& value);

    /// Takes one filler line away; returns false where none is left.
    bool dropFiller();

    /// Filler lines left at the head.
    [[nodiscard]] int fillers() const { return fillers_; }
    /// Lines that are no filler.
    [[nodiscard]] std::size_t lines() const { return rows_.size() - static_cast<std::size_t>(fillers_); }
    /// Value behind row `index` (fillers count); Empty for a filler or an index beyond the end.
    [[nodiscard]] ValueCell value(std::size_t index) const;
    /// Puts another value behind row `index`.
    void setValue(std::size_t index, const ValueCell& value);
    /// For a retrieval: rows read from a file, the first `fillers` of them filler lines.
    void setFillers(int fillers) { fillers_ = fillers; }

    [[nodiscard]] std::size_t count() const override { return rows_.size(); }
    [[nodiscard]] std::string row(std::size_t index) const override;
    [[nodiscard]] std::size_t selected() const override { return selected_; }
    void select(std::size_t index) override;
    [[nodiscard]] std::uint64_t revision() const override { return revision_; }

private:
    struct Row {
        std::array<char, kTapeWidth> text;
        std::uint8_t length;  ///< kLong: the text lies in longTexts_; kNumber: look and label lie in text
        ValueCell value;
    };
    static constexpr std::uint8_t kLong = 255;
    static constexpr std::uint8_t kNumber = 254;

    [[nodiscard]] static std::string numberText(const Row& row);

    std::deque<Row> rows_;
    /// Texts longer than a line, by the number that their row had when it was added.
    std::unordered_map<std::uint64_t, std::string> longTexts_;
    std::uint64_t dropped_ = 0;  ///< rows taken from the head so far
    int fillers_ = 0;
    std::size_t selected_ = 0;
    std::uint64_t revision_ = 0;
};

}  // namespace tallyforge
