// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/number_lines.h"

#include "engine/number_display.h"
#include "engine/tape.h"

namespace tallyforge {

namespace {

/// What stands before `shown` at the end of `text`, without the blanks between them; none where
/// `text` ends otherwise, or with a label that is too long.
std::optional<ShortLabel> labelBefore(std::string_view shown, std::string_view text) {
    if (!text.ends_with(shown)) {
        return std::nullopt;
    }
    text.remove_suffix(shown.size());
    const auto end = text.find_last_not_of(' ');
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
    // A number is written in one of three ways: alone, beside a sign, beside a word.
    constexpr std::size_t kLabels[] = {0, 1, 2};
    for (const DisplayMode mode : {DisplayMode::Fixed, DisplayMode::Scientific, DisplayMode::Engineering}) {
        for (int digits = 0; digits <= kMaxDisplayDigits; ++digits) {
            const NumberLook look{.mode = mode, .digits = digits, .decimal = decimal_};
            for (const std::size_t size : kLabels) {
                const auto label = labelBefore(NumberDisplay::shownNumber(value, look, size), text);
                const NumberLine line{.look = look, .label = label.value_or(ShortLabel{})};
                if (label && line.gives(text, value)) {
                    return line;
                }
            }
        }
    }
    return std::nullopt;
}

}  // namespace tallyforge
