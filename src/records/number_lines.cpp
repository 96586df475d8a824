// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/number_lines.h"

#include "engine/number_display.h"
#include "engine/tape.h"

namespace tallyforge {

namespace {

/// What stands before the last word of a line, without the blanks around it.
std::optional<ShortLabel> labelOf(std::string_view text) {
    const auto blank = text.rfind(' ');
    const auto end = blank == text.npos ? blank : text.find_last_not_of(' ', blank);
    const std::string_view label = end == text.npos ? std::string_view{} : text.substr(0, end + 1);
    return label.size() <= Tape::kLongestLabel ? std::optional{ShortLabel{label}} : std::nullopt;
}

}  // namespace

bool NumberLine::gives(std::string_view text, double value) const {
    return text.starts_with(label.view()) &&
           NumberDisplay::labelled(label.view(), NumberDisplay::shownNumber(value, look, label.size())) == text;
}

const NumberLine* NumberLines::find(std::string_view text, double value) {
    for (std::size_t i = 0; i < count_; ++i) {
        if (kept_[i].gives(text, value)) {
            return &kept_[i];
        }
    }
    const auto found = lookThrough(text, value);
    if (!found) {
        return nullptr;
    }
    NumberLine& place = kept_[oldest_];
    oldest_ = (oldest_ + 1) % kKept;
    count_ = std::max(count_, oldest_ == 0 ? kKept : oldest_);
    place = *found;
    return &place;
}

std::optional<NumberLine> NumberLines::lookThrough(std::string_view text, double value) const {
    const auto label = labelOf(text);
    if (!label) {
        return std::nullopt;
    }
    for (const DisplayMode mode : {DisplayMode::Fixed, DisplayMode::Scientific, DisplayMode::Engineering}) {
        for (int digits = 0; digits <= kMaxDisplayDigits; ++digits) {
            const NumberLine line{.look = {.mode = mode, .digits = digits, .decimal = decimal_}, .label = *label};
            if (line.gives(text, value)) {
                return line;
            }
        }
    }
    return std::nullopt;
}

}  // namespace tallyforge
