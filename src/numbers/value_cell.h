// SPDX-License-Identifier: GPL-3.0-or-later
//
// ValueCell holds whatever may stand in X, on the stack, in a register or on the tape: nothing, a
// number of some width, a truth value, or a text. A typed number stays the text that was typed
// until arithmetic reads it; a number of a base ("#1FFh") stays a text for good.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace tallyforge {

class ValueCell {
public:
    ValueCell() = default;
    // NOLINTBEGIN(google-explicit-constructor): a cell takes any of its kinds by plain assignment
    ValueCell(std::int16_t value) : held_(value) {}
    ValueCell(float value) : held_(value) {}
    ValueCell(double value) : held_(value) {}
    ValueCell(bool value) : held_(value) {}
    ValueCell(std::string value) : held_(std::move(value)) {}
    ValueCell(std::string_view value) : held_(std::string(value)) {}
    ValueCell(const char* value) : held_(std::string(value)) {}
    // NOLINTEND(google-explicit-constructor)
    ValueCell(const ValueCell&) = default;
    ValueCell(ValueCell&&) noexcept = default;
    ~ValueCell() = default;
    // Nearly all cells that a running program moves are doubles, so these go first.
    ValueCell& operator=(const ValueCell& other) {
        if (const double* number = other.asDouble()) {
            held_ = *number;
        } else {
            held_ = other.held_;
        }
        return *this;
    }
    ValueCell& operator=(ValueCell&& other) noexcept {
        if (const double* number = other.asDouble()) {
            held_ = *number;
        } else {
            held_ = std::move(other.held_);
        }
        return *this;
    }
    ValueCell& operator=(double value) {
        held_ = value;
        return *this;
    }
    /// The integer 0, as a cleared cell holds it.
    [[nodiscard]] static ValueCell zero() { return ValueCell{std::int16_t{0}}; }

    [[nodiscard]] bool isEmpty() const { return std::holds_alternative<std::monostate>(held_); }
    [[nodiscard]] bool isText() const { return std::holds_alternative<std::string>(held_); }
    /// The held double; nullptr for anything else.
    [[nodiscard]] const double* asDouble() const { return std::get_if<double>(&held_); }
    /// The held text; an empty view for anything but a text.
    [[nodiscard]] std::string_view textView() const {
        const auto* held = std::get_if<std::string>(&held_);
        return held == nullptr ? std::string_view{} : std::string_view{*held};
    }
    /// True for the text "" and nothing else (an Empty cell is not the empty text).
    [[nodiscard]] bool isEmptyText() const { return isText() && textView().empty(); }
    /// True for a text that starts with "#".
    [[nodiscard]] bool isTagged() const { return textView().starts_with('#'); }

    /// The value as a number. Empty is 0, True is -1. A text is parsed with the locale's
    /// `decimal` character. Failures: 13 for a text that is no number, 6 for one out of the
    /// range of a double.
    [[nodiscard]] double number(char decimal) const;
    /// number() without the failures: empty where it would raise one.
    [[nodiscard]] std::optional<double> tryNumber(char decimal) const {
        const double* const number = asDouble();
        return number != nullptr ? std::optional{*number} : readAny(decimal);
    }
    /// The value as plain text: a text as it stands, "" for Empty, "True" or "False", a number
    /// with up to 15 significant digits ("1.5", "-3", "1E+20") and the locale's `decimal`.
    [[nodiscard]] std::string text(char decimal) const;

    friend bool operator==(const ValueCell&, const ValueCell&) = default;

private:
    [[nodiscard]] std::optional<double> readAny(char decimal) const;

    std::variant<std::monostate, std::int16_t, float, double, bool, std::string> held_;
};

}  // namespace tallyforge
