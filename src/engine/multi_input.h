// SPDX-License-Identifier: GPL-3.0-or-later
//
// The idiom of the keys that need several inputs: a press takes X as the input that the modifiers
// name, and the press that completes a set computes the missing quantity. A key gives a Shape
// (constexpr tables) and calls press(); the dispatch then commits what press() left in X.
//
//     constexpr KeyInput kInputs[] = {{.mask = 0, .bit = 1, .label = "RT"}, ...};
//     constexpr KeySolution kSolutions[] = {{.bits = 6, .label = "RT", .solve = totalOfBoth}, ...};
//     MultiInput key{calc, {.resetLabel = "Reset RT", .resetBit = 1024, .inputs = kInputs, ...}};
//
// Inputs that follow each other take one place on the stack. What the user puts there between two of
// them stays until the set is complete; then the result stands in the place of the first input.
#pragma once

#include "numbers/value_cell.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace tallyforge {

class Engine;

inline constexpr std::size_t kMostInputs = 8;

/// Values received, in the order of the key's inputs.
using InputValues = std::array<double, kMostInputs>;

struct KeyInput {
    std::uint8_t mask = 0;  ///< modifiers that name it; even where Shift means recalculation
    std::uint8_t bit = 0;   ///< one bit of the sum of received inputs
    std::string_view label{};
};

struct KeySolution {
    std::uint8_t bits = 0;  ///< sum of the inputs that determine the result
    std::string_view label{};
    /// Raises 5, 6 or 11 where the values have no result.
    double (*solve)(const InputValues&) = nullptr;
};

class MultiInput {
public:
    struct Shape {
        std::string_view resetLabel{};  ///< "Reset RT"
        /// The key's bit of FunctionResetMask, 0 for a key that Reset leaves alone.
        std::uint32_t resetBit = 0;
        std::span<const KeyInput> inputs{};
        std::span<const KeySolution> solutions{};
        /// Shift names no input but asks to compute again from the inputs of the last set.
        bool shiftRecalculates = true;
        /// An X of 0 means that nothing was entered.
        bool zeroResets = true;
        /// The result chooses its digits by its size; the user's format returns after it.
        bool autoDigits = true;
    };
    enum class Outcome {
        Reset,      ///< nothing was entered: stored inputs are gone, X is 0 under the reset label
        NoMeaning,  ///< these modifiers name no input: X is "XXX"
        Stored,     ///< X is the input under its label
        Solved,     ///< the inputs stand on the tape, X is the result under its label
    };

    MultiInput(Engine& calculator, const Shape& keyShape) : calc(calculator), shape(keyShape) {}

    /// Takes X, which the dispatch has fetched, as the input that ModifierMask names. An input
    /// given twice replaces its former value. Raises what the solution raises, and 6 where the
    /// result is out of range; the input that led there can then be given anew.
    Outcome press();
    /// The same for a subject of several keys, which names the input itself: the `mask` of the row
    /// is then any number that the keys agree on.
    Outcome press(std::uint8_t name);

    /// For a shape without solutions, whose owner solves: the inputs `bits` are taken back, because
    /// they led to a failure that leaves 0 in X.
    void takeBack(std::uint8_t bits);
    /// Likewise: the set is complete. The coming commit takes the place of the first input, the
    /// next input starts a new set.
    void complete();

    /// Sum of the inputs received so far.
    [[nodiscard]] std::uint8_t received() const { return received_; }
    [[nodiscard]] const InputValues& values() const { return values_; }

private:
    /// Where an input stands on the stack, and what was left there.
    struct Place {
        int slot = -1;
        ValueCell value{};
    };

    [[nodiscard]] bool stands(const Place& place) const;
    void remember(const ValueCell& left);
    [[nodiscard]] bool nothingEntered() const;
    [[nodiscard]] const KeyInput* named(std::uint8_t mask) const;
    [[nodiscard]] const KeySolution* solution() const;
    void clear();
    void settle();
    void deliver(const KeySolution& solved, const KeyInput& last, bool showsAll);
    void writeInput(const KeyInput& input);
    [[nodiscard]] double& valueOf(const KeyInput& input);

    Engine& calc;
    Shape shape;
    InputValues values_{};
    std::uint8_t received_ = 0;
    std::uint8_t lastSet_ = 0;  ///< sum that the last result came from
    Place first_;               ///< of the set's first input
    Place last_;                ///< of the input before this one
};

}  // namespace tallyforge
