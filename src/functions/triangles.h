// SPDX-License-Identifier: GPL-3.0-or-later
//
// The triangle keys: each press takes X as one side or angle, the press that completes a set
// leaves all that was missing, and the area, on tape and stack. The results take the place of the
// inputs on the stack. Nothing entered, or 0, begins anew.
#pragma once

#include "engine/multi_input.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tallyforge {

class Engine;

class Triangles {
public:
    explicit Triangles(Engine& calculator);

    /// Key 13 (the angles; Shift that opposite to Y), 14 (X, Shift Y) or 15 (H) of the bank.
    /// Raises what solveRightTriangle raises; the input that led there can be given anew.
    void RightTriangle(int key);
    /// Key 11, 23 or 5 of the bank: S1, S2, S3, with Shift the angle behind it. Raises what
    /// solveTriangle raises, likewise.
    void Triangle(int key);

private:
    struct Finding {
        double value = 0.0;
        std::string label;
    };

    [[nodiscard]] double angleShown(double radians) const;
    void solveRight(std::uint8_t last);
    void solveGeneral(std::uint8_t last);
    void deliver(MultiInput& set, const std::vector<Finding>& findings);

    Engine& calc;
    MultiInput right;
    MultiInput general;
};

}  // namespace tallyforge
