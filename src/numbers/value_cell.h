// SPDX-License-Identifier: GPL-3.0-or-later
//
// ValueCell holds whatever may stand in X, on the stack, in a register or on the tape: nothing, a
// number of some width, a truth value, or a text. A typed number stays the text that was typed
// until arithmetic reads it; a number of a base ("#1FFh") stays a text for good. A cell takes 16
// bytes, so that numbers move in two words; copies of a text share it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tallyforge {

class ValueCell {
public:
    ValueCell() = default;
    // NOLINTBEGIN(google-explicit-constructor): a cell takes any of its kinds by plain assignment
    ValueCell(std::int16_t value) : kind_(Kind::Integer) { held_.integer = value; }
    ValueCell(float value) : kind_(Kind::Single) { held_.single = value; }
    ValueCell(double value) : kind_(Kind::Double) { held_.number = value; }
    ValueCell(bool value) : kind_(Kind::Truth) { held_.truth = value; }
    ValueCell(std::string value) : kind_(Kind::Text) { held_.text = shared(std::move(value)); }
    ValueCell(std::string_view value) : ValueCell(std::string(value)) {}
    ValueCell(const char* value) : ValueCell(std::string(value)) {}
    // NOLINTEND(google-explicit-constructor)
    ValueCell(const ValueCell& other) : held_(other.held_), kind_(other.kind_) { share(); }
    ValueCell(ValueCell&& other) noexcept : held_(other.held_), kind_(std::exchange(other.kind_, Kind::Empty)) {}
    ~ValueCell() { release(); }
    ValueCell& operator=(const ValueCell& other) {
        // First the new text, then the old one: the two may be the same.
        other.share();
        release();
        held_ = other.held_;
        kind_ = other.kind_;
        return *this;
    }
    ValueCell& operator=(ValueCell&& other) noexcept {
        const Held held = other.held_;
        const Kind kind = std::exchange(other.kind_, Kind::Empty);
        release();
        held_ = held;
        kind_ = kind;
        return *this;
    }
    ValueCell& operator=(double value) {
        release();
        held_.number = value;
        kind_ = Kind::Double;
        return *this;
    }
    /// The same for a cell that holds no text.
    void putNumber(double value) {
        held_.number = value;
        kind_ = Kind::Double;
    }
    /// The number 0, as a cleared cell holds it.
    [[nodiscard]] static ValueCell zero() { return ValueCell{0.0}; }

    [[nodiscard]] bool isEmpty() const { return kind_ == Kind::Empty; }
    [[nodiscard]] bool isText() const { return kind_ == Kind::Text; }
    /// A double, or nothing.
    [[nodiscard]] bool isNumberOrEmpty() const { return kind_ == Kind::Double || kind_ == Kind::Empty; }
    /// The held double; nullptr for anything else.
    [[nodiscard]] const double* asDouble() const { return kind_ == Kind::Double ? &held_.number : nullptr; }
    /// The held text; an empty view for anything but a text.
    [[nodiscard]] std::string_view textView() const {
        return isText() ? std::string_view{held_.text->text} : std::string_view{};
    }
    /// Bytes of memory that a text of `size` characters takes, about.
    [[nodiscard]] static constexpr std::size_t bytesOfText(std::size_t size) { return size + sizeof(SharedText) + 24; }
    /// Bytes that the held text takes, divided by the cells that share it; 0 for anything but a text.
    [[nodiscard]] std::size_t textShare() const {
        return isText() ? bytesOfText(held_.text->text.size()) / held_.text->cells : 0;
    }
    /// True for the text "" and nothing else (an Empty cell is not the empty text).
    [[nodiscard]] bool isEmptyText() const { return isText() && held_.text->text.empty(); }
    /// True for a text that starts with "#".
    [[nodiscard]] bool isTagged() const { return textView().starts_with('#'); }

    /// The value as a number. Empty is 0, True is -1. A text is parsed with the locale's
    /// `decimal` character. Failures: 13 for a text that is no number, 6 for one out of the
    /// range of a double.
    [[nodiscard]] double number(char decimal) const {
        return kind_ == Kind::Double ? held_.number : readNumber(decimal);
    }
    /// number() without the failures: empty where it would raise one.
    [[nodiscard]] std::optional<double> tryNumber(char decimal) const {
        const double* const number = asDouble();
        return number != nullptr ? std::optional{*number} : readAny(decimal);
    }
    /// The value as plain text: a text as it stands, "" for Empty, "True" or "False", a number
    /// with up to 15 significant digits ("1.5", "-3", "1E+20") and the locale's `decimal`.
    [[nodiscard]] std::string text(char decimal) const;

    /// Same kind and same value.
    friend bool operator==(const ValueCell& left, const ValueCell& right) { return left.equals(right); }

private:
    enum class Kind : std::uint8_t { Empty, Integer, Single, Double, Truth, Text };
    /// A text is written once and then only read, by all cells that hold it.
    struct SharedText {
        std::size_t cells;
        std::string text;
    };
    union Held {
        double number;
        float single;
        std::int16_t integer;
        bool truth;
        SharedText* text;
    };

    [[nodiscard]] static SharedText* shared(std::string text);
    void share() const {
        if (isText()) {
            ++held_.text->cells;
        }
    }
    void release() {
        if (isText() && --held_.text->cells == 0) {
            forget();
        }
    }
    void forget();
    [[nodiscard]] bool equals(const ValueCell& other) const;
    [[nodiscard]] double readNumber(char decimal) const;
    [[nodiscard]] std::optional<double> readAny(char decimal) const;

    Held held_{.number = 0.0};
    Kind kind_ = Kind::Empty;
};

static_assert(sizeof(ValueCell) == 16);

}  // namespace tallyforge
