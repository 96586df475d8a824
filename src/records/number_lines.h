// SPDX-License-Identifier: GPL-3.0-or-later
//
// A tape line of a plain number comes from a file as text. Where its label and a look give the
// same text again, the tape keeps those, in a quarter of the room.
#pragma once

#include "engine/engine_state.h"
#include "engine/tape_label.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace tallyforge {

/// A label and how its number was shown.
struct NumberLine {
    NumberLook look;
    ShortLabel label;
    [[nodiscard]] bool gives(std::string_view text, double value) const;
};

class NumberLines {
public:
    explicit NumberLines(char decimalCharacter) : decimal_(decimalCharacter) {}
    /// How the line `text` with `value` behind it was written; none where it was written otherwise.
    [[nodiscard]] const NumberLine* find(std::string_view text, double value);

private:
    [[nodiscard]] std::optional<NumberLine> lookThrough(std::string_view text, double value) const;

    char decimal_;
    /// What was found last: the lines of a run have few labels.
    static constexpr std::size_t kKept = 16;
    std::array<NumberLine, kKept> kept_{};
    std::size_t count_ = 0;
    std::size_t oldest_ = 0;
};

}  // namespace tallyforge
