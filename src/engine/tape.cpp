// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/tape.h"

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
    if (index < rows_.size()) {
        rows_[index].value = value;
    }
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
    return {row.text.data(), row.length};
}

void Tape::select(std::size_t index) {
    if (index < rows_.size()) {
        selected_ = index;
        ++revision_;
    }
}

}  // namespace tallyforge
