// SPDX-License-Identifier: GPL-3.0-or-later
//
// The running tape: the lines as shown and the exact value behind each. Lines live in blocks, so
// that appending the ten-millionth costs what the first did. A plain number takes 10 bytes and is
// formatted when it is looked at; any other line is fixed-width text of 40 bytes and the text behind
// its value. The tape has a bound in lines and one in bytes: the oldest block gives way where a new
// one finds no room.
#pragma once

#include "engine/engine_state.h"
#include "engine/tape_label.h"
#include "numbers/value_cell.h"
#include "platform/form.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyforge {

/// Characters in a line of the tape.
inline constexpr std::size_t kTapeWidth = 23;

/// A look in seven bits.
inline constexpr std::size_t kPackedLooks = 128;
[[nodiscard]] constexpr std::uint8_t packed(const NumberLook& look) {
    return static_cast<std::uint8_t>(static_cast<int>(look.mode) | look.digits << 2 |
                                     (look.decimal == ',' ? 1 : 0) << 6);
}
[[nodiscard]] constexpr NumberLook unpacked(std::uint8_t look) {
    return {.mode = static_cast<DisplayMode>(look & 3),
            .digits = look >> 2 & 15,
            .decimal = (look >> 6 & 1) != 0 ? ',' : '.'};
}

/// Values side by side of which only the last is written; copies of the row share all others.
template <typename Block>
class SharedBlocks {
public:
    SharedBlocks() = default;
    SharedBlocks(const SharedBlocks& other) : all_(other.all_) { ownLast(); }
    SharedBlocks(SharedBlocks&& other) noexcept
        : all_(std::move(other.all_)), last_(std::exchange(other.last_, nullptr)) {}
    ~SharedBlocks() = default;
    SharedBlocks& operator=(SharedBlocks other) noexcept {
        std::swap(all_, other.all_);
        std::swap(last_, other.last_);
        return *this;
    }
    [[nodiscard]] std::size_t size() const { return all_.size(); }
    [[nodiscard]] const Block& operator[](std::size_t index) const { return *all_[index]; }
    [[nodiscard]] Block& last() { return *last_; }
    void clear() { *this = SharedBlocks{}; }
    /// Appends a block that is not filled with zeros: each line is written before it is read.
    void grow() {
        all_.push_back(std::make_shared_for_overwrite<Block>());
        last_ = all_.back().get();
    }
    /// The first block goes, and makes the new last one where nobody else has it.
    void turn() {
        if (all_.front().use_count() != 1) {
            all_.front() = std::make_shared_for_overwrite<Block>();
        }
        std::rotate(all_.begin(), all_.begin() + 1, all_.end());
        last_ = all_.back().get();
    }
    /// The first block goes, where it is not the last one.
    void dropFirst() { all_.erase(all_.begin()); }

private:
    void ownLast() {
        if (!all_.empty()) {
            all_.back() = std::make_shared<Block>(*all_.back());
            last_ = all_.back().get();
        }
    }

    std::vector<std::shared_ptr<Block>> all_;
    Block* last_ = nullptr;
};

