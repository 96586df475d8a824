// SPDX-License-Identifier: GPL-3.0-or-later
//
// The running tape: the lines as shown and the exact value behind each. Lines live in blocks, so
// that appending the millionth costs what the first did. A plain number takes 10 bytes and is
// formatted when it is looked at; any other line is fixed-width text of 79 bytes, and 31 more where the
// value behind it is a text of over fifteen characters.
#pragma once

#include "engine/engine_state.h"
#include "numbers/value_cell.h"
#include "platform/form.h"

#include <array>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

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
    /// Appends the line of a number with its label, and selects it. The line is formatted when
    /// someone looks at it, and reads as it would have been written now.
    void addNumber(const NumberLook& look, std::string_view label, double value);

    /// Takes one filler line away; returns false where none is left.
    bool dropFiller();

    /// Filler lines left at the head.
    [[nodiscard]] int fillers() const { return fillers_; }
    /// Lines that are no filler.
    [[nodiscard]] std::size_t lines() const { return count() - static_cast<std::size_t>(fillers_); }
    /// Value behind row `index` (fillers count); Empty for a filler or an index beyond the end.
    [[nodiscard]] ValueCell value(std::size_t index) const;
    /// Puts another value behind row `index`.
    void setValue(std::size_t index, const ValueCell& value);
    /// For a retrieval: rows read from a file, the first `fillers` of them filler lines.
    void setFillers(int fillers) { fillers_ = fillers; }

    [[nodiscard]] std::size_t count() const override { return static_cast<std::size_t>(added_ - dropped_); }
    [[nodiscard]] std::string row(std::size_t index) const override;
    [[nodiscard]] std::size_t selected() const override { return selected_; }
    void select(std::size_t index) override;
    [[nodiscard]] std::uint64_t revision() const override { return revision_; }

private:
    /// What stands on a line that is no plain number.
    struct Text {
        std::array<char, kTapeWidth> text;
        std::uint8_t length;  ///< kLong: the text lies in longTexts_
        ValueCell value;
    };
    static constexpr std::uint8_t kLong = 255;
    static constexpr std::uint8_t kText = 255;
    static constexpr std::size_t kBlock = 4096;
    /// Lines side by side. Most are plain numbers, which a program writes by the million.
    struct Block {
        std::array<double, kBlock> number;       ///< or the place in texts_
        std::array<std::uint8_t, kBlock> look;   ///< mode, digits and decimal character, packed, or kText
        std::array<std::uint8_t, kBlock> label;  ///< of a number: place in labels_
    };
    /// One line of a block.
    struct Row {
        double& number;
        std::uint8_t& look;
        std::uint8_t& label;
    };
    static constexpr std::size_t kLabels = 256;

    Row append();
    [[nodiscard]] Row at(std::uint64_t number) const {
        Block& block = *blocks_[number / kBlock];
        const std::size_t place = number % kBlock;
        return {block.number[place], block.look[place], block.label[place]};
    }
    /// Place of `label` in labels_; kLabels where another label has it.
    [[nodiscard]] std::size_t placeOfLabel(std::string_view label);
    [[nodiscard]] Text& textOf(const Row& row) { return texts_[static_cast<std::size_t>(row.number)]; }
    [[nodiscard]] const Text& textOf(const Row& row) const { return texts_[static_cast<std::size_t>(row.number)]; }
    void putText(const Row& row, std::string_view text, const ValueCell& value);
    [[nodiscard]] std::string numberText(const Row& row) const;

    // Lines are numbered as they are added; those below dropped_ are gone.
    std::vector<std::unique_ptr<Block>> blocks_;
    std::array<std::string, kLabels> labels_;
    std::uint64_t added_ = 0;
    std::uint64_t dropped_ = 0;
    std::deque<Text> texts_;
    /// Texts longer than a line, by their place in texts_.
    std::unordered_map<std::size_t, std::string> longTexts_;
    int fillers_ = 0;
    std::size_t selected_ = 0;
    std::uint64_t revision_ = 0;
};

}  // namespace tallyforge
