// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/tape.h"

#include "engine/number_display.h"

#include <algorithm>

namespace tallyforge {

void Tape::clear(int rows) {
    rows_.clear();
    longTexts_.clear();
    dropped_ = 0;
    for (int i = 0; i < rows; ++i) {
        add({}, ValueCell{});
    }
    fillers_ = rows;
    selected_ = rows_.size();
    ++revision_;
}

void Tape::add(std::string_view text, const ValueCell& value) {
    Row& row = rows_.emplace_back();
    if (text.size() <= kTapeWidth) {
        std::copy(text.begin(), text.end(), row.text.begin());
        row.length = static_cast<std::uint8_t>(text.size());
    } else {
        row.length = kLong;
        longTexts_.emplace(dropped_ + rows_.size() - 1, text);
    }
    row.value = value;
    selected_ = rows_.size() - 1;
    ++revision_;
}

void Tape::addNumber(const NumberLook& look, std::string_view label, const ValueCell& value) {
    Row& row = rows_.emplace_back();
    row.length = kNumber;
    row.text[0] = static_cast<char>(look.mode);
    row.text[1] = static_cast<char>(look.digits);
    row.text[2] = look.decimal;
    row.text[3] = static_cast<char>(label.size());
    std::copy(label.begin(), label.end(), row.text.begin() + 4);
    row.value = value;
    selected_ = rows_.size() - 1;
    ++revision_;
}

std::string Tape::numberText(const Row& row) {
    const NumberLook look{
        .mode = static_cast<DisplayMode>(row.text[0]), .digits = row.text[1], .decimal = row.text[2]};
    const std::string_view label{row.text.data() + 4, static_cast<std::size_t>(row.text[3])};
    return NumberDisplay::labelled(label, NumberDisplay::shownNumber(row.value.number(look.decimal), look, label.size()));
}

bool Tape::dropFiller() {
    if (fillers_ == 0) {
        return false;
    }
    --fillers_;
    rows_.pop_front();
    longTexts_.erase(dropped_);
    ++dropped_;
    selected_ = std::max<std::size_t>(selected_, 1) - 1;
    ++revision_;
    return true;
}

ValueCell Tape::value(std::size_t index) const {
    return index < rows_.size() ? rows_[index].value : ValueCell{};
}

void Tape::setValue(std::size_t index, const ValueCell& value) {
    if (index >= rows_.size()) {
        return;
    }
    Row& row = rows_[index];
    if (row.length == kNumber) {
        // The line goes on reading as the number that it was written for.
        const std::string text = numberText(row);
        row.length = text.size() <= kTapeWidth ? static_cast<std::uint8_t>(text.size()) : kLong;
        if (row.length == kLong) {
            longTexts_.emplace(dropped_ + index, text);
        } else {
            std::copy(text.begin(), text.end(), row.text.begin());
        }
    }
    row.value = value;
}

std::string Tape::row(std::size_t index) const {
    if (index >= rows_.size()) {
        return {};
    }
    const Row& row = rows_[index];
    if (row.length == kLong) {
        const auto found = longTexts_.find(dropped_ + index);
        return found == longTexts_.end() ? std::string{} : found->second;
    }
    return row.length == kNumber ? numberText(row) : std::string(row.text.data(), row.length);
}

void Tape::select(std::size_t index) {
    if (index < rows_.size()) {
        selected_ = index;
        ++revision_;
    }
}

}  // namespace tallyforge
