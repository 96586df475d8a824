// SPDX-License-Identifier: GPL-3.0-or-later
//
// The four arithmetic keys. Without a modifier they work on Y and X; with Ctrl on Register 1, and
// the stack stays as it is; with Alt on X and the constant in Register 2.
#pragma once

#include "engine/tape.h"
#include "numbers/failure.h"
#include "numbers/value_cell.h"

#include <array>
#include <optional>

namespace tallyforge {

class Engine;

class BinaryKeys;

class ArithmeticKeys {
public:
    explicit ArithmeticKeys(Engine& calculator);

    /// 0 divide, 1 multiply, 2 subtract, 3 add, of X and what ModifierMask chooses. Raises
    /// nothing: an overflow and a subtrahend too great are shown in a box, other failures are quiet.
    void cmdMath_Click(int index);

    /// Computes with numbers of a base. While there is none, such an operand ends the key and
    /// everything stays as it is.
    BinaryKeys* bases = nullptr;

private:
    bool computeQuietly(int index);
    struct Operands {
        bool valid = false;  ///< false: the modifiers mean nothing here
        const ValueCell* left = nullptr;
        const ValueCell* right = nullptr;
    };
    [[nodiscard]] Operands choose(int index);
    /// Puts the result into X; returns the failure that left X as it was.
    std::optional<FailureNumber> compute(int index, const Operands& operands);
    void abandon();
    void storeRegisterOne();

    Engine& calc;
    std::array<KnownLabel, 4> labels_;
};

}  // namespace tallyforge
