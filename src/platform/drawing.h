// SPDX-License-Identifier: GPL-3.0-or-later
//
// A picture as plain data: lines, rectangles, arcs, polylines and texts in units of its own, the
// origin at the top left. A window paints it at any size and in any theme; a table holds it, a
// handler may change it. What it shows is said in words beside it, for whoever cannot see it.
#pragma once

#include "platform/text.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace tallyforge {

/// Colour of a stroke by its role, so that it fits a light theme and a dark one; `Own` is the
/// shape's own red, green and blue, for what has a colour by nature (the bands of a resistor).
enum class Ink : std::uint8_t { Plain, Faint, Accent, Own, None };

struct Colour {
    Ink ink = Ink::Plain;
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    friend bool operator==(const Colour&, const Colour&) = default;
};

/// The colour of that red, green and blue in every theme.
constexpr Colour ownColour(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return {.ink = Ink::Own, .red = red, .green = green, .blue = blue};
}

struct DrawnPoint {
    float x = 0.0F;
    float y = 0.0F;
    friend bool operator==(const DrawnPoint&, const DrawnPoint&) = default;
};

struct DrawnLine {
    DrawnPoint from;
    DrawnPoint to;
    float width = 1.0F;
    Colour colour{};
    friend bool operator==(const DrawnLine&, const DrawnLine&) = default;
};

struct DrawnRectangle {
    DrawnPoint topLeft;
    float width = 0.0F;
    float height = 0.0F;
    float radius = 0.0F;  ///< of its corners
    Colour edge{};
    Colour fill{.ink = Ink::None};
    float edgeWidth = 1.0F;
    friend bool operator==(const DrawnRectangle&, const DrawnRectangle&) = default;
};

/// Part of a circle, or the whole one. Degrees run counter-clockwise from three o'clock.
struct DrawnArc {
    DrawnPoint centre;
    float radius = 0.0F;
    float start = 0.0F;
    float sweep = 360.0F;
    Colour edge{};
    Colour fill{.ink = Ink::None};  ///< of a whole circle
    float edgeWidth = 1.0F;
    friend bool operator==(const DrawnArc&, const DrawnArc&) = default;
};

struct DrawnPolyline {
    std::vector<DrawnPoint> points;
    bool closed = false;
    Colour edge{};
    Colour fill{.ink = Ink::None};  ///< of a closed one
    float edgeWidth = 1.0F;
    friend bool operator==(const DrawnPolyline&, const DrawnPolyline&) = default;
};

enum class TextAlign : std::uint8_t { Left, Centre, Right };

struct DrawnText {
    DrawnPoint at;       ///< left end, middle or right end of the base line
    std::string text;    ///< eight-bit, as `face` shows it
    float size = 10.0F;  ///< height of the font in the picture's units
    TextAlign align = TextAlign::Left;
    Colour colour{};
    bool bold = false;
    Face face = Face::Arial;
    friend bool operator==(const DrawnText&, const DrawnText&) = default;
};

using DrawnShape = std::variant<DrawnLine, DrawnRectangle, DrawnArc, DrawnPolyline, DrawnText>;

/// Shapes lie one over the other, the last on top.
struct Drawing {
    float width = 0.0F;
    float height = 0.0F;
    std::string described;  ///< what it shows, in words; eight-bit
    std::vector<DrawnShape> shapes;
    friend bool operator==(const Drawing&, const Drawing&) = default;
};

}  // namespace tallyforge
