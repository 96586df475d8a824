// SPDX-License-Identifier: GPL-3.0-or-later
//
// Draws into a picture, a stroke a call.
#pragma once

#include "platform/drawing.h"

#include <string>
#include <utility>
#include <vector>

namespace tallyforge {

inline constexpr Colour kPlain{.ink = Ink::Plain};
inline constexpr Colour kFaint{.ink = Ink::Faint};
inline constexpr Colour kAccent{.ink = Ink::Accent};

class Pen {
public:
    Pen(float width, float height, std::string described) {
        drawing_.width = width;
        drawing_.height = height;
        drawing_.described = std::move(described);
    }

    void line(DrawnPoint from, DrawnPoint to, Colour ink, float width) {
        drawing_.shapes.emplace_back(DrawnLine{.from = from, .to = to, .width = width, .colour = ink});
    }
    /// The outline of what the points go round.
    void shape(std::vector<DrawnPoint> points, Colour ink, float width = 1.5F) {
        drawing_.shapes.emplace_back(
            DrawnPolyline{.points = std::move(points), .closed = true, .edge = ink, .edgeWidth = width});
    }
    void box(DrawnPoint topLeft, float width, float height, Colour ink) {
        drawing_.shapes.emplace_back(
            DrawnRectangle{.topLeft = topLeft, .width = width, .height = height, .edge = ink, .fill = ink});
    }
    void filledBox(DrawnPoint topLeft, float width, float height, Colour fill, float radius = 0.0F) {
        drawing_.shapes.emplace_back(DrawnRectangle{
            .topLeft = topLeft, .width = width, .height = height, .radius = radius, .edge = kFaint, .fill = fill});
    }
    void circle(DrawnPoint centre, float radius, Colour ink) {
        drawing_.shapes.emplace_back(DrawnArc{.centre = centre, .radius = radius, .edge = ink, .edgeWidth = 1.5F});
    }
    void text(DrawnPoint at, std::string words, float size, TextAlign align, Colour ink) {
        drawing_.shapes.emplace_back(
            DrawnText{.at = at, .text = std::move(words), .size = size, .align = align, .colour = ink});
    }
    [[nodiscard]] Drawing drawing() { return std::move(drawing_); }

private:
    Drawing drawing_;
};

}  // namespace tallyforge
