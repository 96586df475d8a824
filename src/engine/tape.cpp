// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/tape.h"

#include "engine/number_display.h"

namespace tallyforge {

void Tape::clear(int rows) {
    blocks_.clear();
    longTexts_.clear();
    place_ = kBlock;
    first_ = 0;
    added_ = 0;
    dropped_ = 0;
    gone_ = 0;
    textBytes_ = 0;
    for (int i = 0; i < rows; ++i) {
        add({}, ValueCell{});
    }
    fillers_ = rows;
    selected_ = added_;
    ++revision_;
}

void Tape::addBlock() {
    if (beforeGrowing_) {
        beforeGrowing_(bytes() + sizeof(Block));
    }
    if (blocks_.size() >= kMostBlocks || (bytes() + sizeof(Block) > kMostBytes && blocks_.size() > 1)) {
        giveWay();
    } else {
        blocks_.grow();
    }
    place_ = 0;
}

void Tape::shrinkTo(std::size_t most) {
    while (bytes() > most && blocks_.size() > 1) {
        forgetOldest();
        blocks_.dropFirst();
        ++revision_;
    }
}

void Tape::take(const Tape& other) {
    const std::uint64_t seen = std::max(revision_, other.revision_);
    auto own = std::move(beforeGrowing_);
    *this = other;
    beforeGrowing_ = std::move(own);
    revision_ = seen + 1;
}

// The oldest block becomes the newest.
void Tape::giveWay() {
    forgetOldest();
    blocks_.turn();
    blocks_.last().texts = {};
    blocks_.last().textBytes = 0;
}

// The lines of the oldest block are gone; the block itself is to go.
void Tape::forgetOldest() {
    textBytes_ -= blocks_[0].textBytes;
    const std::uint64_t next = first_ + kBlock;
    gone_ += next - std::max(first_, dropped_);
    first_ = next;
    dropped_ = std::max(dropped_, next);
    longTexts_.erase(longTexts_.begin(), longTexts_.lower_bound(next));
}

void Tape::add(std::string_view text, const ValueCell& value) {
    // What finds no memory is found out before the line counts.
    makePlace();
    Text line;
    if (text.size() <= kTapeWidth) {
        std::copy(text.begin(), text.end(), line.text.begin());
        line.length = static_cast<std::uint8_t>(text.size());
    } else {
        line.length = kLong;
        longTexts_.insert_or_assign(added_, std::string(text));
    }
    line.value = value;
    blocks_.last().texts.push_back(line);
    Block& block = append();
    block.number[place_] = static_cast<double>(block.texts.size() - 1);
    block.style[place_] = kText;
    ++place_;
    // A text lies in a block of its own with its count; so does one that is longer than a line.
    constexpr std::size_t kAround = 64;
    const std::size_t bytes = sizeof(Text) + (value.isText() ? value.textView().size() + kAround : 0) +
                              (line.length == kLong ? text.size() + 2 * kAround : 0);
    block.textBytes += bytes;
    textBytes_ += bytes;
    shrinkTo(kMostBytes);
    if (beforeGrowing_) {
        beforeGrowing_(this->bytes());
    }
}

void Tape::addNumber(const NumberLook& look, const TapeLabel& label, double value) {
    if (const auto held = known(label)) {
        addNumber(style(packed(look), held->id), value);
        return;
    }
    add(NumberDisplay::labelled(label, NumberDisplay::shownNumber(value, look, label.size())), ValueCell{value});
}

std::optional<LabelId> Tape::idOf(const ShortLabel& label) {
    if (label.size() == 0) {
        return LabelId::None;
    }
    constexpr unsigned kTopBits = 54;
    for (std::size_t place = label.hash() >> kTopBits;; place = (place + 1) % kLabelPlaces) {
        std::uint16_t& held = labelPlaces_[place];
        if (held == 0) {
            if (labels_.size() == kMostLabels) {
                return std::nullopt;
            }
            held = static_cast<std::uint16_t>(labels_.size());
            labels_.push_back(label);
        }
        if (labels_[held] == label) {
            return static_cast<LabelId>(held);
        }
    }
}

bool Tape::dropFiller() {
    if (fillers_ == 0) {
        return false;
    }
    --fillers_;
    ++dropped_;
    ++revision_;
    return true;
}

/// What stands on a line that is no plain number; nullptr where it is one.
const Tape::Text* Tape::textOf(std::uint64_t line) const {
    const Block& block = blockOf(line);
    const std::size_t place = (line - first_) % kBlock;
    return block.style[place] == kText ? &block.texts[static_cast<std::size_t>(block.number[place])] : nullptr;
}

ValueCell Tape::value(std::size_t index) const {
    if (index >= count() || (index == 0 && gone_ != 0)) {
        return {};
    }
    const std::uint64_t line = dropped_ + index;
    const Text* const text = textOf(line);
    return text != nullptr ? text->value : ValueCell{blockOf(line).number[(line - first_) % kBlock]};
}

std::string Tape::row(std::size_t index) const {
    if (index >= count()) {
        return {};
    }
    if (index == 0 && gone_ != 0) {
        // Itself among them.
        return std::to_string(gone_ + 1) + " older lines";
    }
    const std::uint64_t line = dropped_ + index;
    if (const Text* const text = textOf(line)) {
        return text->length == kLong ? longTexts_.at(line) : std::string(text->text.data(), text->length);
    }
    const std::size_t place = (line - first_) % kBlock;
    const auto style = static_cast<std::uint16_t>(blockOf(line).style[place]);
    const std::string_view label = labels_[style / kPackedLooks].view();
    const NumberLook look = unpacked(static_cast<std::uint8_t>(style % kPackedLooks));
    return NumberDisplay::labelled(label, NumberDisplay::shownNumber(blockOf(line).number[place], look, label.size()));
}

void Tape::select(std::size_t index) {
    if (index < count()) {
        selected_ = dropped_ + index;
        ++revision_;
    }
}

}  // namespace tallyforge
