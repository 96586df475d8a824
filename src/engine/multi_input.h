// SPDX-License-Identifier: GPL-3.0-or-later
//
// The idiom of the keys that need several inputs: a press takes X as the input that the modifiers
// name, and the press that completes a set computes the missing quantity. A key gives a Shape
// (constexpr tables) and calls press(); the dispatch then commits what press() left in X.
//
//     constexpr KeyInput kInputs[] = {{.mask = 0, .bit = 1, .label = "RT"}, ...};
//     constexpr KeySolution kSolutions[] = {{.bits = 6, .label = "RT", .solve = totalOfBoth}, ...};
//     MultiInput key{calc, {.resetLabel = "Reset RT", .resetBit = ResetBit::ParallelResistors, .inputs = kInputs,
//     ...}};
//
// Inputs that follow each other take one place on the stack. What the user puts there between two of
// them stays until the set is complete; then the result stands in the place of the first input.
#pragma once

#include "engine/reset_bits.h"
#include "numbers/value_cell.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyforge {

class Engine;

inline constexpr std::size_t kMostInputs = 8;

/// Values received, in the order of the key's inputs.
using InputValues = std::array<double, kMostInputs>;

/// How a line of the tape is written.
struct LineLook {
    static constexpr int kUsersDigits = -1;
    int digits = kUsersDigits;  ///< fixed digits, or kUsersDigits: the user's format
    bool bySize = false;        ///< engineering format for 10000 and more, or below 1
};
inline constexpr LineLook kAsUserHasIt{};
inline constexpr LineLook kTwoDigitsBySize{.digits = 2, .bySize = true};

struct KeyInput {
    std::uint8_t mask = 0;  ///< modifiers that name it; even where Shift means recalculation
    std::uint8_t bit = 0;   ///< one bit of the sum of received inputs
    std::string_view label{};
    /// Where it is echoed before the results: label and look, if others than when it was given.
    std::string_view echoLabel{};
    std::optional<LineLook> echoLook{};
};

/// A line that a solution leaves.
struct KeyResult {
    double value = 0.0;
    std::string label{};
};

struct KeySolution {
    std::uint8_t bits = 0;  ///< sum of the inputs that determine the result
    std::string_view label{};
    /// Raises 5, 6 or 11 where the values have no result. Null where the key's owner solves.
    double (*solve)(const InputValues&) = nullptr;
    /// The inputs that the sum is taken of; others do not matter.
    std::uint8_t among = 0xFF;
};

/// An input that is not taken: what was received before stays.
struct InputRefusal {
    std::string label{};         ///< of the line that X leaves
    bool leavesX = true;         ///< else 0 stands in X
    std::uint8_t takesBack = 0;  ///< inputs of a set that are not kept
};

/// What a key's owner answers where the tables do not.
struct KeyOwner {
    /// The label of an input that names a unit in force.
    std::function<std::string(const KeyInput&)> label{};
    /// Asked before an input is taken, whose value it may change: a refusal where it is not.
    std::function<std::optional<InputRefusal>(const KeyInput&, double& value)> refuse{};
    /// Asked before a complete set is solved: a refusal of some of its inputs.
    std::function<std::optional<InputRefusal>(const InputValues&)> refuseSet{};
    /// The results of a set without a `solve` of its own, in the order of the tape; the last one
    /// ends in X. None where the key is to begin anew. Raises what a `solve` raises.
    std::function<std::vector<KeyResult>(std::uint8_t bits, const InputValues&)> solve{};
};

class MultiInput {
public:
    struct Shape {
        std::string_view resetLabel{};  ///< "Reset RT"
        /// The key's bit of FunctionResetMask, 0 for a key that Reset leaves alone.
        ResetBit resetBit = ResetBit::None;
        std::span<const KeyInput> inputs{};
        std::span<const KeySolution> solutions{};
        /// Shift names no input but asks to compute again from the inputs of the last set.
        bool shiftRecalculates = true;
        /// An X of 0 means that nothing was entered.
        bool zeroResets = true;
        /// All inputs are echoed before every result, not only with Shift.
        bool alwaysEchoes = false;
        LineLook givenLook = kAsUserHasIt;       ///< of an input when it is given
        LineLook echoLook = kTwoDigitsBySize;    ///< of the inputs that are echoed
        LineLook resultLook = kTwoDigitsBySize;  ///< of the results; the user's format returns after them
        /// Label of the 0 that is left where the owner finds no results; default the reset label.
        std::string_view undoneLabel{};
    };
    enum class Outcome {
        Reset,      ///< nothing was entered: stored inputs are gone, X is 0 under the reset label
        NoMeaning,  ///< these modifiers name no input: X is "XXX"
        Refused,    ///< the input is not taken: X under the label of the refusal
        Stored,     ///< X is the input under its label
        Solved,     ///< the inputs stand on the tape, X is the last result under its label
    };

    MultiInput(Engine& calculator, const Shape& keyShape, KeyOwner keyOwner = {})
        : calc(calculator), shape(keyShape), owner(std::move(keyOwner)) {}

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

    /// All inputs are forgotten, those of the last set too.
    void clear();
    /// Does what Reset has left to do when the key is next used. Returns whether it had.
    bool clearIfDue();
    /// Whether a set has been complete since the key began anew.
    [[nodiscard]] bool hasSolved() const { return lastSet_ != 0; }

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
    [[nodiscard]] std::vector<KeyResult> resultsOf(const KeySolution& solved) const;
    [[nodiscard]] std::string labelOf(const KeyInput& input) const;
    Outcome startAnew(std::string_view label);
    Outcome turnAway(const InputRefusal& refusal);
    Outcome deliver(const KeySolution& solved, const KeyInput& last, bool echoes);
    void settle();
    void useLook(const LineLook& look);
    void writeEcho(const KeyInput& input);
    void setX(double value, std::string_view label);
    [[nodiscard]] double& valueOf(const KeyInput& input);

    Engine& calc;
    Shape shape;
    KeyOwner owner;
    InputValues values_{};
    std::uint8_t received_ = 0;
    std::uint8_t lastSet_ = 0;  ///< sum that the last result came from
    Place first_;               ///< of the set's first input
    Place last_;                ///< of the input before this one
};

}  // namespace tallyforge
