// SPDX-License-Identifier: GPL-3.0-or-later
//
// The figures of the charts, drawn from the numbers in their rows. Each takes the rows and the one
// to be brought out.
#pragma once

#include "platform/drawing.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tallyforge {

/// A nail, a screw or a wire: what it is called, and its measures in inches.
struct Piece {
    std::string name;
    double diameter = 0.0;
    double length = 0.0;
    double threadsPerInch = 0.0;
};

/// A thread and the drill of its hole; inches.
struct ThreadSize {
    std::string name;
    std::string drillName;
    double major = 0.0;
    double threadsPerInch = 0.0;
    double drill = 0.0;
};

/// A taper thread of a pipe; inches.
struct PipeThread {
    std::string name;
    double outside = 0.0;
    double threadsPerInch = 0.0;
    double handTight = 0.0;  ///< L1
    double effective = 0.0;  ///< L2
};

using ChosenRow = std::optional<std::size_t>;

/// All nails side by side on a scale of inches, lengths and diameters to one scale.
[[nodiscard]] Drawing nailFigure(std::span<const Piece> nails, ChosenRow row);
/// All screws side by side, diameters and threads to scale; they are drawn two inches long.
[[nodiscard]] Drawing screwFigure(std::span<const Piece> screws, ChosenRow row);
/// All wires in section, to one scale.
[[nodiscard]] Drawing wireFigure(std::span<const Piece> wires, ChosenRow row);
/// The profile of the chosen thread, or of the first, with the line to which its hole is drilled.
[[nodiscard]] Drawing threadFigure(std::span<const ThreadSize> threads, ChosenRow row);
/// The end of the chosen pipe, or of the first, with its lengths of thread.
[[nodiscard]] Drawing pipeFigure(std::span<const PipeThread> pipes, ChosenRow row);

/// A colour of the code: its name, what it looks like, its number of zeros, and its tolerance.
struct BandColour {
    std::string name;
    Colour look;
    int number = 0;
    std::string tolerance;  ///< "5 %"; empty where the colour stands for none
};

inline constexpr std::size_t kBands = 4;
/// A resistor with these bands (places in `colours`), and its value.
[[nodiscard]] Drawing resistorFigure(std::span<const BandColour> colours, const std::array<std::size_t, kBands>& bands);

}  // namespace tallyforge
