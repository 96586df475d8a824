// SPDX-License-Identifier: GPL-3.0-or-later
//
// The four arithmetic keys. Without a modifier they work on Y and X; with Ctrl on Register 1, and
// the stack stays as it is; with Alt on X and the constant in Register 2.
#pragma once

#include "engine/value_cell.h"

#include <cstdint>
#include <string_view>

namespace tallyforge {

class Engine;

/// Arithmetic on numbers of a base, for operands that carry a "#".
class BaseArithmetic {
public:
    virtual ~BaseArithmetic() = default;
    /// `left` op `right`, one of them at least a number of a base; `index` is the key. Leaves the
    /// remainder of a division in the state. Raises 4 and 6.
    [[nodiscard]] virtual ValueCell compute(int index, const ValueCell& left, const ValueCell& right) = 0;
    /// The real number that a number of a base stands for.
    [[nodiscard]] virtual double real(const ValueCell& tagged) = 0;
};

class ArithmeticKeys {
public:
    explicit ArithmeticKeys(Engine& calculator) : calc(calculator) {}

    /// 0 divide, 1 multiply, 2 subtract, 3 add.
    void cmdMath_Click(int index);

    /// Must be set before numbers of a base are to be computed with; without it they are no
    /// numbers here.
    BaseArithmetic* bases = nullptr;

private:
    /// Puts the result into X; returns false where a failure left X as it was.
    bool compute(int index, const ValueCell& left, const ValueCell& right);
    void abandon();
    void intoRegisterOne();

    Engine& calc;
};

}  // namespace tallyforge