/// Number under which the tape knows a short label; 0 for the empty one.
enum class LabelId : std::uint16_t { None = 0 };
struct KnownLabel {
    LabelId id = LabelId::None;
    bool wide = false;  ///< more than a character, beside which a long value finds no room
};
/// A known label and a packed look.
enum class LineStyle : std::uint16_t {};

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
    void addNumber(const NumberLook& look, const TapeLabel& label, double value);
    /// The same in a style that is known.
    void addNumber(LineStyle style, double value) {
        makePlace();
        addInPlace(style, value);
    }
    /// The next line needs no more memory.
    [[nodiscard]] bool hasPlace() const { return place_ != kBlock; }
    void makePlace() {
        if (!hasPlace()) {
            addBlock();
        }
    }
    /// The same where the tape hasPlace().
    void addInPlace(LineStyle style, double value) {
        Block& block = append();
        block.number[place_] = value;
        block.style[place_] = style;
        ++place_;
    }
    /// `look` is packed.
    [[nodiscard]] static LineStyle style(std::uint8_t look, LabelId label) {
        return static_cast<LineStyle>(static_cast<std::size_t>(label) * kPackedLooks + look);
    }
    /// The number of `label` from now on; none where the tape knows as many labels as it can.
    [[nodiscard]] std::optional<LabelId> idOf(const ShortLabel& label);
    /// The same for a label of any length; none for one that is longer than kLongestLabel.
    [[nodiscard]] std::optional<KnownLabel> known(const TapeLabel& label) {
        if (label.empty()) {
            return KnownLabel{};
        }
        const std::size_t size = label.size();
        const auto id = size > kLongestLabel ? std::nullopt : idOf(label.shortLabel());
        return id ? std::optional{KnownLabel{.id = *id, .wide = size > 1}} : std::nullopt;
    }

    /// Takes one filler line away; returns false where none is left.
    bool dropFiller();

    /// Filler lines left at the head.
    [[nodiscard]] int fillers() const { return fillers_; }
    /// Lines that are no filler.
    [[nodiscard]] std::size_t lines() const { return count() - static_cast<std::size_t>(fillers_); }
    /// Value behind row `index` (fillers count); Empty for a filler or an index beyond the end.
    [[nodiscard]] ValueCell value(std::size_t index) const;
    /// For a retrieval: rows read from a file, the first `fillers` of them filler lines.
    void setFillers(int fillers) { fillers_ = fillers; }
    /// Takes the lines of another tape. A copy of a tape shares what is written, so that it costs little.
    void take(const Tape& other);
    /// Bytes that the lines take, about.
    [[nodiscard]] std::size_t bytes() const { return blocks_.size() * sizeof(Block) + textBytes_; }
    /// Most bytes that the lines of a tape take: ten million plain ones, and some texts among them.
    static constexpr std::size_t kMostBytes = std::size_t{120} << 20U;
    /// The oldest lines give way until the tape takes no more than `most`, or is its newest block.
    void shrinkTo(std::size_t most);
    /// `act` is called with the bytes to come before the tape grows, to make room elsewhere. It belongs
    /// to this tape: a tape that takes the lines of another one keeps its own.
    void beforeGrowing(std::function<void(std::size_t)> act) { beforeGrowing_ = std::move(act); }

    /// Lines that have given way to newer ones. The first line tells how many, in place of its own
    /// text and value.
    [[nodiscard]] std::uint64_t gone() const { return gone_; }

    [[nodiscard]] std::size_t count() const override { return static_cast<std::size_t>(added_ - dropped_); }
    [[nodiscard]] std::string row(std::size_t index) const override;
    [[nodiscard]] std::size_t selected() const override {
        return static_cast<std::size_t>(std::max(selected_, dropped_) - dropped_);
    }
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
    static constexpr std::size_t kBlock = 4096;
    /// Plain lines that are kept, at least.
    static constexpr std::size_t kKeptLines = 10'000'000;
    static constexpr std::size_t kMostBlocks = kKeptLines / kBlock + 2;
    /// Lines side by side. Most are plain numbers, which a program writes by the million.
    struct Block {
        std::array<double, kBlock> number;    ///< or the place in `texts`
        std::array<LineStyle, kBlock> style;  ///< label and packed look, or kText
        std::vector<Text> texts;
        std::size_t textBytes = 0;  ///< that the texts and their values take
    };
    static constexpr LineStyle kText{0xFFFF};
    static constexpr std::size_t kMostLabels = 0xFFFF / kPackedLooks;
    /// Twice as many places as labels, so that a search ends soon.
    static constexpr std::size_t kLabelPlaces = 1024;

    /// The block whose line `place_` is the next one, which counts and is selected.
    Block& append() {
        selected_ = added_++;
        ++revision_;
        return blocks_.last();
    }
    void addBlock();
    void giveWay();
    void forgetOldest();
    [[nodiscard]] const Block& blockOf(std::uint64_t line) const { return blocks_[(line - first_) / kBlock]; }
    [[nodiscard]] const Text* textOf(std::uint64_t line) const;

    // Lines are numbered as they are added; those below dropped_ are gone.
    SharedBlocks<Block> blocks_;
    std::size_t place_ = kBlock;  ///< of the next line in the last block
    std::uint64_t first_ = 0;     ///< number of the first line in the first block
    std::uint64_t added_ = 0;
    std::uint64_t dropped_ = 0;
    std::uint64_t gone_ = 0;
    std::size_t textBytes_ = 0;
    /// Texts longer than a line, by their line.
    std::map<std::uint64_t, std::string> longTexts_;
    std::vector<ShortLabel> labels_ = std::vector<ShortLabel>(1);
    std::vector<std::uint16_t> labelPlaces_ = std::vector<std::uint16_t>(kLabelPlaces);
    int fillers_ = 0;
    std::uint64_t selected_ = 0;
    std::uint64_t revision_ = 0;
    std::function<void(std::size_t)> beforeGrowing_;
};

}  // namespace tallyforge
