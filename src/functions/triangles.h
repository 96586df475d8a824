// SPDX-License-Identifier: GPL-3.0-or-later
//
// The triangle keys: each press takes X as one side or angle, the press that completes a set
// leaves all that was missing, and the area, on tape and stack. The results take the place of the
// inputs on the stack; what was given stands among them as it was given. Nothing entered, or 0,
// begins anew.
#pragma once

#include "engine/engine_state.h"
#include "engine/multi_input.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tallyforge {

class Engine;

class Triangles {
public:
    explicit Triangles(Engine& calculator);

    /// Key 13 (the angles; Shift that opposite to Y), 14 (X, Shift Y) or 15 (H) of the bank.
    /// Raises what solveRightTriangle raises; the input that is out of range, else the last one, is
    /// taken back and can be given anew.
    void RightTriangle(int key);
    /// Key 11, 23 or 5 of the bank: S1, S2, S3, with Shift the angle behind it. Raises what
    /// solveTriangle raises, likewise.
    void Triangle(int key);

private:
    struct Finding {
        double value = 0.0;
        std::string label;
    };

    /// Inputs in the units that they were given in.
    struct Inputs {
        MultiInput taken;
        std::array<AngleMode, kMostInputs> unit{};

        [[nodiscard]] double radians(std::size_t input) const;
    };

    [[nodiscard]] double angleShown(double radians) const;
    [[nodiscard]] double asGiven(const Inputs& set, std::size_t input) const;
    void solveRight(std::uint8_t last);
    void solveGeneral(std::uint8_t last);
    void deliver(MultiInput& set, const std::vector<Finding>& findings);

    Engine& calc;
    Inputs right;
    Inputs general;
};

}  // namespace tallyforge
