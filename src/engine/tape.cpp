// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/tape.h"

#include "engine/number_display.h"

#include <algorithm>

namespace tallyforge {

namespace {

constexpr int kDigitsShift = 2;
constexpr int kCommaShift = 6;

std::uint8_t packed(const NumberLook& look) {
    return static_cast<std::uint8_t>(static_cast<int>(look.mode) | look.digits << kDigitsShift |
                                     (look.decimal == ',' ? 1 : 0) << kCommaShift);
}

NumberLook unpacked(std::uint8_t look) {
    return {.mode = static_cast<DisplayMode>(look & 3),
            .digits = look >> kDigitsShift & 15,
            .decimal = (look >> kCommaShift & 1) != 0 ? ',' : '.'};
}

}  // namespace

void Tape::clear(int rows) {
    blocks_.clear();
    texts_.clear();
    longTexts_.clear();
    added_ = 0;
    dropped_ = 0;
    for (int i = 0; i < rows; ++i) {
        add({}, ValueCell{});
    }
    fillers_ = rows;
    selected_ = count();
    ++revision_;
}

Tape::Row Tape::append() {
    if (added_ == blocks_.size() * kBlock) {
        // Not filled with zeros: each row is written before it is read.
        blocks_.push_back(std::make_unique_for_overwrite<Block>());
    }
    ++added_;
    selected_ = count() - 1;
    ++revision_;
    return at(added_ - 1);
}

void Tape::putText(const Row& row, std::string_view text, const ValueCell& value) {
    const std::size_t place = texts_.size();
    row.number = static_cast<double>(place);
    row.look = kText;
    Text& line = texts_.emplace_back();
    if (text.size() <= kTapeWidth) {
        std::copy(text.begin(), text.end(), line.text.begin());
        line.length = static_cast<std::uint8_t>(text.size());
    } else {
        line.length = kLong;
        longTexts_.emplace(place, text);
    }
    line.value = value;
}

void Tape::add(std::string_view text, const ValueCell& value) {
    putText(append(), text, value);
}

void Tape::addNumber(const NumberLook& look, std::string_view label, double value) {
    const std::size_t place = placeOfLabel(label);
    if (place == kLabels) {
        add(NumberDisplay::labelled(label, NumberDisplay::shownNumber(value, look, label.size())), ValueCell{value});
        return;
    }
    const Row row = append();
    row.number = value;
    row.look = packed(look);
    row.label = static_cast<std::uint8_t>(place);
}

std::size_t Tape::placeOfLabel(std::string_view label) {
    if (label.empty()) {
        return 0;
    }
    constexpr std::size_t kSpread = 37;
    std::size_t place = label.size();
    for (const char character : label) {
        place = place * kSpread + static_cast<unsigned char>(character);
    }
    place = 1 + place % (kLabels - 1);
    std::string& held = labels_[place];
    if (held.empty()) {
        held = label;
    }
    // Labels are short: a loop is quicker here than a call.
    return std::equal(held.begin(), held.end(), label.begin(), label.end()) ? place : kLabels;
}

std::string Tape::numberText(const Row& row) const {
    const std::string& label = labels_[row.label];
    return NumberDisplay::labelled(label, NumberDisplay::shownNumber(row.number, unpacked(row.look), label.size()));
}

bool Tape::dropFiller() {
    if (fillers_ == 0) {
        return false;
    }
    --fillers_;
    ++dropped_;
    selected_ = std::max<std::size_t>(selected_, 1) - 1;
    ++revision_;
    return true;
}

ValueCell Tape::value(std::size_t index) const {
    if (index >= count()) {
        return {};
    }
    const Row row = at(dropped_ + index);
    return row.look == kText ? textOf(row).value : ValueCell{row.number};
}

void Tape::setValue(std::size_t index, const ValueCell& value) {
    if (index >= count()) {
        return;
    }
    const Row row = at(dropped_ + index);
    if (row.look == kText) {
        textOf(row).value = value;
    } else {
        // The line goes on reading as the number that it was written for.
        putText(row, numberText(row), value);
    }
}

std::string Tape::row(std::size_t index) const {
    if (index >= count()) {
        return {};
    }
    const Row row = at(dropped_ + index);
    if (row.look != kText) {
        return numberText(row);
    }
    const Text& line = textOf(row);
    return line.length == kLong ? longTexts_.at(static_cast<std::size_t>(row.number))
                                : std::string(line.text.data(), line.length);
}

void Tape::select(std::size_t index) {
    if (index < count()) {
        selected_ = index;
        ++revision_;
    }
}

}  // namespace tallyforge
