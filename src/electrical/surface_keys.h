// SPDX-License-Identifier: GPL-3.0-or-later
//
// The key of a component's surface and of its temperature. The dimensions of the chosen shape give
// the surface; a power over a surface gives the rise of the temperature.
#pragma once

#include "engine/multi_input.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace tallyforge {

class Engine;

class SurfaceKeys {
public:
    explicit SurfaceKeys(Engine& calculator);

    /// Height (Ctrl), diameter or length (Alt), width (Ctrl+Alt): the surface of the chosen shape.
    /// Plain: X is a power in watts and Y a surface, to the temperature in the unit in force. Keeps
    /// converting a rise to Fahrenheit as if it were a temperature. Raises 5, 6, 11.
    void surfaceAndTemperature();
    /// Forgets the dimensions.
    void clear();

private:
    enum class Shape : std::uint8_t { Cylinder, Block };

    [[nodiscard]] Shape shapeInForce() const;
    [[nodiscard]] MultiInput keyOf(Shape shape);
    [[nodiscard]] std::string labelOf(const KeyInput& input) const;
    [[nodiscard]] std::optional<InputRefusal> refuse(const KeyInput& input) const;
    [[nodiscard]] std::vector<KeyResult> surface(Shape shape, const InputValues& values) const;
    void temperature();

    Engine& calc;
    std::array<MultiInput, 2> keys_;  ///< by Shape
};

}  // namespace tallyforge
