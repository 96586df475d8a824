// SPDX-License-Identifier: GPL-3.0-or-later
//
// A pencil for the pictures beside the fields: wires, parts, curves and letters, all plain data.
#pragma once

#include "platform/drawing.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace tallyforge {

class Sketch {
public:
    /// An empty sheet, 300 by 200; `described` says in words what is drawn.
    explicit Sketch(std::string_view described);

    void line(DrawnPoint from, DrawnPoint to, Ink ink = Ink::Plain, float width = 1.5F);
    void text(DrawnPoint at, std::string_view words, TextAlign align = TextAlign::Centre, Ink ink = Ink::Plain);
    void dot(DrawnPoint at, Ink ink = Ink::Accent);
    void shape(DrawnShape drawn) { drawing_.shapes.push_back(std::move(drawn)); }

    // Parts of a circuit, `kPart` long, from `at` to the right, or downwards.
    static constexpr float kPart = 60.0F;
    void resistor(DrawnPoint at, bool down, std::string_view label);
    void inductor(DrawnPoint at, bool down, std::string_view label);
    void capacitor(DrawnPoint at, bool down, std::string_view label);

    /// `height` over the sheet's width, each from 0 to 1; points that are no number are left out.
    void curve(const std::function<double(double)>& height, Ink ink = Ink::Accent);
    /// A mark on the curve's axis with its letter.
    void mark(double place, std::string_view letter);
    /// Point of the curve's field.
    [[nodiscard]] static DrawnPoint inField(double across, double up);

    [[nodiscard]] Drawing take() { return std::move(drawing_); }

private:
    [[nodiscard]] static DrawnPoint along(DrawnPoint at, bool down, float ahead, float aside);
    void label(DrawnPoint at, bool down, std::string_view words);

    Drawing drawing_;
};

}  // namespace tallyforge
