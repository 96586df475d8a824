// SPDX-License-Identifier: GPL-3.0-or-later
//
// The label of a line of the tape. Nearly all are a few characters long and are set and looked up
// at each word of a program, so such a label lies in three machine words.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>

namespace tallyforge {

/// At most 23 characters, and how many.
class ShortLabel {
public:
    static constexpr std::size_t kMost = 23;

    constexpr ShortLabel() = default;
    /// `text` must have no more than kMost characters.
    constexpr explicit ShortLabel(std::string_view text) {
        if (std::is_constant_evaluated()) {
            std::copy(text.begin(), text.end(), bytes_.begin());
            bytes_[kMost] = static_cast<char>(text.size());
        } else {
            bytes_ = std::bit_cast<Bytes>(wordsOf(text));
        }
    }

    [[nodiscard]] constexpr std::size_t size() const { return static_cast<std::size_t>(bytes_[kMost]); }
    [[nodiscard]] constexpr std::string_view view() const { return {bytes_.data(), size()}; }
    [[nodiscard]] std::uint64_t hash() const {
        constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15U;
        const Words own = words();
        return ((own[0] ^ std::rotl(own[1], 21)) + own[2]) * kSpread;
    }
    friend bool operator==(const ShortLabel& left, const ShortLabel& right) { return left.words() == right.words(); }

private:
    using Bytes = std::array<char, kMost + 1>;
    using Words = std::array<std::uint64_t, 3>;
    static constexpr std::size_t kWord = sizeof(std::uint64_t);

    template <typename Word>
    [[nodiscard]] static std::uint64_t load(const char* from) {
        Word word = 0;
        std::memcpy(&word, from, sizeof word);
        return word;
    }
    /// The first `count` bytes at `from`, at most eight, and zeros behind them.
    [[nodiscard]] static std::uint64_t partOfWord(const char* from, std::size_t count) {
        constexpr std::size_t kHalf = sizeof(std::uint32_t);
        if (count >= kWord) {
            return load<std::uint64_t>(from);
        }
        if (count >= kHalf) {
            return load<std::uint32_t>(from) | load<std::uint32_t>(from + count - kHalf) << 8 * (count - kHalf);
        }
        std::uint64_t word = 0;
        for (std::size_t i = 0; i < count; ++i) {
            word |= load<unsigned char>(from + i) << 8 * i;
        }
        return word;
    }
    // A label that was written byte by byte cannot be read by words at once: the processor waits
    // until the bytes have left for the memory.
    [[nodiscard]] static Words wordsOf(std::string_view text) {
        const std::size_t size = text.size();
        Words words{partOfWord(text.data(), std::min(size, kWord)), 0, 0};
        if (size > kWord) {
            words[1] = partOfWord(text.data() + kWord, std::min(size - kWord, kWord));
        }
        if (size > 2 * kWord) {
            words[2] = partOfWord(text.data() + 2 * kWord, size - 2 * kWord);
        }
        words[2] |= static_cast<std::uint64_t>(size) << 8 * (kWord - 1);
        return words;
    }
    [[nodiscard]] Words words() const { return std::bit_cast<Words>(bytes_); }

    Bytes bytes_{};
};

/// A label of any length.
class TapeLabel {
public:
    TapeLabel() = default;
    // NOLINTBEGIN(google-explicit-constructor): a label is set by plain assignment
    TapeLabel(const ShortLabel& label) : short_(label) {}
    TapeLabel(std::string_view text) {
        if (text.size() <= ShortLabel::kMost) {
            short_ = ShortLabel{text};
        } else {
            long_ = text;
        }
    }
    TapeLabel(const std::string& text) : TapeLabel(std::string_view{text}) {}
    TapeLabel(const char* text) : TapeLabel(std::string_view{text}) {}
    operator std::string_view() const { return view(); }
    // NOLINTEND(google-explicit-constructor)
    TapeLabel& operator=(const ShortLabel& label) {
        short_ = label;
        if (!long_.empty()) {
            long_.clear();
        }
        return *this;
    }
    TapeLabel& operator=(std::string_view text) {
        if (text.size() <= ShortLabel::kMost) {
            return *this = ShortLabel{text};
        }
        short_ = {};
        long_ = text;
        return *this;
    }
    TapeLabel& operator=(const std::string& text) { return *this = std::string_view{text}; }
    TapeLabel& operator=(const char* text) { return *this = std::string_view{text}; }

    [[nodiscard]] std::string_view view() const { return long_.empty() ? short_.view() : std::string_view{long_}; }
    [[nodiscard]] std::size_t size() const { return view().size(); }
    [[nodiscard]] bool empty() const { return short_.size() == 0 && long_.empty(); }
    /// The label where it has no more characters than a short one; otherwise an empty one.
    [[nodiscard]] const ShortLabel& shortLabel() const { return short_; }
    void clear() { *this = ShortLabel{}; }
    friend bool operator==(const TapeLabel& left, std::string_view right) { return left.view() == right; }

private:
    ShortLabel short_;
    std::string long_;
};

}  // namespace tallyforge
